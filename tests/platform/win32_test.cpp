// What texts, files and programs are on Windows alone.
#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/shell.h"
#include "platform/win32/text.h"
#include "platform/win32/windows_headers.h"
#include "support/temp_folder.h"

namespace {

using platform::Wide;

TEST(WindowsText, IsUtf8OrElseWindows1252) {
    const std::pair<const char*, const wchar_t*> rows[] = {
        {"", L""},
        {"\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80", L"\x00e9\x4e2d\xd83d\xde00"},
        {"\x80 \xe9t\xc3\xa9", L"\x20ac \x00e9t\x00c3\x00a9"},
    };
    for (const auto& [bytes, wide] : rows) {
        EXPECT_EQ(Wide(bytes), wide) << bytes;
    }
    EXPECT_EQ(platform::Bytes(rows[1].second), rows[1].first);
    EXPECT_FALSE(platform::ErrorText(ERROR_FILE_NOT_FOUND).empty());
}

TEST(WindowsFiles, KeepToTheirAttributes) {
    const TempFolder folder;
    const std::string path = folder.Write("a.cfg", "old");
    const std::pair<DWORD, bool> rows[] = {
        {FILE_ATTRIBUTE_HIDDEN, false},
        {FILE_ATTRIBUTE_SYSTEM, false},
        {FILE_ATTRIBUTE_READONLY, true},
    };
    for (const auto& [attributes, isOrdinary] : rows) {
        SetFileAttributesW(Wide(path).c_str(), attributes);
        EXPECT_EQ(platform::IsOrdinaryFile(path), isOrdinary) << attributes;
        EXPECT_EQ(platform::ListFiles(folder.Path(), "*.cfg").size(), isOrdinary ? 1U : 0U);
    }
    EXPECT_FALSE(platform::ReplaceWholeFile(path, "new")) << "it is write-protected";
    EXPECT_EQ(folder.Read("a.cfg"), "old");
    EXPECT_EQ(folder.Count(), 1);
    SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(platform::File().Open("NUL", platform::File::Access::Read));
}

TEST(WindowsShell, DoesNotWaitForAProcessThatIsNone) {
    EXPECT_EQ(platform::WaitForSingleObject(platform::ProcessHandle(), 1), 0xFFFFFFFFU);
}

}  // namespace
