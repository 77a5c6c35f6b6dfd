#include <gtest/gtest.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <map>
#include <regex>
#include <tuple>

#include "support/temp_folder.h"
#include "support/wad_bytes.h"
#include "text/ascii.h"
#include "wad/maps.h"

using namespace std::string_literals;

namespace {

using Names = std::vector<std::string>;
using Lump = std::tuple<std::string, std::int32_t, std::int32_t>;  // name, offset, size

struct Wad : testing::Test {
    void Open(std::string_view bytes) { wad.OpenWad(folder.Write("a.wad", bytes)); }
    Lump LumpAt(std::int32_t index) const {
        return {wad.LumpName(index), wad.LumpOffset(index), wad.LumpSize(index)};
    }
    void ExpectNoFile() const {
        EXPECT_EQ(wad.WadFileName(), "");
        EXPECT_EQ(wad.WadLumps(), "-1");
        EXPECT_EQ(wad.WadType(), 1);
        EXPECT_EQ(wad.SeekLump(0), -1);
    }
    TempFolder folder;
    clsWad wad;
};

TEST_F(Wad, ReadsOrRefusesHeaders) {
    const std::pair<std::string, std::string> rows[] = {
        {"some text", "-1"},
        {Header("iwad", 1, 12), "-1"},
        {"PWAD\2"s, "1"},
        {Header("PWAD", -1, 12), "-2"},
        {Header("IWAD", -2, 12), "-1"},
        {Header("IWAD", (1 << 22) + 1, 12), "-1"},  // a directory above 64 MiB
        {Header("IWAD", 1 << 22, 12), "4194303"},
        {Header("IWAD", 3, -40), "2"},
        {Header("IWAD", 3, INT_MAX), "2"},
    };
    for (const auto& [bytes, lumps] : rows) {
        SCOPED_TRACE(bytes);
        Open(WadOf({"OLD"}));
        Open(bytes);
        EXPECT_EQ(wad.WadLumps(), lumps);
        EXPECT_EQ(wad.NumForName("OLD"), -1);
        if (lumps == "-1") {
            ExpectNoFile();
        }
    }
}

TEST_F(Wad, CleansNames) {
    const std::pair<std::string, std::string> rows[] = {
        {"MAP01", "MAP01"},         {"EIGHTCHR", "EIGHTCHR"}, {"", ""},
        {"AB\0CD"s, "AB CD"},       {" LEFT", "LEFT"},        {"\0\0A B \0"s, "A B"},
        {"\t\xFFX\t", "\t\xFFX\t"}, {"        ", ""}};
    for (const auto& [field, name] : rows) {
        Open(WadOf({"map01", field, field}));
        EXPECT_EQ(wad.LumpName(1), name);
        EXPECT_EQ(wad.NumForName(" " + LowerCase(name) + " "), 1) << name;
        EXPECT_EQ(wad.NumForName("\t" + name), -1) << name;
        EXPECT_EQ(wad.NumForName(name + '\0'), -1) << name << " followed by a NUL";
    }
}

TEST_F(Wad, CountsEntriesThatTheFileCutsOff) {
    const std::string whole =
        Header("PWAD", 4, 12) + Entry(1, 5, "FIRST") + Entry(INT_MAX, 3, "SECOND");
    Open(whole.substr(0, whole.size() - 11));  // one byte of the second entry's size is left
    EXPECT_EQ(wad.WadLumps(), "3");
    EXPECT_EQ(LumpAt(0), Lump("FIRST", 1, 5));
    EXPECT_EQ(LumpAt(1), Lump("", INT_MAX, 3));
    EXPECT_EQ(LumpAt(3), Lump("", 0, 0));
    EXPECT_EQ(wad.NumForName(""), 1);
}

TEST_F(Wad, ReadsLumpsAnywhere) {
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
    wad.OpenWad(folder.Path("absent.wad"));
    wad.OpenWad(folder.Path());
    char next = 0;
    EXPECT_EQ(read(wad.SeekLump(1), &next, 1), 1);
    EXPECT_EQ(next, '2') << "the file stays open when the next one is absent or a folder";
}

/// A directory of 40 lumps with maps at the given indexes.
Names Lumps(const std::map<std::size_t, std::string>& maps) {
    Names names(40, "LINEDEFS");
    for (const auto& [index, name] : maps) {
        names[index] = name;
        names[index + 1] = "THINGS";
    }
    return names;
}

TEST_F(Wad, FindsMapsByTheLumpAfterThem) {
    const std::string highest(8, '\xFF');
    const std::tuple<Names, Names, std::optional<std::string>> rows[] = {
        {{"THINGS", "MAP01", "things"}, {}, {}},
        {Lumps({{0, "MAP05"}, {10, "MAP01"}, {20, "MAP07"}, {30, "MAP02"}}),
         {"MAP05", "MAP07"},
         "MAP02"},
        {Lumps({{0, "\xC4"}, {11, "M2"}, {22, "M10"}}), {"\xC4", "M2", "M10"}, "M10"},
        {Lumps({{0, "MAP01"}, {11, ""}}), {"MAP01", ""}, ""},
        {{highest, "THINGS"}, {highest}, {}},
    };
    for (const auto& [lumps, maps, lowest] : rows) {
        Open(WadOf(lumps));
        EXPECT_EQ(MapNames(wad), maps);
        EXPECT_EQ(LowestMap(wad), lowest);
    }
}

TEST_F(Wad, ListsTheMapsThatAnotherToolLists) {
    const std::filesystem::path tool = "/usr/games/deutex";
    const std::regex map(R"rx(\n(\S+)[^\n]*\nTHINGS )rx");
    for (const char* file : {"freedoom1.wad", "freedoom2.wad", "freedm.wad"}) {
        const std::string path = std::string("/usr/share/games/doom/") + file;
        wad.OpenWad(path);
        if (wad.WadFileName() != path || !tool.is_absolute() || !exists(tool)) {
            GTEST_SKIP() << file << " or the tool is not installed";
        }
        EXPECT_NE(
            std::system(("cd '" + folder.Native().string() + "' && ln -sf " + path +
                         " doom2.wad && " + tool.string() + " -doom2 . -wadir doom2.wad >log 2>&1")
                            .c_str()),
            -1);
        const std::string listing = folder.Read("log");
        const std::sregex_token_iterator found(listing.begin(), listing.end(), map, 1);
        EXPECT_EQ(MapNames(wad), Names(found, {})) << file;
    }
}

TEST_F(Wad, WritesOverAnotherFileByteForByte) {
    const std::string rest(28, '#');
    std::string type = "pwad";
    ASSERT_TRUE(wad.CreateWad(folder.Write("a.wad", "An old one: " + rest), type));
    EXPECT_EQ(type, "PWAD");
    EXPECT_EQ(folder.Read("a.wad"), Header("PWAD", -1, 12) + rest);
    ASSERT_TRUE(wad.WriteDirectory());
    EXPECT_EQ(folder.Read("a.wad"), Header("PWAD", 0, 12) + rest);
    EXPECT_EQ(wad.WastedSpace(), 28);

    ASSERT_TRUE(wad.AddLump("tenletters", "abc"));
    ASSERT_TRUE(wad.AddLump(" in b ", ""));
    ASSERT_TRUE(wad.AddLump("", "\0\xFF"s));
    EXPECT_EQ(LumpAt(0), Lump("TENLETTE", 12, 3));
    wad.WadType(0);
    wad.WadType(2);
    EXPECT_EQ(wad.WadType(), 0);
    ASSERT_TRUE(wad.WriteDirectory());
    EXPECT_EQ(folder.Read("a.wad"), Header("IWAD", 3, 17) + "abc\0\xFF"s +
                                        Entry(12, 3, "TENLETTE") + Entry(15, 0, "IN B") +
                                        Entry(15, 2, ""));
    EXPECT_EQ(wad.WastedSpace(), 0);
}

TEST_F(Wad, RefusesToWriteWithoutAChange) {
    EXPECT_FALSE(wad.AddLump("NOWHERE", "x"));
    EXPECT_FALSE(wad.WriteDirectory());
    Open(WadOf({"KEPT"}));
    std::string type = "PWADS";
    EXPECT_FALSE(wad.CreateWad(folder.Path("other.wad"), type));
    EXPECT_EQ(wad.LumpName(0), "KEPT");
    EXPECT_EQ(folder.Count(), 1);
    type = "PWAD";
    EXPECT_FALSE(wad.CreateWad(folder.Path("no folder\\x.wad"), type));
    ExpectNoFile();
    Open("PWAD");  // a directory inside the header
    EXPECT_FALSE(wad.AddLump("X", "x"));
}

TEST_F(Wad, AddsLumpsOverTheDirectory) {
    const std::pair<std::string, std::string> rows[] = {
        {Header("PWAD", 1, 14) + "xy" + Entry(12, 2, " OLD") + "tail",
         Header("PWAD", 2, 16) + "xyzz" + Entry(12, 2, "OLD") + Entry(14, 2, "NEW")},
        {Header("PWAD", -1, 12) + "rest", Header("PWAD", 1, 14) + "zz" + Entry(12, 2, "NEW")},
        {Header("PWAD", 2, 12) + Entry(12, 0, "OLD"),  // the second entry is cut off
         Header("PWAD", 3, 14) + "zz" + Entry(12, 0, "OLD") + Entry(0, 0, "") +
             Entry(12, 2, "NEW")},
    };
    for (const auto& [before, after] : rows) {
        Open(before);
        ASSERT_TRUE(wad.AddLump("new", "zz"));
        EXPECT_GE(wad.NumForName("new"), 0);
        ASSERT_TRUE(wad.WriteDirectory());
        EXPECT_EQ(folder.Read("a.wad"), after);
    }
}

}  // namespace
