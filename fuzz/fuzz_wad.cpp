// Any bytes may be a WAD: opening, walking and reading it ends, and a lump added to it stays.
#include <algorithm>

#include "require.h"
#include "support/temp_folder.h"
#include "text/ascii.h"
#include "wad/little_endian.h"
#include "wad/maps.h"

namespace {

constexpr std::int32_t mostBytes = 1 << 20;

void Walk(const clsWad& wad) {
    const std::vector<std::string> maps = MapNames(wad);
    const std::string lowest = LowestMap(wad);
    Require(maps.empty() || !lowest.empty() || std::ranges::count(maps, "") > 0 ||
                maps.front() == std::string(lumpNameLength, '\xFF'),
            "there is a lowest map");
    const std::int32_t beyond =
        std::min(wad.Directory().StoredCount() + 2, wad.Directory().Count());
    for (std::int32_t lump = -1; lump < beyond; ++lump) {
        const std::string name = UpperCase(wad.LumpName(lump));
        const std::int32_t found = wad.NumForName(name);
        Require(lump < 0 || found == -1 || wad.LumpName(found) == name, "a found name is equal");
        Require(lump < 0 || found <= lump || wad.LumpName(lump) != name, "the first one is found");
        if (wad.LumpSize(lump) <= mostBytes) {
            const auto size = static_cast<std::size_t>(std::max(wad.LumpSize(lump), 0));
            Require(wad.ReadLump(lump).size() == size, "a lump has its size");
        }
    }
}

void Extend(clsWad& wad) {
    std::vector<std::string> names(static_cast<std::size_t>(wad.Directory().Count()));
    std::ranges::generate(names, [&, lump = 0]() mutable { return wad.LumpName(lump++); });
    if (!wad.AddLump("added", "0123456789")) {
        return;
    }
    Require(!!wad.WriteDirectory(), "a directory is written");
    const std::string path = wad.WadFileName();
    wad.OpenWad(path);
    const auto added = static_cast<std::int32_t>(names.size());
    Require(wad.WadLumps() == std::to_string(added), "the added lump counts");
    Require(wad.LumpName(added) == "ADDED" && wad.ReadLumpString(added) == "0123456789",
            "the added lump is read again");
    for (std::int32_t lump = 0; lump < added; ++lump) {
        Require(wad.LumpName(lump) == names[static_cast<std::size_t>(lump)], "names stay");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    static const TempFolder folder;
    clsWad wad;
    wad.OpenWad(folder.Write("input.wad", {bytes, size}));
    Walk(wad);
    if (size >= 12 && DecodeInt32(bytes + 8) < mostBytes && wad.Directory().Count() < 1000) {
        Extend(wad);
    }
    return 0;
}
