#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "wad/wad.h"
#include "wad_bytes.h"

using namespace std::string_literals;

struct WadWriting : testing::Test {
    std::string Bytes() { return folder.Read("new.wad"); }
    TempFolder folder;
    clsWad wad;
};

TEST_F(WadWriting, LaysTheFileOutByteForByteOverAnotherOne) {
    const std::string rest(28, '#');
    const std::string path = folder.Write("new.wad", "An old one: " + rest);
    std::string type = "pwad";
    ASSERT_TRUE(wad.CreateWad(path, type));
    EXPECT_EQ(type, "PWAD");
    EXPECT_EQ(Bytes(), Header("PWAD", -1, 12) + rest);
    ASSERT_TRUE(wad.WriteDirectory());
    EXPECT_EQ(Bytes(), Header("PWAD", 0, 12) + rest);
    EXPECT_EQ(wad.WastedSpace(), 28);

    ASSERT_TRUE(wad.AddLump("tenletters", "abc"));
    ASSERT_TRUE(wad.AddLump(" in b ", ""));
    ASSERT_TRUE(wad.AddLump("", "\0\xFF"s));
    EXPECT_EQ(wad.LumpName(0), "TENLETTE");
    wad.WadType(2);
    ASSERT_TRUE(wad.WriteDirectory());
    const std::string once = Bytes();
    EXPECT_EQ(once, Header("PWAD", 3, 17) + "abc\0\xFF"s + Entry(12, 3, "TENLETTE") +
                        Entry(15, 0, "IN B") + Entry(15, 2, ""));
    wad.WadType(0);
    ASSERT_TRUE(wad.WriteDirectory());
    EXPECT_EQ(Bytes(), "IWAD" + once.substr(4));
    EXPECT_EQ(wad.WastedSpace(), 0);
}

TEST_F(WadWriting, RefusalsChangeNothing) {
    EXPECT_FALSE(wad.AddLump("NOWHERE", "x"));
    EXPECT_FALSE(wad.WriteDirectory());
    wad.OpenWad(folder.Write("new.wad", WadOf({"KEPT"})));
    for (std::string type : {"", "WAD", "PWADS"}) {
        EXPECT_FALSE(wad.CreateWad(folder.Path("other.wad"), type));
    }
    EXPECT_EQ(wad.LumpName(0), "KEPT");
    EXPECT_EQ(folder.Count(), 1);
    std::string type = "PWAD";
    EXPECT_FALSE(wad.CreateWad(folder.Path("no folder\\x.wad"), type));
    EXPECT_EQ(wad.WadFileName() + wad.WadLumps(), "-1");
    wad.OpenWad(folder.Write("new.wad", "PWAD"));  // a directory inside the header
    EXPECT_FALSE(wad.AddLump("X", "x"));
}

TEST_F(WadWriting, AddsToAnOpenedFileOverItsDirectory) {
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"one lump", Header("PWAD", 1, 14) + "xy" + Entry(12, 2, "OLD") + "tail",
         Header("PWAD", 2, 16) + "xyzz" + Entry(12, 2, "OLD") + Entry(14, 2, "NEW")},
        {"unfinished", Header("PWAD", -1, 12) + "rest",
         Header("PWAD", 1, 14) + "zz" + Entry(12, 2, "NEW")},
        {"cut off entries", Header("PWAD", 3, 12) + Entry(12, 0, "OLD"),
         Header("PWAD", 4, 14) + "zz" + Entry(12, 0, "OLD") + Entry(0, 0, "") + Entry(0, 0, "") +
             Entry(12, 2, "NEW")},
    };
    for (const auto& [name, before, after] : rows) {
        SCOPED_TRACE(name);
        wad.OpenWad(folder.Write("new.wad", before));
        ASSERT_TRUE(wad.AddLump("new", "zz"));
        EXPECT_GE(wad.NumForName("new"), 0);
        ASSERT_TRUE(wad.WriteDirectory());
        EXPECT_EQ(Bytes(), after);
    }
}
