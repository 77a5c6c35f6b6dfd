#include <gtest/gtest.h>

#include <climits>
#include <map>

#include "support/temp_folder.h"
#include "text/ascii.h"
#include "wad/maps.h"
#include "wad_bytes.h"

using namespace std::string_literals;

namespace {

using Names = std::vector<std::string>;

struct WadReading : testing::Test {
    void Open(std::string_view bytes) { wad.OpenWad(folder.Write("test.wad", bytes)); }
    TempFolder folder;
    clsWad wad;
};

TEST_F(WadReading, HeadersAreTakenOrRefused) {
    const std::string none = "-1";
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"tag in lower case", Header("iwad", 1, 12), none},
        {"half a count", "PWAD\2"s, "1"},
        {"unfinished", Header("PWAD", -1, 12), "-2"},
        {"count -2", Header("IWAD", -2, 12), none},
        {"more than 2 GiB", Header("IWAD", (1 << 27) + 1, 12), none},
        {"2 GiB, all cut off", Header("IWAD", 1 << 27, 12), "134217727"},
        {"directory before the file", Header("IWAD", 3, -40), "2"},
        {"directory behind the file", Header("IWAD", 3, INT_MAX), "2"},
    };
    for (const auto& [name, bytes, lumps] : rows) {
        SCOPED_TRACE(name);
        Open(bytes);
        EXPECT_EQ(wad.WadLumps(), lumps);
        EXPECT_EQ(wad.WadFileName().empty(), lumps == none);
        EXPECT_TRUE(MapNames(wad).empty());
        EXPECT_EQ(LowestMap(wad), "");
        EXPECT_EQ(wad.NumForName("THINGS"), -1);
    }
}

TEST_F(WadReading, NamesAreCleaned) {
    const std::pair<std::string, std::string> rows[] = {
        {"MAP01", "MAP01"},         {"EIGHTCHR", "EIGHTCHR"}, {"", ""},
        {"AB\0CD"s, "AB CD"},       {" LEFT", "LEFT"},        {"\0\0A B \0"s, "A B"},
        {"\t\xFFX\t", "\t\xFFX\t"}, {"        ", ""}};
    for (const auto& [field, name] : rows) {
        Open(WadOf({"FIRST", field, field}));
        EXPECT_EQ(wad.LumpName(1), name);
        EXPECT_EQ(wad.NumForName(" " + LowerCase(name) + " "), 1) << name;
        EXPECT_EQ(wad.NumForName(name + "x"), -1) << name;
    }
    Open(WadOf({"map01", "EIGHTCHR"}));
    for (const char* absent : {"MAP01", "\tEIGHTCHR"}) {
        EXPECT_EQ(wad.NumForName(absent), -1) << absent;
    }
}

TEST_F(WadReading, ACutDirectoryKeepsItsCount) {
    const std::string whole =
        Header("PWAD", 4, 12) + Entry(1, 5, "FIRST") + Entry(INT_MAX, 3, "SECOND");
    Open(whole.substr(0, whole.size() - 11));  // one byte of the second entry's size is left
    EXPECT_EQ(wad.WadLumps(), "3");
    EXPECT_EQ(wad.LumpName(0) + wad.LumpName(1) + wad.LumpName(3), "FIRST");
    EXPECT_EQ(wad.LumpOffset(1), INT_MAX);
    EXPECT_EQ(wad.LumpSize(1), 3);
    EXPECT_EQ(wad.LumpOffset(3) + wad.LumpSize(3), 0);
    EXPECT_EQ(wad.NumForName(""), 1);
}

TEST_F(WadReading, LumpsMayLieAnywhere) {
    Open(Header("PWAD", 6, 22) + "0123456789" + Entry(12, 10, "WHOLE") + Entry(14, 3, "INSIDE") +
         Entry(20, 0, "EMPTY") + Entry(130 - 12, 20, "CUT") + Entry(-3, 4, "BEFORE") +
         Entry(12, -1, "NEGATIVE") + "behind");
    const std::string cut = "behind"s + std::string(14, '\0');
    std::int32_t lump = 0;
    for (const std::string& data : {"0123456789"s, "234"s, ""s, cut, "\0\0\0\0"s, ""s}) {
        EXPECT_EQ(wad.ReadLumpString(lump), data) << lump;
        ++lump;
    }
    EXPECT_EQ(wad.ReadLump(1), (std::vector<unsigned char>{'2', '3', '4'}));
    EXPECT_TRUE(wad.ReadLump(-1).empty());
    EXPECT_EQ(wad.WadSize(), 124);
    EXPECT_GE(wad.SeekLump(1), 0);
}

TEST_F(WadReading, AnotherFileReplacesTheOpenOneUnlessItIsAbsent) {
    Open(WadOf({"KEPT"}));
    for (const std::string& name : {folder.Path("absent.wad"), folder.Path(), wad.WadFileName()}) {
        wad.OpenWad(name);
        EXPECT_EQ(wad.LumpName(0), "KEPT");
    }
    Open("no WAD at all");
    EXPECT_EQ(wad.WadFileName() + wad.WadLumps() + wad.LumpName(0), "-1");
    EXPECT_EQ(wad.SeekLump(0), -1);
    EXPECT_EQ(wad.ReadLumpString(0), "");
}

/// A directory of 40 lumps with maps at the given places.
Names Lumps(const std::map<std::size_t, std::string>& maps) {
    Names names(40, "LINEDEFS");
    for (const auto& [place, name] : maps) {
        names[place] = name;
        names[place + 1] = "THINGS";
    }
    return names;
}

TEST_F(WadReading, MapsAreFoundByTheLumpBehindThem) {
    const std::tuple<const char*, Names, Names, const char*> rows[] = {
        {"lower case things", {"MAP01", "things"}, {}, ""},
        {"nothing before it", {"THINGS", "MAP01"}, {}, ""},
        {"the lowest skips, all skip in the list",
         Lumps({{0, "MAP05"}, {10, "MAP01"}, {20, "MAP07"}, {30, "MAP02"}}),
         {"MAP05", "MAP07"},
         "MAP02"},
        {"by codes, not numbers", Lumps({{0, "M2"}, {11, "M10"}}), {"M2", "M10"}, "M10"},
        {"high codes", Lumps({{0, "\xC4"}, {11, "e1"}}), {"\xC4", "e1"}, "e1"},
        {"highest codes", {std::string(8, '\xFF'), "THINGS"}, {std::string(8, '\xFF')}, ""},
    };
    for (const auto& [name, lumps, maps, lowest] : rows) {
        SCOPED_TRACE(name);
        Open(WadOf(lumps));
        EXPECT_EQ(MapNames(wad), maps);
        EXPECT_EQ(LowestMap(wad), lowest);
    }
}

}  // namespace
