#include "remote.h"

#include <objidl.h>
#include <shlobj.h>

#include <iostream>
#include <stdexcept>

// Behind the others, whose names it uses.
#include <gdiplus.h>

#include "platform/win32/text.h"

namespace remote {
namespace {

constexpr int Patience = 20000;  // milliseconds
constexpr wchar_t DialogClass[] = L"#32770";

/// Takes the picture of a dialog of the system and presses a button of it.
void CloseDialog(HWND dialog, const std::string& picture, WPARAM button = IDOK) {
    TakePicture(dialog, picture);
    PostMessageW(dialog, WM_COMMAND, button, 0);
    WaitUntil([&] { return !IsWindow(dialog); }, "a dialog to close");
}

/// Puts a text into the memory of the program of a window, where it stays.
LPARAM TextInside(HWND window, const std::string& text) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const HANDLE process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, id);
    void* place = VirtualAllocEx(process, nullptr, text.size() + 1, MEM_COMMIT, PAGE_READWRITE);
    WriteProcessMemory(process, place, text.c_str(), text.size() + 1, nullptr);
    CloseHandle(process);
    return reinterpret_cast<LPARAM>(place);
}

}  // namespace

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

HANDLE Start(const std::string& file, const std::string& arguments) {
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    std::wstring line = platform::Wide('"' + file + "\" " + arguments);
    CreateProcessW(platform::Wide(file).c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                   nullptr, &start, &process);
    return process.hProcess;
}

DWORD ExitCode(HANDLE process) {
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process, Patience);
    GetExitCodeProcess(process, &code);
    return code;
}

HWND Find(const std::string& caption, const wchar_t* className) {
    HWND window = nullptr;
    WaitUntil(
        [&] {
            window = FindWindowW(className, platform::Wide(caption).c_str());
            return window != nullptr && IsWindowVisible(window) && IsWindowEnabled(window);
        },
        "the window " + caption);
    return window;
}

HWND Find(const toolkit::Control& control) {
    const toolkit::Window& owner = control.Owner();
    return GetDlgItem(Find(owner.Caption()), desktop::ControlId(control));
}

HWND Focused() {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), &state);
    return state.hwndFocus;
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

void ChooseRow(HWND list, int row) {
    SendMessageW(list, WM_KEYDOWN, VK_HOME, 1);
    for (int i = 0; i < row; ++i) {
        SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
    }
}

std::string TextOf(HWND control) {
    wchar_t text[1024] = L"";
    SendMessageW(control, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return platform::Bytes(text);
}

void AnswerFileDialog(const std::string& title, const std::string& name) {
    const HWND dialog = Find(title, DialogClass);
    HWND field = nullptr;
    for (const int number : {0x480, 0x47c}) {  // an edit field in older dialogs, a combo box
        field = GetDlgItem(dialog, number) != nullptr ? GetDlgItem(dialog, number) : field;
    }
    const std::wstring wide = platform::Wide(name);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide.c_str()));
    CloseDialog(dialog, "file-dialog", name.empty() ? IDCANCEL : IDOK);
}

void AnswerFolderDialog(const std::string& folder) {
    const HWND dialog = Find("Browse for Folder", DialogClass);
    SendMessageW(dialog, BFFM_SETSELECTIONA, TRUE, TextInside(dialog, folder));
    CloseDialog(dialog, "folder-dialog");
}

void CheckMessage(const std::string& wanted) {
    constexpr int MessageText = 0xffff;
    const HWND dialog = Find("Zorvane", DialogClass);
    CheckEqual(TextOf(GetDlgItem(dialog, MessageText)), wanted, "the message");
    CloseDialog(dialog, "message");
}

void TakePicture(HWND window, const std::string& name) {
    constexpr int TimeToDraw = 300;
    constexpr CLSID Png = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
    Sleep(TimeToDraw);
    static ULONG_PTR drawing = 0;
    const Gdiplus::GdiplusStartupInput usual;
    Gdiplus::GdiplusStartup(&drawing, &usual, nullptr);
    RECT place = {};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    Gdiplus::Bitmap picture(width, height, PixelFormat24bppRGB);
    Gdiplus::Graphics canvas(&picture);
    const HDC target = canvas.GetHDC();
    const HDC screen = GetDC(nullptr);
    BitBlt(target, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
    canvas.ReleaseHDC(target);
    picture.Save(platform::Wide(pictureFolder + "\\" + name + ".png").c_str(), &Png, nullptr);
}

}  // namespace remote
