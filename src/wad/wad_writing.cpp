#include <algorithm>
#include <limits>
#include <utility>

#include "text/ascii.h"
#include "wad/little_endian.h"
#include "wad/wad.h"

namespace {

constexpr std::int32_t headerBytes = 12;
constexpr std::size_t tagLength = 4;

/// A name as the directory holds it until it is written: filled up with blanks.
LumpNameField NewName(std::string_view name) {
    LumpNameField field{};
    field.fill(' ');
    std::ranges::copy(UpperCase(name.substr(0, field.size())), field.begin());
    return field;
}

platform::Outcome Refused(std::string reason) {
    return {false, std::move(reason)};
}

}  // namespace

platform::Outcome clsWad::CreateWad(std::string fileName, std::string& wadType) {
    if (wadType.size() != tagLength) {
        return Refused("The type of a WAD has 4 characters.");
    }
    ResetWad();
    wadType = UpperCase(wadType);
    platform::Outcome outcome;
    file_ = platform::File::Open(fileName, platform::File::Access::Create, &outcome);
    wadTag_ = wadType;
    if (outcome) {
        outcome = file_.WriteAt(0, Header(lastLump_));
    }
    if (!outcome) {
        ResetWad();
        return outcome;
    }
    openName_ = std::move(fileName);
    return outcome;
}

platform::Outcome clsWad::AddLump(std::string_view lumpName, std::string_view lumpData) {
    constexpr std::size_t highest = std::numeric_limits<std::int32_t>::max();
    if (!file_.IsOpen() || dirOffset_ < headerBytes) {
        return Refused("There is no WAD to add the lump to.");
    }
    if (lumpData.size() > highest - static_cast<std::size_t>(dirOffset_)) {
        return Refused("A WAD ends below 2 GiB.");
    }
    platform::Outcome outcome = file_.WriteAt(dirOffset_, lumpData);
    if (outcome) {
        const auto size = static_cast<std::int32_t>(lumpData.size());
        directory_.Add({dirOffset_, size, NewName(lumpName)});
        lastLump_ = directory_.Count() - 1;
        dirOffset_ += size;
    }
    return outcome;
}

platform::Outcome clsWad::WriteDirectory() {
    constexpr std::size_t chunkBytes = 1 << 16;
    if (!file_.IsOpen() || dirOffset_ < headerBytes) {
        return Refused("There is no WAD to write the directory of.");
    }
    std::int64_t position = dirOffset_;
    std::string chunk;
    for (std::int32_t lump = 0; lump <= lastLump_; ++lump) {
        chunk += WadDirectory::Encode(directory_.Entry(lump));
        if (chunk.size() < chunkBytes && lump < lastLump_) {
            continue;
        }
        if (platform::Outcome outcome = file_.WriteAt(position, chunk); !outcome) {
            return outcome;
        }
        position += static_cast<std::int64_t>(chunk.size());
        chunk.clear();
    }
    return file_.WriteAt(0, Header(lastLump_ + 1));
}

std::string clsWad::Header(std::int32_t count) const {
    std::string header = wadTag_;
    AppendInt32(header, count);
    AppendInt32(header, dirOffset_);
    return header;
}

void clsWad::WadType(std::int32_t newType) {
    if (newType == 0 || newType == 1) {
        wadTag_ = newType == 0 ? "IWAD" : "PWAD";
    }
}
