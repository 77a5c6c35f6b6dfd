// The dialogs on Windows, answered from a timer, as they run event loops of their own.
#include <gtest/gtest.h>

#include <functional>

#include "dialogs/dialogs.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "platform/win32/text.h"
#include "platform/win32/windows_headers.h"
#include "support/temp_folder.h"
#include "toolkit/desktop.h"
#include "toolkit/dialogs.h"

using namespace std::string_literals;

namespace {

std::wstring awaited;
std::function<void(HWND)> answer;

void CALLBACK AnswerWhenOpen(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    constexpr int Enough = 25;  // some dialogs fill their lists after they are shown
    static int rounds = 0;
    const HWND dialog = FindWindowW(nullptr, awaited.c_str());
    rounds = dialog != nullptr && IsWindowVisible(dialog) ? rounds + 1 : 0;
    if (rounds == Enough) {
        rounds = 0;
        KillTimer(nullptr, timer);
        answer(dialog);
    }
}

/// Calls `steps` with the next window of that title.
void InNext(const wchar_t* title, std::function<void(HWND)> steps) {
    awaited = title;
    answer = std::move(steps);
    SetTimer(nullptr, 0, 20, AnswerWhenOpen);
}

std::string TextOf(HWND window) {
    wchar_t text[1024] = L"";
    SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return platform::Bytes(text);
}

void SetText(HWND window, const std::string& text) {
    SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(platform::Wide(text).c_str()));
}

void Press(HWND dialog, WPARAM button) {
    PostMessageW(dialog, WM_COMMAND, button, 0);
}

TEST(WindowsDialogs, ReturnTheFilesPicked) {
    const TempFolder folder;
    std::string longName;  // 95 characters, but more than 256 bytes
    for (int i = 0; i < 90; ++i) {
        longName += i == 40 ? "\\" : "\xe6\xbc\xa2";
    }
    const std::string sub = folder.Path() + '\\' + longName.substr(0, 120);
    EXPECT_TRUE(CreateDirectoryW(platform::Wide(sub).c_str(), nullptr));
    for (const std::string& name : {"a b.deh"s, "caf\xc3\xa9.wad"s, longName}) {
        EXPECT_TRUE(platform::ReplaceWholeFile(folder.Path() + '\\' + name, ""));
    }
    const std::pair<std::string, std::string> rows[] = {
        {"\"a b.deh\" \"caf\xc3\xa9.wad\"", folder.Path() + "\0a b.deh\0caf\xc3\xa9.wad"s},
        {longName, folder.Path() + '\\' + longName},
        {"", ""},
    };
    for (const auto& [typed, picked] : rows) {
        desktop::OpenFileName record = {.lpstrFilter = "All files (*.*)\0*.*\0"s,
                                        .lpstrInitialDir = folder.Path(),
                                        .lpstrTitle = "Pick",
                                        .Flags = SeveralFilesFlags};
        InNext(L"Pick", [&](HWND dialog) {
            for (const int field : {0x480, 0x47c}) {  // an edit field, in newer dialogs a combo box
                if (const HWND name = GetDlgItem(dialog, field)) {
                    SetText(name, typed);
                }
            }
            Press(dialog, typed.empty() ? IDCANCEL : IDOK);
        });
        EXPECT_EQ(desktop::GetOpenFileNameA(record), !picked.empty());
        EXPECT_EQ(record.lpstrFile.substr(0, picked.size()), picked);
    }
}

TEST(WindowsDialogs, ChooseFoldersAndAskForALine) {
    for (const WPARAM button : {IDOK, IDCANCEL}) {
        InNext(L"Browse for Folder", [&](HWND dialog) { Press(dialog, button); });
        const std::string chosen = desktop::BrowseForFolderPath({nullptr, "Where?"});
        EXPECT_EQ(platform::Exists(chosen), button == IDOK) << chosen;
    }
    for (const char* typed : {"d\xc3\xb6", ""}) {
        InNext(L"Enter a name", [&](HWND box) {
            const HWND field = FindWindowExW(box, nullptr, L"Edit", nullptr);
            EXPECT_EQ(TextOf(field), "Doom");
            SetText(field, typed);
            const wchar_t* button = *typed != '\0' ? L"OK" : L"Cancel";
            PostMessageW(FindWindowExW(box, nullptr, L"Button", button), BM_CLICK, 0, 0);
        });
        EXPECT_EQ(desktop::AskForText("Name?", "Enter a name", "Doom"), typed);
    }
}

TEST(WindowsDialogs, ShowMessagesAndHandleEventsUntilAProcessEnds) {
    InNext(L"Zorvane", [](HWND box) {
        EXPECT_EQ(TextOf(GetDlgItem(box, 0xffff)), "One\r\ntwo");
        Press(box, IDOK);
    });
    desktop::ShowMessage("One\r\ntwo", "Zorvane", desktop::MessageIcon::Critical);

    platform::ShellExecuteInfo info = {
        platform::SeeMaskNoCloseProcess, "C:\\windows\\system32\\cmd.exe", "/c exit", "", 0, {}};
    ASSERT_TRUE(platform::ShellExecuteExA(info));
    desktop::RunEventsUntilEnd(info.hProcess);
    EXPECT_EQ(platform::WaitForSingleObject(info.hProcess, 0), 0U);
}

}  // namespace
