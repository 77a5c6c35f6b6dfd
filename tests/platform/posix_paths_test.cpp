#include <gtest/gtest.h>

#include "platform/posix/arguments.h"
#include "platform/posix/paths.h"
#include "support/temp_folder.h"

namespace {

TEST(Paths, BecomeNativeAtTheDoor) {
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {R"(z:\games/port\)", "/games/port/"},
        {"Z:", "/"},
        {R"(/games/port\game.exe)", "/games/port/game.exe"},
        {R"(docs\a.txt)", "docs/a.txt"},
        {"D:readme.txt", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [path, native] : rows) {
        EXPECT_EQ(platform::NativePath(path), native) << path;
    }
    EXPECT_EQ(platform::NativePath(std::string_view("/a\0b", 4)), std::nullopt);
    EXPECT_EQ(platform::WindowsPath("/home/u/doom.wad"), R"(Z:\home\u\doom.wad)");
}

TEST(Paths, AreShownNative) {
    const std::pair<const char*, const char*> rows[] = {
        {R"(Demo: z:\a\b.lmp)", "Demo: /a/b.lmp"},
        {"a\\b\nsee Z:\\c\\d e\\f\r\ng\\h", "a\\b\nsee /c/d e/f\r\ng\\h"},
        {R"(-iwad "Z:\a b" -file "Z:\c")", R"(-iwad "/a b" -file "/c")"},
        {R"(C:\a Z: Z:/ z)", R"(C:\a Z: Z:/ z)"},
    };
    for (const auto& [text, shown] : rows) {
        EXPECT_EQ(platform::NativeText(text), shown);
    }
}

TEST(Paths, AreFoundWhateverTheCase) {
    const TempFolder folder;
    const std::string root = folder.Native();
    for (const char* name : {"Maps/b.wad", "Maps/B.WAD", "MAPS/x", "port/Game", "port/real.EXE"}) {
        folder.Write(name, "");
    }
    std::filesystem::create_symlink("nowhere", folder.Native("loose"));
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"Maps/b.wad", "/Maps/b.wad"}, {"maps/b.wad", std::nullopt},  // the first folder decides
        {"Maps/b.WAD", "/Maps/B.WAD"}, {"LOOSE", "/loose"},
        {"PORT/game", "/port/Game"},   {"port/game/x", std::nullopt},
    };
    for (const auto& [path, found] : rows) {
        const auto native = found ? std::optional(root + *found) : std::nullopt;
        EXPECT_EQ(platform::FindPath(folder.Path(path)), native) << path;
    }
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
    const std::pair<const char*, std::vector<std::string>> rows[] = {
        {"   ", {}},
        {" -iwad  a.wad ", {"-iwad", "a.wad"}},
        {R"(-file "a b.wad" "c.wad")", {"-file", "a b.wad", "c.wad"}},
        {R"("" x "")", {"", "x", ""}},
        {R"(a"b c"d)", {"ab cd"}},
        {R"(a "b c)", {"a", "b c"}},
        {R"(a\"b c\\"d)", {R"(a\b c\\d)"}},
        {"a\tb 'c d'", {"a\tb", "'c", "d'"}},
        {R"("Z:\no such\a b" z:\n -xZ:\n C:\n +map)",
         {"/no such/a b", "/n", R"(-xZ:\n)", R"(C:\n)", "+map"}},
    };
    for (const auto& [text, arguments] : rows) {
        EXPECT_EQ(platform::SplitArguments(text), arguments) << text;
    }
}

}  // namespace
