// What files and texts are on Windows alone: attributes, and names that are not ASCII.
#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/win32/text.h"
#include "platform/win32/windows_headers.h"
#include "support/temp_folder.h"

namespace {

using platform::Bytes;
using platform::Wide;

TEST(WindowsText, IsUtf8OrElseWindows1252) {
    const struct {
        const char* bytes;
        const wchar_t* wide;
    } rows[] = {
        {"", L""},
        {"plain", L"plain"},
        {"\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80", L"\x00e9\x4e2d\xd83d\xde00"},
        {"\xe9t\xe9", L"\x00e9t\x00e9"},
        {"\x80 \xc3\xa9", L"\x20ac \x00c3\x00a9"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Wide(row.bytes), row.wide) << row.bytes;
    }
    EXPECT_EQ(Bytes(rows[2].wide), rows[2].bytes);
    EXPECT_FALSE(platform::ErrorText(ERROR_FILE_NOT_FOUND).empty());
}

TEST(WindowsFiles, HiddenSystemAndDeviceFilesAreNotOrdinary) {
    const TempFolder folder;
    const std::string path = folder.Write("a.cfg", "x");
    const struct {
        DWORD attributes;
        bool ordinary;
    } rows[] = {
        {FILE_ATTRIBUTE_READONLY, true},
        {FILE_ATTRIBUTE_HIDDEN, false},
        {FILE_ATTRIBUTE_SYSTEM, false},
        {FILE_ATTRIBUTE_NORMAL, true},
    };
    for (const auto& row : rows) {
        SetFileAttributesW(Wide(path).c_str(), row.attributes);
        EXPECT_EQ(platform::IsOrdinaryFile(path), row.ordinary) << row.attributes;
        EXPECT_EQ(platform::ListFiles(folder.Path(), "*.cfg").size(), row.ordinary ? 1U : 0U);
    }
    EXPECT_FALSE(platform::File::Open("NUL", platform::File::Access::Read).IsOpen());
}

TEST(WindowsFiles, AWriteProtectedFileIsNotReplaced) {
    const TempFolder folder;
    const std::string path = folder.Write("zorvane.cfg", "old");
    SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(platform::ReplaceWholeFile(path, "new"));
    EXPECT_EQ(folder.Read("zorvane.cfg"), "old");
    EXPECT_EQ(folder.Count(), 1);
    SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsFiles, NamesKeepTheirLetters) {
    const TempFolder folder;
    const std::string name = "jeu \xc3\xa9t\xc3\xa9 \xe4\xb8\xad.wad";
    EXPECT_TRUE(platform::ReplaceWholeFile(folder.Path() + "\\" + name, "x"));
    EXPECT_EQ(platform::ListFiles(folder.Path(), "*.wad"), std::vector<std::string>{name});
    EXPECT_EQ(platform::LookUpFileName(folder.Path() + "\\" + name), name);
    EXPECT_TRUE(platform::RemoveFile(folder.Path() + "\\" + name));
}

TEST(WindowsFiles, AreReadWhileAnotherProgramHasThemOpen) {
    const TempFolder folder;
    const std::string path = folder.Write("demo.lmp", "x");
    const HANDLE other =
        CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    platform::Outcome outcome;
    EXPECT_EQ(platform::ReadWholeFile(path, outcome), "x");
    EXPECT_TRUE(outcome) << outcome.reason;
    CloseHandle(other);
}

}  // namespace
