// The contracts of files and facts, on every system.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/facts.h"
#include "support/temp_folder.h"

using platform::File;
using platform::Outcome;

namespace {

std::string ReadFrom(const File& file, std::int64_t position) {
    std::array<char, 64> buffer = {};
    std::size_t count = 0;
    EXPECT_TRUE(file.ReadAt(position, buffer.data(), buffer.size(), count));
    return {buffer.data(), count};
}

TEST(Files, AreReadAndWrittenAtAbsolutePositions) {
    const TempFolder folder;
    File file;
    EXPECT_NE(file.Open(folder.Path("a.bin"), File::Access::ReadWrite).reason, "");
    EXPECT_FALSE(file.IsOpen());
    const Outcome created = file.Open(folder.Path("a.bin"), File::Access::Create);
    ASSERT_TRUE(created) << created.reason;
    EXPECT_TRUE(file.WriteAt(4, std::string_view("b\0\r\n\xff", 5)));
    EXPECT_TRUE(file.WriteAt(0, "aa"));
    EXPECT_TRUE(file.Flush());
    EXPECT_EQ(file.Size(), 9);
    EXPECT_EQ(ReadFrom(file, 1), std::string("a\0\0b\0\r\n\xff", 8));
    EXPECT_EQ(ReadFrom(file, 9), "");
    std::size_t count = 1;
    EXPECT_NE(file.ReadAt(-1, nullptr, 1, count).reason, "");
    EXPECT_EQ(count, 0U);
    File reader;
    ASSERT_TRUE(reader.Open(folder.Path("A.BIN"), File::Access::Read));
    EXPECT_EQ(ReadFrom(reader, 0), ReadFrom(file, 0));
    EXPECT_FALSE(reader.WriteAt(0, "x"));
    EXPECT_TRUE(reader.Open(folder.Path("a.bin"), File::Access::Create));
    EXPECT_EQ(reader.Size(), 9);
}

TEST(Files, OnlyRegularFilesAreOrdinary) {
    const TempFolder folder;
    folder.Write("sub/Name.Wad", "x");
    EXPECT_TRUE(platform::IsOrdinaryFile(folder.Path("SUB/name.wad")));
    EXPECT_TRUE(platform::Exists(folder.Path("sub")));
    EXPECT_FALSE(platform::IsOrdinaryFile(folder.Path("sub")));
    EXPECT_FALSE(platform::Exists(folder.Path("none")));
    EXPECT_FALSE(platform::IsOrdinaryFile(""));
    EXPECT_FALSE(File().Open(folder.Path("sub"), File::Access::Read));

    EXPECT_EQ(platform::LookUpFileName(folder.Path("sub/NAME.wad")), "Name.Wad");
    EXPECT_EQ(platform::LookUpFileName(folder.Path("sub")), "");
    EXPECT_EQ(platform::LookUpFileName("https://example.org/a.txt"), std::nullopt);
    EXPECT_EQ(platform::LookUpFileName("X+1.-:"), std::nullopt);
    for (const char* other : {"Y:\\a", "/a:b", "", "1a:", "a\\b:c", "plain"}) {
        EXPECT_EQ(platform::LookUpFileName(other), "") << other;
    }
}

TEST(Files, AreListedByPatternInNameOrder) {
    const TempFolder folder;
    const std::string foreign = "jeu \xc3\xa9t\xc3\xa9 \xe4\xb8\xad.lmp";
    EXPECT_TRUE(platform::ReplaceWholeFile(folder.Path() + '\\' + foreign, "x"));
    EXPECT_EQ(platform::LookUpFileName(folder.Path() + '\\' + foreign), foreign);
    for (const char* name : {"b.cfg", "A.CFG", "_.cfg", "c.cfg2", "cfg", "a.b.cfg", "z.txt"}) {
        folder.Write(name, "");
    }
    folder.Write("dir.cfg/inside.cfg", "");
    const std::pair<const char*, std::vector<std::string>> rows[] = {
        {"*.cfg", {"a.b.cfg", "A.CFG", "b.cfg", "_.cfg"}},
        {"?.cfg", {"A.CFG", "b.cfg", "_.cfg"}},
        {"*.*.cfg", {"a.b.cfg"}},
        {"Z.TXT", {"z.txt"}},
        {"*.lmp", {foreign}},
        {"*.wad", {}},
    };
    for (const auto& [pattern, names] : rows) {
        EXPECT_EQ(platform::ListFiles(folder.Path(), pattern), names) << pattern;
    }
    EXPECT_TRUE(platform::ListFiles(folder.Path("none"), "*").empty());
}

TEST(WholeFiles, ReplaceTheOldOne) {
    const TempFolder folder;
    const std::string bytes = std::string(100000, 'x') + std::string("\0\r\n\xff", 4);
    folder.Write(".zorvane-99999999-0123", "of a killed run: no process has this id");
    EXPECT_FALSE(platform::ReplaceWholeFile(folder.Path("none/new.cfg"), "x"));
    EXPECT_EQ(folder.Count(), 1);
    folder.Write(".zorvane-notes", "not a temporary file");
    EXPECT_TRUE(platform::ReplaceWholeFile(folder.Path("new.cfg"), "first"));
    EXPECT_EQ(folder.Read("new.cfg"), "first");
    EXPECT_EQ(folder.Count(), 2);
    EXPECT_TRUE(platform::ReplaceWholeFile(folder.Path("NEW.cfg"), bytes));
    const std::ofstream otherProgram(folder.Native("new.cfg"), std::ios::app);
    std::string read;
    EXPECT_TRUE(platform::ReadWholeFile(folder.Path("new.cfg"), read));
    EXPECT_EQ(read, bytes);
    EXPECT_EQ(folder.Count(), 2);

    EXPECT_FALSE(platform::ReplaceWholeFile(folder.Path(), "x"));
    EXPECT_NE(platform::ReadWholeFile(folder.Path("none"), read).reason, "");
    EXPECT_EQ(read, "");
}

TEST(WholeFiles, AreRefusedAbove64MiB) {
    const TempFolder folder;
    const std::string path = folder.Write("a.cfg", "old");
    EXPECT_NE(platform::ReplaceWholeFile(path, std::string((64 << 20) + 1, 'x')).reason, "");
    EXPECT_EQ(folder.Read("a.cfg"), "old");
    File file;
    EXPECT_TRUE(file.Open(path, File::Access::ReadWrite));
    EXPECT_TRUE(file.WriteAt(std::int64_t{64} << 20, "x"));
    std::string read;
    EXPECT_NE(platform::ReadWholeFile(path, read).reason, "");
}

TEST(WholeFiles, AreCopiedAndRemoved) {
    const TempFolder folder;
    const std::string bytes(200000, 'd');
    const std::string from = folder.Write("temp.lmp", bytes);
    const std::string to = folder.Write("old.lmp", "old");
    EXPECT_TRUE(platform::CopyWholeFile(from, to));
    EXPECT_FALSE(platform::CopyWholeFile(from, folder.Path("TEMP.lmp")).reason.empty());
    EXPECT_FALSE(platform::CopyWholeFile(from, folder.Path("none/a.lmp")));
    EXPECT_FALSE(platform::CopyWholeFile(folder.Path("none.lmp"), to));
    EXPECT_EQ(folder.Read("old.lmp"), bytes);
    EXPECT_EQ(folder.Read("temp.lmp"), bytes);
    EXPECT_TRUE(platform::RemoveFile(folder.Path("Temp.lmp")));
    EXPECT_FALSE(platform::RemoveFile(from));
    EXPECT_EQ(folder.Count(), 1);
}

TEST(Facts, AreTheProgramsOwn) {
    const std::string folder = platform::ProgramDirectory();
    EXPECT_FALSE(folder.ends_with('\\'));
    EXPECT_FALSE(platform::ListFiles(folder, "test_platform*").empty()) << folder;
    const auto [major, minor, revision] = platform::ProgramVersion();
    EXPECT_EQ(std::to_string(major) + '.' + std::to_string(minor) + '.' + std::to_string(revision),
              PROJECT_VERSION_TEXT);
    EXPECT_EXIT(platform::EndProcess(), testing::ExitedWithCode(0), "");
}

}  // namespace
