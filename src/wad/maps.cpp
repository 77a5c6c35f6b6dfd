#include "wad/maps.h"

namespace {

constexpr int DataLumps = 10;

/// Index of the first map at or after `start`; negative if there is none.
std::int32_t NextMap(const clsWad& wad, std::int32_t start) {
    return wad.Directory().Find("THINGS", start + 1) - 1;
}

}  // namespace

std::vector<std::string> MapNames(const clsWad& wad) {
    std::vector<std::string> names;
    for (std::int32_t map = NextMap(wad, 0); map >= 0; map = NextMap(wad, map + DataLumps + 1)) {
        names.push_back(wad.LumpName(map));
    }
    return names;
}

std::optional<std::string> LowestMap(const clsWad& wad) {
    const std::string noMapYet(8, '\xFF');  // above every name of ASCII characters
    std::string lowest = noMapYet;
    for (std::int32_t map = NextMap(wad, 0); map >= 0; map = NextMap(wad, map + 1)) {
        std::string name = wad.LumpName(map);
        if (name < lowest) {
            lowest = std::move(name);
            map += DataLumps;
        }
    }
    return lowest == noMapYet ? std::nullopt : std::optional(lowest);
}
