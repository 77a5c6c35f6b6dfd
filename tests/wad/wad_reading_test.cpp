#include <gtest/gtest.h>

#include <climits>

#include "support/temp_folder.h"
#include "wad/maps.h"
#include "wad_bytes.h"

using namespace std::string_literals;

class WadReading : public ::testing::Test {
  protected:
    void Open(std::string_view bytes) { wad.OpenWad(folder.Write("test.wad", bytes)); }
    TempFolder folder;
    clsWad wad;
};

TEST_F(WadReading, HeadersAreTakenOrRefused) {
    const struct {
        const char* name;
        std::string bytes;
        const char* lumps;
        int type;
        bool opens;
    } rows[] = {
        {"short tag", "IWA", "-1", 1, false},
        {"tag in lower case", Header("iwad", 0, 12), "-1", 1, false},
        {"tag and nothing else", "IWAD", "-1", 0, true},
        {"half a count", "PWAD\2"s, "1", 1, true},
        {"no lumps", Header("IWAD", 0, 12), "-1", 0, true},
        {"unfinished", Header("PWAD", -1, 12), "-2", 1, true},
        {"count -2", Header("IWAD", -2, 12), "-1", 1, false},
        {"more than 2 GiB", Header("IWAD", (1 << 27) + 1, 12), "-1", 1, false},
        {"2 GiB, all cut off", Header("IWAD", 1 << 27, 12), "134217727", 0, true},
        {"directory before the file", Header("IWAD", 3, -40), "2", 0, true},
        {"directory behind the file", Header("IWAD", 3, INT_MAX), "2", 0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Open(row.bytes);
        EXPECT_EQ(wad.WadLumps(), row.lumps);
        EXPECT_EQ(wad.WadType(), row.type);
        EXPECT_EQ(wad.WadFileName().empty(), !row.opens);
        EXPECT_TRUE(MapNames(wad).empty());
        EXPECT_EQ(LowestMap(wad), "");
        EXPECT_EQ(wad.NumForName("THINGS"), -1);
    }
}

TEST_F(WadReading, NamesAreCleaned) {
    Open(WadOf({"MAP01", "EIGHTCHR", "", "AB\0CD"s, " LEFT", "\0\0A B \0"s, "\t\xFFx\t", "        ",
                "map02"}));
    std::int32_t lump = 0;
    for (const std::string name :
         {"MAP01", "EIGHTCHR", "", "AB CD", "LEFT", "A B", "\t\xFFx\t", "", "map02"}) {
        EXPECT_EQ(wad.LumpName(lump), name);
        EXPECT_EQ(wad.Directory().Find(WantedName(name), lump), lump) << name;
        EXPECT_EQ(wad.Directory().Find(WantedName(name + "x"), lump), -1) << name;
        ++lump;
    }
    EXPECT_EQ(wad.NumForName(" ab cd "), 3);
    EXPECT_EQ(wad.NumForName(""), 2);
    for (const char* absent : {"MAP02", "EIGHTCHRS", "\tEIGHTCHR"}) {
        EXPECT_EQ(wad.NumForName(absent), -1) << absent;
    }
}

TEST_F(WadReading, ACutDirectoryKeepsItsCount) {
    const std::string whole =
        Header("PWAD", 4, 12) + Entry(1, 5, "FIRST") + Entry(INT_MAX, 3, "SECOND");
    Open(whole.substr(0, whole.size() - 11));  // one byte of the second entry's size is left
    EXPECT_EQ(wad.WadLumps(), "3");
    EXPECT_EQ(wad.LumpName(0), "FIRST");
    EXPECT_EQ(wad.LumpOffset(1), INT_MAX);
    EXPECT_EQ(wad.LumpSize(1), 3);
    EXPECT_EQ(wad.LumpName(1) + wad.LumpName(3), "");
    EXPECT_EQ(wad.LumpOffset(3) + wad.LumpSize(3), 0);
    EXPECT_EQ(wad.NumForName(""), 1);
    EXPECT_EQ(wad.NumForName("SECOND"), -1);
}

TEST_F(WadReading, LumpsMayLieAnywhere) {
    const std::string data = "0123456789";
    Open(Header("PWAD", 6, 22) + data + Entry(12, 10, "WHOLE") + Entry(14, 3, "INSIDE") +
         Entry(20, 0, "EMPTY") + Entry(130 - 12, 20, "CUT") + Entry(-3, 4, "BEFORE") +
         Entry(12, -1, "NEGATIVE") + "behind");
    EXPECT_EQ(wad.ReadLumpString(0), data);
    EXPECT_EQ(wad.ReadLump(1), (std::vector<unsigned char>{'2', '3', '4'}));
    EXPECT_EQ(wad.ReadLumpString(2), "");
    EXPECT_EQ(wad.ReadLumpString(3), "behind"s + std::string(14, '\0'));
    EXPECT_EQ(wad.ReadLumpString(4), "\0\0\0\0"s);
    EXPECT_EQ(wad.ReadLumpString(5), "");
    EXPECT_TRUE(wad.ReadLump(-1).empty());
    EXPECT_EQ(wad.WadSize(), 124);
    EXPECT_GE(wad.SeekLump(1), 0);
}

TEST_F(WadReading, AnotherFileReplacesTheOpenOneUnlessItIsAbsent) {
    Open(WadOf({"KEPT"}));
    wad.OpenWad(folder.Path("absent.wad"));
    wad.OpenWad(folder.Path());
    EXPECT_EQ(wad.LumpName(0), "KEPT");
    wad.OpenWad(wad.WadFileName());
    EXPECT_EQ(wad.LumpName(0), "KEPT");
    wad.OpenWad(folder.Write("text.txt", "no WAD at all"));
    EXPECT_EQ(wad.WadFileName() + wad.WadLumps() + wad.LumpName(0), "-1");
    EXPECT_EQ(wad.SeekLump(0), -1);
    EXPECT_EQ(wad.ReadLumpString(0), "");
}
