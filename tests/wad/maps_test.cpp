#include "wad/maps.h"

#include <gtest/gtest.h>

#include <map>

#include "support/temp_folder.h"
#include "wad_bytes.h"

namespace {

using Names = std::vector<std::string>;

/// A directory of so many lumps with maps at the given places.
Names Lumps(std::size_t count, const std::map<std::size_t, std::string>& maps) {
    Names names(count, "LINEDEFS");
    for (const auto& [place, name] : maps) {
        names[place] = name;
        names[place + 1] = "THINGS";
    }
    return names;
}

}  // namespace

TEST(Maps, AreFoundByTheLumpBehindThem) {
    const struct {
        const char* name;
        Names lumps;
        Names maps;
        std::string lowest;
    } rows[] = {
        {"directory order", Lumps(22, {{0, "MAP02"}, {11, "MAP01"}}), {"MAP02", "MAP01"}, "MAP01"},
        {"lower case things", {"MAP01", "things"}, {}, ""},
        {"nothing before it", {"THINGS", "MAP01"}, {}, ""},
        {"too near", Lumps(12, {{0, "MAP01"}, {10, "MAP02"}}), {"MAP01"}, "MAP01"},
        {"only the lowest skips",
         Lumps(40, {{0, "MAP05"}, {20, "MAP07"}, {30, "MAP02"}}),
         {"MAP05", "MAP07"},
         "MAP02"},
        {"by codes, not numbers", Lumps(13, {{0, "M2"}, {11, "M10"}}), {"M2", "M10"}, "M10"},
        {"high codes", Lumps(13, {{0, "\xC4"}, {11, "e1"}}), {"\xC4", "e1"}, "e1"},
        {"highest codes", {std::string(8, '\xFF'), "THINGS"}, {std::string(8, '\xFF')}, ""},
    };
    const TempFolder folder;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        clsWad wad;
        wad.OpenWad(folder.Write("maps.wad", WadOf(row.lumps)));
        EXPECT_EQ(MapNames(wad), row.maps);
        EXPECT_EQ(LowestMap(wad), row.lowest);
    }
}
