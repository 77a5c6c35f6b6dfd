#include <gtest/gtest.h>

#include "platform/posix/arguments.h"
#include "platform/posix/paths.h"
#include "support/temp_folder.h"

namespace {

using Strings = std::vector<std::string>;

TEST(Paths, BecomeNativeAtTheDoor) {
    EXPECT_EQ(platform::NativePath(R"(z:\games/port\)"), "/games/port/");
    EXPECT_EQ(platform::NativePath("Z:"), "/");
    EXPECT_EQ(platform::NativePath("D:readme.txt"), std::nullopt);
    EXPECT_EQ(platform::NativePath(std::string_view("/a\0b", 4)), std::nullopt);
}

TEST(Paths, AreShownNative) {
    EXPECT_EQ(platform::NativeText("a\\b\nsee Z:\\c\\d e\\f\r\ng\\h"),
              "a\\b\nsee /c/d e/f\r\ng\\h");
    EXPECT_EQ(platform::NativeText(R"(-iwad "z:\a b" -file "Z:\c")"), R"(-iwad "/a b" -file "/c")");
    EXPECT_EQ(platform::NativeText(R"(C:\a Z: Z:/ z)"), R"(C:\a Z: Z:/ z)");
}

TEST(Paths, AreFoundWhateverTheCase) {
    const TempFolder folder;
    const std::string root = folder.Native();
    for (const char* name : {"Maps/b.wad", "Maps/B.WAD", "MAPS/x", "port/Game", "port/real.EXE"}) {
        folder.Write(name, "");
    }
    std::filesystem::create_symlink("nowhere", folder.Native("loose"));
    EXPECT_EQ(platform::FindPath(folder.Path("Maps/b.WAD")), root + "/Maps/B.WAD");
    EXPECT_EQ(platform::FindPath(folder.Path("maps/b.wad")), std::nullopt) << "MAPS comes first";
    EXPECT_EQ(platform::FindPath(folder.Path("LOOSE")), root + "/loose");
    EXPECT_EQ(platform::FindPath(folder.Path("port/game/x")), std::nullopt);
    EXPECT_EQ(platform::TargetPath(folder.Path("PORT/New.lmp")), root + "/port/New.lmp");
    EXPECT_EQ(platform::FindProgram(folder.Path("port/game.EXE")), root + "/port/Game");
    EXPECT_EQ(platform::FindProgram(folder.Path("port/real.exe")), root + "/port/real.EXE");
    EXPECT_EQ(platform::FindProgram(folder.Path("port.exe")), std::nullopt);
}

TEST(Paths, UrlsAreTold) {
    EXPECT_TRUE(platform::IsUrl("X+1.-:"));
    for (const char* other : {R"(Z:\a)", "/a:b", "", "1a:", R"(a\b:c)", "plain"}) {
        EXPECT_FALSE(platform::IsUrl(other)) << other;
    }
}

TEST(Arguments, AreSplitAtBlanksOutsideQuotes) {
    EXPECT_EQ(platform::SplitArguments("   "), Strings());
    EXPECT_EQ(platform::SplitArguments(R"( -iwad  "a b.wad" "c" "" a"b c"d "open end)"),
              (Strings{"-iwad", "a b.wad", "c", "", "ab cd", "open end"}));
    EXPECT_EQ(platform::SplitArguments("a\\\"b c\\\\\"d a\tb 'c d'"),
              (Strings{R"(a\b c\\d)", "a\tb", "'c", "d'"}));
    EXPECT_EQ(platform::SplitArguments(R"("Z:\no such\a b" z:\n -xZ:\n C:\n)"),
              (Strings{"/no such/a b", "/n", R"(-xZ:\n)", R"(C:\n)"}));
}

}  // namespace
