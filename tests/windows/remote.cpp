#include "remote.h"

#include <shlobj.h>

#include <cstdint>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "platform/win32/control_ids.h"
#include "platform/win32/text.h"

namespace remote {
namespace {

constexpr int Patience = 20000;  // milliseconds
constexpr wchar_t DialogClass[] = L"#32770";
int failures = 0;
std::string pictureFolder;

/// The field for the name in a file dialog: a combo box in newer ones, an edit field in older ones.
HWND NameField(HWND dialog) {
    constexpr int Combo = 0x47c;
    constexpr int Edit = 0x480;
    const HWND combo = GetDlgItem(dialog, Combo);
    return combo != nullptr ? combo : GetDlgItem(dialog, Edit);
}

/// A text in the memory of another program.
class RemoteText {
  public:
    RemoteText(HWND window, const std::string& text) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, id);
        address_ = VirtualAllocEx(process_, nullptr, text.size() + 1, MEM_COMMIT, PAGE_READWRITE);
        WriteProcessMemory(process_, address_, text.c_str(), text.size() + 1, nullptr);
    }
    RemoteText(const RemoteText&) = delete;
    RemoteText& operator=(const RemoteText&) = delete;
    ~RemoteText() {
        VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    LPARAM Address() const { return reinterpret_cast<LPARAM>(address_); }

  private:
    HANDLE process_;
    void* address_;
};

std::string ItemText(HWND list, int row) {
    std::wstring text(
        static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0)) +
            1,
        L'\0');
    SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    return platform::Bytes(text.c_str());
}

}  // namespace

Program::Program(const std::string& file, const std::string& arguments) {
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    std::wstring line = platform::Wide("\"" + file + "\" " + arguments);
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process_)) {
        throw std::runtime_error("cannot start " + file);
    }
}

Program::~Program() {
    TerminateProcess(process_.hProcess, 1);  // does nothing to one that has ended
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

DWORD Program::End() {
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process_.hProcess, Patience);
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

void Check(bool right, const std::string& what) {
    std::cout << (right ? "  ok      " : "  FAILED  ") << what << std::endl;
    failures += right ? 0 : 1;
}

void CheckEqual(const std::string& got, const std::string& wanted, const std::string& what) {
    Check(got == wanted, what);
    if (got != wanted) {
        std::cout << "    got     [" << got << "]\n    wanted  [" << wanted << "]" << std::endl;
    }
}

int Failures() {
    return failures;
}

void WaitUntil(const std::function<bool()>& isSo, const std::string& what) {
    constexpr int Step = 10;
    for (int waited = 0; !isSo(); waited += Step) {
        if (waited > Patience) {
            TakePicture(GetForegroundWindow(), "stuck");
            throw std::runtime_error("waited in vain for " + what);
        }
        Sleep(Step);
    }
}

HWND WaitForWindow(const wchar_t* className, const std::string& caption) {
    HWND window = nullptr;
    WaitUntil(
        [&] {
            window = FindWindowW(className, platform::Wide(caption).c_str());
            return window != nullptr && IsWindowVisible(window) && IsWindowEnabled(window);
        },
        "the window " + caption);
    return window;
}

HWND WaitForOurs(const std::string& caption) {
    return WaitForWindow(platform::WindowClassName, caption);
}

void WaitUntilGone(HWND window) {
    WaitUntil([&] { return !IsWindow(window) || !IsWindowVisible(window); }, "a window to close");
}

HWND ControlIn(HWND window, const toolkit::Control& control) {
    return GetDlgItem(window, platform::ControlId(control.Owner().Table(), control.Row()));
}

void Press(HWND button) {
    PostMessageW(button, BM_CLICK, 0, 0);
}

void Type(HWND field, const std::string& text) {
    SendMessageW(field, EM_SETSEL, 0, -1);
    SendMessageW(field, WM_CHAR, VK_BACK, 1);
    for (const wchar_t character : platform::Wide(text)) {
        SendMessageW(field, WM_CHAR, character, 1);
    }
}

void PressKeys(HWND control, WPARAM key, int times) {
    for (int i = 0; i < times; ++i) {
        SendMessageW(control, WM_KEYDOWN, key, 1);
        SendMessageW(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }
}

void ChooseRow(HWND list, int row) {
    PressKeys(list, VK_HOME);
    PressKeys(list, VK_DOWN, row);
}

void Release(HWND control, UINT message, int x, int y) {
    PostMessageW(control, message, 0, MAKELPARAM(x, y));
}

std::string TextOf(HWND control) {
    wchar_t text[1024] = L"";
    SendMessageW(control, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return platform::Bytes(text);
}

std::vector<std::string> RowsOf(HWND listBox) {
    std::vector<std::string> rows(
        static_cast<std::size_t>(SendMessageW(listBox, LB_GETCOUNT, 0, 0)));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row] = ItemText(listBox, static_cast<int>(row));
    }
    return rows;
}

int RowChosenIn(HWND comboBox) {
    return static_cast<int>(SendMessageW(comboBox, CB_GETCURSEL, 0, 0));
}

bool IsChecked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void AnswerFileDialog(const std::string& title, const std::string& name) {
    const HWND dialog = WaitForWindow(DialogClass, title);
    WaitUntil([&] { return NameField(dialog) != nullptr; }, "the field for the file name");
    SendMessageW(NameField(dialog), WM_SETTEXT, 0,
                 reinterpret_cast<LPARAM>(platform::Wide(name).c_str()));
    TakePicture(dialog, "file-dialog");
    PostMessageW(dialog, WM_COMMAND, name.empty() ? IDCANCEL : IDOK, 0);
    WaitUntilGone(dialog);
}

void AnswerFolderDialog(const std::string& folder) {
    const HWND dialog = WaitForWindow(DialogClass, "Browse for Folder");
    const RemoteText path(dialog, folder);
    SendMessageW(dialog, BFFM_SETSELECTIONA, TRUE, path.Address());
    TakePicture(dialog, "folder-dialog");
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    WaitUntilGone(dialog);
}

std::string AnswerMessage() {
    const HWND dialog = WaitForWindow(DialogClass, "Zorvane");
    constexpr int MessageText = 0xffff;
    std::string text = TextOf(GetDlgItem(dialog, MessageText));
    TakePicture(dialog, "message");
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    WaitUntilGone(dialog);
    return text;
}

void PutPicturesInto(const std::string& folder) {
    pictureFolder = folder;
}

void TakePicture(HWND window, const std::string& name) {
    if (pictureFolder.empty()) {
        return;
    }
    constexpr int TimeToDraw = 300;
    Sleep(TimeToDraw);
    RECT place = {};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    BITMAPINFOHEADER facts = {sizeof facts, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    void* pixels = nullptr;
    const HBITMAP bitmap = CreateDIBSection(memory, reinterpret_cast<const BITMAPINFO*>(&facts),
                                            DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const auto size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
    constexpr std::uint32_t Before = sizeof(BITMAPFILEHEADER) + sizeof facts;
    const BITMAPFILEHEADER head = {0x4d42, static_cast<DWORD>(Before + size), 0, 0, Before};
    std::ofstream file(pictureFolder + "\\" + name + ".bmp", std::ios::binary);
    file.write(reinterpret_cast<const char*>(&head), sizeof head);
    file.write(reinterpret_cast<const char*>(&facts), sizeof facts);
    file.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(size));
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

}  // namespace remote
