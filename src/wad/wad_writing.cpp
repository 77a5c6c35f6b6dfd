#include <limits>
#include <utility>

#include "text/ascii.h"
#include "wad/little_endian.h"
#include "wad/wad.h"

namespace {

constexpr const char* NotWritable = "There is no open WAD that can be written.";

}  // namespace

platform::Outcome clsWad::CreateWad(std::string fileName, std::string& wadType) {
    if (wadType.size() != TagLength) {
        return {false, "The type of a WAD has 4 characters."};
    }
    ResetWad();
    wadType = UpperCase(wadType);
    platform::Outcome outcome = file_.Open(fileName, platform::File::Access::Create);
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
    constexpr std::size_t MaxEnd = std::numeric_limits<std::int32_t>::max();
    if (!IsWritable()) {
        return {false, NotWritable};
    }
    if (lumpData.size() > MaxEnd - static_cast<std::size_t>(dirOffset_)) {
        return {false, "The lumps of a WAD end below 2 GiB."};
    }
    // Only the lump reaches the file now; the directory waits in memory for WriteDirectory.
    platform::Outcome outcome = file_.WriteAt(dirOffset_, lumpData);
    if (outcome) {
        const auto size = static_cast<std::int32_t>(lumpData.size());
        directory_.Add(dirOffset_, size, UpperCase(lumpName));
        lastLump_ = directory_.Count() - 1;  // was -2 if the file had no directory
        dirOffset_ += size;
    }
    return outcome;
}

platform::Outcome clsWad::WriteDirectory() {
    if (!IsWritable()) {
        return {false, NotWritable};
    }
    const platform::Outcome outcome = file_.WriteAt(dirOffset_, directory_.Encode());
    return outcome ? file_.WriteAt(0, Header(lastLump_ + 1)) : outcome;
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
