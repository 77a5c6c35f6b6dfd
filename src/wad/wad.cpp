#include "wad/wad.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "text/ascii.h"
#include "wad/little_endian.h"

namespace {

// Limits the directory to 64 MiB, so that a damaged header cannot exhaust the memory.
constexpr std::int32_t MaxLumps = 1 << 22;

std::int32_t Clamped(std::int64_t number) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

template <class Bytes>
Bytes ReadBytes(const platform::File& file, const WadLumpEntry& entry) {
    Bytes bytes(static_cast<std::size_t>(std::max(entry.size, 0)), 0);
    // What the file does not have stays zero.
    std::size_t count = 0;
    static_cast<void>(file.ReadAt(entry.filePos, bytes.data(), bytes.size(), count));
    return bytes;
}

}  // namespace

void clsWad::ResetWad() {
    file_.Close();
    wadTag_ = "PWAD";
    lastLump_ = -1;
    dirOffset_ = HeaderBytes;
    openName_.clear();
    directory_ = {};
}

void clsWad::OpenWad(std::string fileName) {
    using Access = platform::File::Access;
    if (!platform::IsOrdinaryFile(fileName)) {
        return;
    }
    ResetWad();
    // The second for a write-protected file, or one on a read-only disk.
    const bool isOpen =
        file_.Open(fileName, Access::ReadWrite) || file_.Open(fileName, Access::Read);
    if (!isOpen || !ReadHeaderAndDirectory()) {
        ResetWad();
        return;
    }
    openName_ = std::move(fileName);
}

bool clsWad::ReadHeaderAndDirectory() {
    std::array<char, HeaderBytes> header{};  // stays 0 where the file is too short
    std::size_t read = 0;
    if (!file_.ReadAt(0, header.data(), header.size(), read)) {
        return false;
    }
    wadTag_.assign(header.data(), TagLength);
    const std::int32_t count = DecodeInt32(&header[4]);
    if ((wadTag_ != "IWAD" && wadTag_ != "PWAD") || count < -1 || count > MaxLumps) {
        return false;
    }
    lastLump_ = count - 1;
    dirOffset_ = DecodeInt32(&header[8]);
    return count == -1 || directory_.Read(file_, dirOffset_, count);
}

std::vector<unsigned char> clsWad::ReadLump(std::int32_t lumpNum) const {
    return ReadBytes<std::vector<unsigned char>>(file_, directory_.Entry(lumpNum));
}

std::string clsWad::ReadLumpString(std::int32_t lumpNum) const {
    return ReadBytes<std::string>(file_, directory_.Entry(lumpNum));
}

std::int32_t clsWad::SeekLump(std::int32_t lumpIndex) const {
    return file_.Seek(LumpOffset(lumpIndex)) ? file_.Handle() : -1;
}

std::int32_t clsWad::WadType() const {
    return wadTag_ == "PWAD" ? 1 : 0;
}

std::int32_t clsWad::WadSize() const {
    return Clamped(file_.Size());
}

std::int32_t clsWad::NumForName(std::string_view lumpName) const {
    return directory_.Find(UpperCase(TrimSpaces(lumpName)));
}

std::int32_t clsWad::WastedSpace() const {
    std::int64_t wasted = file_.Size() - HeaderBytes;
    wasted -= std::int64_t{directory_.Count()} * std::int64_t{WadDirectory::EntryBytes};
    for (std::int32_t lump = 0; lump < directory_.StoredCount(); ++lump) {
        wasted -= LumpSize(lump);
    }
    return Clamped(wasted);
}
