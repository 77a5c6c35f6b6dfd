// The least that a program of today's Windows puts on the screen, with the manifest of the program
// that it is measured against: a window with one label in the message font. With an argument, a
// window with as many plain controls as our main window has, and nothing in them.
#include <windows.h>
// The common controls' header needs the one of Windows before it.
#include <commctrl.h>

namespace {

struct Kind {
    const wchar_t* name;
    DWORD style;
    int count;
};

constexpr Kind OneLabel[] = {{WC_STATICW, 0, 1}};
constexpr Kind AsManyAsOurs[] = {
    {WC_STATICW, 0, 13},
    {WC_BUTTONW, BS_PUSHBUTTON, 13},
    {WC_BUTTONW, BS_AUTOCHECKBOX, 4},
    {WC_BUTTONW, BS_GROUPBOX, 1},
    {WC_COMBOBOXW, CBS_DROPDOWNLIST, 3},
    {WC_COMBOBOXW, CBS_DROPDOWN, 1},
    {WC_LISTBOXW, WS_VSCROLL | WS_HSCROLL, 1},
    {WC_EDITW, ES_AUTOHSCROLL, 1},
};

HFONT MessageFont() {
    NONCLIENTMETRICSW system = {};
    system.cbSize = sizeof system;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, system.cbSize, &system, 0);
    return CreateFontIndirectW(&system.lfMessageFont);
}

template <int Size>
void Fill(HWND window, const Kind (&kinds)[Size]) {
    const HFONT font = MessageFont();
    int place = 0;
    for (const Kind& kind : kinds) {
        for (int i = 0; i < kind.count; ++i, ++place) {
            const HWND control = CreateWindowW(
                kind.name, L"A control", WS_CHILD | WS_VISIBLE | kind.style, 10 + place % 6 * 100,
                10 + place / 6 * 60, 90, 25, window, nullptr, GetModuleHandleW(nullptr), nullptr);
            SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        }
    }
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR line, int /*show*/) {
    InitCommonControls();
    WNDCLASSW description = {};
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = instance;
    description.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    description.lpszClassName = L"BareWindow";
    RegisterClassW(&description);
    const HWND window = CreateWindowW(L"BareWindow", L"Bare", WS_OVERLAPPEDWINDOW, 100, 100, 640,
                                      560, nullptr, nullptr, instance, nullptr);
    if (*line == '\0') {
        Fill(window, OneLabel);
    } else {
        Fill(window, AsManyAsOurs);
    }
    ShowWindow(window, SW_SHOWNORMAL);
    UpdateWindow(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
