#include "wad/maps.h"

namespace {

constexpr int lumpsOfAMap = 10;
const WantedName things("THINGS");

/// Index of the map at or behind `start`, or a negative number.
std::int32_t NextMap(const clsWad& wad, std::int32_t start) {
    return wad.Directory().Find(things, start + 1) - 1;
}

}  // namespace

std::vector<std::string> MapNames(const clsWad& wad) {
    std::vector<std::string> names;
    const auto lumps = static_cast<std::size_t>(wad.Directory().StoredCount());
    names.reserve(lumps / (lumpsOfAMap + 1) + 1);
    for (std::int32_t map = NextMap(wad, 0); map >= 0; map = NextMap(wad, map + lumpsOfAMap + 1)) {
        AppendLumpName(wad.Directory().NameField(map), names);
    }
    return names;
}

std::string LowestMap(const clsWad& wad) {
    const std::string noMapYet(lumpNameLength, '\xFF');
    std::string lowest = noMapYet;
    for (std::int32_t map = NextMap(wad, 0); map >= 0; map = NextMap(wad, map + 1)) {
        const std::string name = wad.LumpName(map);
        if (name < lowest) {
            lowest = name;
            map += lumpsOfAMap;
        }
    }
    return lowest == noMapYet ? std::string() : lowest;
}
