#include "toolkit/desktop.h"

#include "toolkit/lists.h"
#include "toolkit/win32/event_loop.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {

void StartDesktop() {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_STANDARD_CLASSES |
                                                              ICC_LISTVIEW_CLASSES |
                                                              ICC_BAR_CLASSES | ICC_LINK_CLASS};
    ::InitCommonControlsEx(&classes);
    NativeWindow::RegisterWindowClass();
}

void LoadWindow(toolkit::Window& window) {
    Register(window);
}

void UnloadWindow(toolkit::Window& window) {
    Unregister(window);
}

void ShowWindow(toolkit::Window& window) {
    if (NativeWindow* native = EnsureNative(window)) {
        native->Center();
        PushWindow(*native);
        ::ShowWindow(native->Handle(), SW_SHOWNORMAL);
        ::UpdateWindow(native->Handle());
    }
}

void HideWindow(toolkit::Window& window) {
    if (NativeWindow* native = FindNative(window)) {
        RemoveWindow(*native);
        // Before the window is hidden, because Windows then activates an enabled window.
        if (const HWND owner = ::GetWindow(native->Handle(), GW_OWNER)) {
            ::EnableWindow(owner, TRUE);
        }
        ::ShowWindow(native->Handle(), SW_HIDE);
    }
}

void RunModal(toolkit::Window& window) {
    NativeWindow* native = EnsureNative(window);
    if (native == nullptr) {
        return;
    }
    const HWND owner = FrontWindow();
    ::SetWindowLongPtrW(native->Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    native->Center();
    native->ResetFocus();
    ::EnableWindow(owner, FALSE);
    PushWindow(*native);
    ::ShowWindow(native->Handle(), SW_SHOWNORMAL);
    RunMessages([&window] { return window.Visible(); });
}

void RepaintWindow(toolkit::Window& window) {
    if (const NativeWindow* native = FindNative(window)) {
        ::RedrawWindow(native->Handle(), nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
}

void CaptionChanged(toolkit::Window& window) {
    if (const NativeWindow* native = FindNative(window)) {
        native->CaptionChanged();
    }
}

void PropertyChanged(toolkit::Control& control, Property property, int row) {
    if (NativeControl* native = FindNative(control)) {
        native->Apply(property, row);
    }
}

std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y) {
    constexpr std::uint32_t Outside = 0x10000;
    const NativeControl* native = FindNative(list);
    if (native == nullptr) {
        return Outside;
    }
    const auto answer = static_cast<std::uint32_t>(
        ::SendMessageA(native->Handle(), LB_ITEMFROMPOINT, 0, MAKELPARAM(x, y)));
    // Windows returns the last row for a point below it, so compare with the rectangle of that row.
    RECT place = {};
    ::SendMessageW(native->Handle(), LB_GETITEMRECT, LOWORD(answer),
                   reinterpret_cast<LPARAM>(&place));
    return y < place.bottom ? answer : answer | Outside;
}

}  // namespace desktop
