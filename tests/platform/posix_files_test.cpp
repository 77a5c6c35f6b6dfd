// Files, paths and arguments of Linux.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/facts.h"
#include "platform/files.h"
#include "platform/posix/arguments.h"
#include "platform/posix/paths.h"
#include "support/temp_folder.h"

using platform::File;

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

TEST(PosixFiles, PipesDevicesAndHiddenFilesAreNotOrdinary) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.Native("pipe.wad").c_str(), 0666), 0);
    folder.Write(".hidden.wad", "x");
    fs::create_symlink(folder.Native("a.wad"), folder.Native("link.wad"));
    EXPECT_FALSE(platform::IsOrdinaryFile(folder.Path("link.wad")));
    folder.Write("a.wad", "x");
    EXPECT_TRUE(platform::IsOrdinaryFile(folder.Path("link.wad")));
    for (const char* name : {"pipe.wad", ".hidden.wad"}) {
        EXPECT_FALSE(platform::IsOrdinaryFile(folder.Path(name))) << name;
        EXPECT_TRUE(platform::Exists(folder.Path(name))) << name;
    }
    for (const auto access : {File::Access::Read, File::Access::ReadWrite, File::Access::Create}) {
        EXPECT_FALSE(File().Open(folder.Path("pipe.wad"), access));
        EXPECT_FALSE(File().Open("/dev/null", access));
    }
    EXPECT_FALSE(platform::ReplaceWholeFile(folder.Path("pipe.wad"), "x"));
    File link;
    EXPECT_TRUE(link.Open(folder.Path("link.wad"), File::Access::Read));
    EXPECT_NE(fcntl(link.Handle(), F_GETFD) & FD_CLOEXEC, 0) << "open in started programs";
    EXPECT_EQ(platform::ListFiles(folder.Path(), "*.wad"), (Strings{"a.wad", "link.wad"}));
    EXPECT_EQ(platform::LookUpFileName(folder.Path(".hidden.wad")), "");
    folder.Write("a:b.txt", "");
    EXPECT_EQ(platform::LookUpFileName(folder.Path("A:b.txt")), "a:b.txt");
}

TEST(PosixFiles, ReplacingKeepsPermissionsAndFollowsLinks) {
    const TempFolder folder;
    folder.Write("real/a.cfg", "old");
    fs::permissions(folder.Native("real/a.cfg"), fs::perms(0604));
    const mode_t mask = umask(026);
    for (const auto& [name, rights] : {std::pair("a.cfg", 0604), {"b.cfg", 0640}}) {
        const std::string real = std::string("real/") + name;
        fs::create_symlink(real, folder.Native(name));
        EXPECT_TRUE(platform::ReplaceWholeFile(folder.Path(name), "new"));
        EXPECT_TRUE(fs::is_symlink(folder.Native(name)));
        EXPECT_EQ(folder.Read(real), "new");
        EXPECT_EQ(fs::status(folder.Native(real)).permissions(), fs::perms(rights));
    }
    umask(mask);
    fs::create_symlink("real/loop", folder.Native("loop"));
    fs::create_symlink("../loop", folder.Native("real/loop"));
    EXPECT_NE(platform::ReplaceWholeFile(folder.Path("loop"), "x").reason, "");
    EXPECT_TRUE(platform::Exists(folder.Path("loop")));
    fs::create_symlink("nowhere", folder.Native("dangling"));
    EXPECT_FALSE(platform::Exists(folder.Path("dangling"))) << "it can still be created";
    fs::create_hard_link(folder.Native("real/a.cfg"), folder.Native("same"));
    EXPECT_FALSE(platform::CopyWholeFile(folder.Path("a.cfg"), folder.Path("same")));
}

TEST(PosixFacts, OwnArgumentsAreFullPathsInQuotes) {
    const TempFolder folder;
    const fs::path before = fs::current_path();
    fs::create_directories(folder.Native("deep/er"));
    fs::create_directory_symlink("deep/er", folder.Native("link"));
    fs::current_path(folder.Native());
    const std::string here = folder.Path();
    const std::pair<std::vector<const char*>, std::string> rows[] = {
        {{}, ""},
        {{"zorvane", "/a b/c.wad", "Z:\\d.wad"}, R"("Z:\a b\c.wad" "Z:\d.wad")"},
        {{"zorvane", "./x.wad"}, '"' + here + "\\x.wad\""},
        {{"zorvane", "link/../z.wad"}, '"' + here + "\\deep\\z.wad\""},
        {{"zorvane", "/-", "--", "/--", "--help"}, R"("Z:\-" "Z:\--" ")" + here + "\\--help\""},
        {{"zorvane", "C:\\e.wad", "a\"b", "c\\d.wad", ""}, R"("C:\e.wad" "")"},
    };
    folder.Write("c\\d.wad", "");
    for (auto [arguments, text] : rows) {
        EXPECT_EQ(platform::InitializeProcess(static_cast<int>(arguments.size()),
                                              const_cast<char**>(arguments.data())),
                  std::nullopt);
        EXPECT_EQ(platform::OwnCommandLine(), text);
    }
    EXPECT_EQ(platform::RefusalReasons(), (Strings{platform::CheckNativeName("a\"b").reason,
                                                   platform::CheckNativeName("c\\d.wad").reason}));
    fs::current_path(before);
}

TEST(Paths, AreConvertedAndShownNative) {
    EXPECT_EQ(platform::NativePath(R"(z:\games/port\)"), "/games/port/");
    EXPECT_EQ(platform::NativePath("Z:"), "/");
    EXPECT_EQ(platform::NativePath("D:readme.txt"), std::nullopt);
    EXPECT_EQ(platform::NativePath(std::string_view("/a\0b", 4)), std::nullopt);
    EXPECT_EQ(platform::NativeText("a\\b\nsee Z:\\c\\d e\\f\r\ng\\h"),
              "a\\b\nsee /c/d e/f\r\ng\\h");
    EXPECT_EQ(platform::NativeText(R"(-iwad "z:\a b" -file "Z:\c")"), R"(-iwad "/a b" -file "/c")");
    EXPECT_EQ(platform::NativeText(R"(C:\a Z: Z:/ z)"), R"(C:\a Z: Z:/ z)");
}

TEST(Paths, AreFoundInAnyCase) {
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
    EXPECT_EQ(platform::LookUpFileName(folder.Path("port/game.EXE")), "game.EXE");
    EXPECT_FALSE(platform::IsOrdinaryFile(folder.Path("port/game.EXE")));
    EXPECT_EQ(platform::FindProgram(folder.Path("port/real.exe")), root + "/port/real.EXE");
    EXPECT_EQ(platform::FindProgram(folder.Path("port.exe")), std::nullopt);

    platform::FolderNames names;
    EXPECT_EQ(names.Find(root, "none"), nullptr);
    folder.Write("None", "");
    EXPECT_EQ(names.Find(root, "none"), nullptr) << "a folder is listed once";
}

TEST(Arguments, AreSplitAtSpacesOutsideQuotes) {
    EXPECT_EQ(platform::SplitArguments("   "), Strings());
    EXPECT_EQ(platform::SplitArguments(R"( -iwad  "a b.wad" "c" "" a"b c"d "open end)"),
              (Strings{"-iwad", "a b.wad", "c", "", "ab cd", "open end"}));
    EXPECT_EQ(platform::SplitArguments("a\\\"b c\\\\\"d a\tb 'c d'"),
              (Strings{R"(a\b c\\d)", "a\tb", "'c", "d'"}));
    EXPECT_EQ(platform::SplitArguments(R"("Z:\no such\a b" z:\n -xZ:\n C:\n)"),
              (Strings{"/no such/a b", "/n", R"(-xZ:\n)", R"(C:\n)"}));
}

}  // namespace
