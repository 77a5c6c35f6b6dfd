#include "wad/maps.h"

namespace {

constexpr std::int32_t lumpsOfAMap = 10;

bool IsMap(const WadDirectory& directory, std::int32_t lump) {
    return LumpNameIs(directory.NameField(lump + 1), "THINGS");
}

}  // namespace

std::vector<std::string> MapNames(const clsWad& wad) {
    const WadDirectory& directory = wad.Directory();
    std::vector<std::string> names;
    for (std::int32_t lump = 0; lump + 1 < directory.StoredCount(); ++lump) {
        if (IsMap(directory, lump)) {
            names.push_back(wad.LumpName(lump));
            lump += lumpsOfAMap;
        }
    }
    return names;
}

std::string LowestMap(const clsWad& wad) {
    const WadDirectory& directory = wad.Directory();
    const std::string noMapYet(lumpNameLength, '\xFF');
    std::string lowest = noMapYet;
    for (std::int32_t lump = 0; lump + 1 < directory.StoredCount(); ++lump) {
        if (IsMap(directory, lump) && wad.LumpName(lump) < lowest) {
            lowest = wad.LumpName(lump);
            lump += lumpsOfAMap;
        }
    }
    return lowest == noMapYet ? std::string() : lowest;
}
