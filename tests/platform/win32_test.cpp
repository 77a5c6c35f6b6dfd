// Texts, files and programs of Windows.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <io.h>

#include "platform/files.h"
#include "platform/shell.h"
#include "platform/win32/replace_file.h"
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

TEST(WindowsFiles, AReadErrorIsNotTheEnd) {
    const TempFolder folder;
    folder.Write("a.cfg", "text");
    const platform::File file(_wopen(folder.Native("a.cfg").c_str(), _O_WRONLY));
    char byte = 0;
    std::size_t count = 1;
    EXPECT_NE(file.ReadAt(0, &byte, 1, count).reason, "");
    EXPECT_EQ(count, 0U);
}

/// The calls that MoveOver makes, each failing with an error of its own at first.
struct FailingCalls {
    std::vector<DWORD> replaceErrors;
    std::vector<DWORD> moveErrors;
    DWORD slept = 0;
    std::string done = {};
};
FailingCalls* failing = nullptr;

BOOL Next(std::vector<DWORD>& errors, const char* call) {
    if (!errors.empty()) {
        SetLastError(errors.front());
        errors.erase(errors.begin());
        return FALSE;
    }
    failing->done += call;
    return TRUE;
}

TEST(WindowsFiles, AreReplacedAfterPassingErrors) {
    const platform::ReplaceCalls calls = {
        [](const wchar_t*, const wchar_t*, const wchar_t*, DWORD, void*, void*) {
            return Next(failing->replaceErrors, "replaced");
        },
        [](const wchar_t*, const wchar_t*, DWORD) { return Next(failing->moveErrors, "moved"); },
        [](DWORD milliseconds) { failing->slept += milliseconds; },
    };
    const std::vector<DWORD> forever(1000, ERROR_SHARING_VIOLATION);
    const std::pair<FailingCalls, const char*> rows[] = {
        {{{5, 32, 33, 1175}, {}}, "replaced"},
        {{{1176}, {}}, "moved"},
        {{{32, 1177, 2}, {5}}, "moved"},
        {{{ERROR_INVALID_FUNCTION}, {}}, "moved"},
        {{forever, {}}, "moved"},
        {{forever, forever}, ""},
        {{{1176}, {ERROR_DISK_FULL}}, ""},
    };
    for (auto [row, done] : rows) {
        failing = &row;
        const platform::Outcome outcome = platform::MoveOver(L"new", L"old", calls);
        EXPECT_EQ(row.done, done);
        EXPECT_EQ(outcome.reason.empty(), outcome.ok);
        EXPECT_LE(row.slept, 2000U);
    }
}

TEST(WindowsShell, DoesNotWaitWithoutAProcess) {
    EXPECT_EQ(platform::WaitForSingleObject(platform::ProcessHandle(), 1), 0xFFFFFFFFU);
}

}  // namespace
