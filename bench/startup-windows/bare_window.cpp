// The least that a program of today's Windows puts on the screen: a window with one label in the
// message font, and the manifest of the program that it is measured against.
#include <windows.h>
// The controls of the manifest's version come with a header that needs the first one.
#include <commctrl.h>

namespace {

HFONT MessageFont() {
    NONCLIENTMETRICSW system = {};
    system.cbSize = sizeof system;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, system.cbSize, &system, 0);
    return CreateFontIndirectW(&system.lfMessageFont);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR /*line*/, int /*show*/) {
    InitCommonControls();
    WNDCLASSW description = {};
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = instance;
    description.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    description.lpszClassName = L"BareWindow";
    RegisterClassW(&description);
    const HWND window = CreateWindowW(L"BareWindow", L"Bare", WS_OVERLAPPEDWINDOW, 100, 100, 640,
                                      560, nullptr, nullptr, instance, nullptr);
    const HWND label = CreateWindowW(WC_STATICW, L"A bare window", WS_CHILD | WS_VISIBLE, 20, 20,
                                     200, 20, window, nullptr, instance, nullptr);
    SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(MessageFont()), FALSE);
    ShowWindow(window, SW_SHOWNORMAL);
    UpdateWindow(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
