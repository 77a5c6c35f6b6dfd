// The messages of a window. Notifications of a control are reflected to it.
#include "toolkit/win32/native_window.h"

namespace desktop {

struct NativeWindow::Route {
    UINT message;
    LRESULT (NativeWindow::*handler)(WPARAM wParam, LPARAM lParam);
};

const NativeWindow::Route NativeWindow::Routes[] = {
    {WM_COMMAND, &NativeWindow::OnCommand},
    {WM_NOTIFY, &NativeWindow::OnNotify},
    {WM_DRAWITEM, &NativeWindow::OnDrawItem},
    {WM_ERASEBKGND, &NativeWindow::OnEraseBackground},
    {WM_CTLCOLORSTATIC, &NativeWindow::OnStaticColors},
    {WM_CLOSE, &NativeWindow::OnClose},
    {WM_ENDSESSION, &NativeWindow::OnEndSession},
    {WM_ACTIVATE, &NativeWindow::OnActivate},
    {WM_SETFOCUS, &NativeWindow::OnSetFocus},
    {DM_GETDEFID, &NativeWindow::OnDefaultButton},
    {WM_NEXTDLGCTL, &NativeWindow::OnNextControl},
    {WM_MOUSEMOVE, &NativeWindow::OnPointer},
    {WM_CONTEXTMENU, &NativeWindow::OnContextMenu},
    {WM_SYSCOLORCHANGE, &NativeWindow::OnColorChange},
    {WM_SETTINGCHANGE, &NativeWindow::OnSettingChange},
    {WM_DPICHANGED, &NativeWindow::OnDpiChanged},
};

LRESULT CALLBACK NativeWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    NativeWindow* self =
        reinterpret_cast<NativeWindow*>(::GetWindowLongPtrW(handle, GWLP_USERDATA));
    return self != nullptr ? self->HandleMessage(message, wParam, lParam)
                           : ::DefWindowProcW(handle, message, wParam, lParam);
}

LRESULT NativeWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    for (const Route& route : Routes) {
        if (route.message == message) {
            return (this->*route.handler)(wParam, lParam);
        }
    }
    return DefaultHandler(message, wParam, lParam);
}

LRESULT NativeWindow::DefaultHandler(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::DefWindowProcW(handle_, message, wParam, lParam);
}

LRESULT NativeWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (NativeControl* control = FromHandle(reinterpret_cast<HWND>(lParam))) {
        if (control->IsPushButton() && HIWORD(wParam) == BN_SETFOCUS) {
            ShowDefault(control);
        } else if (control->IsPushButton() && HIWORD(wParam) == BN_KILLFOCUS) {
            ShowDefault(nullptr);
        } else {
            control->Command(HIWORD(wParam));
        }
    } else if (LOWORD(wParam) == IDCANCEL) {
        PressCancel();  // the Escape key
    }
    return 0;
}

void NativeWindow::PressCancel() {
    if (NativeControl* button = FindWithFlag(toolkit::Cancel)) {
        button->Command(BN_CLICKED);
    } else if (window_.Spec().dialog) {
        window_.UserCloses();
    }
}

LRESULT NativeWindow::OnNotify(WPARAM wParam, LPARAM lParam) {
    const auto& notice = *reinterpret_cast<const NMHDR*>(lParam);
    NativeControl* control = FromHandle(notice.hwndFrom);
    return control != nullptr ? control->Notify(notice) : DefaultHandler(WM_NOTIFY, wParam, lParam);
}

LRESULT NativeWindow::OnDrawItem(WPARAM /*wParam*/, LPARAM lParam) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    if (NativeControl* control = FromHandle(item.hwndItem)) {
        control->DrawItem(item);
    }
    return TRUE;
}

LRESULT NativeWindow::OnEraseBackground(WPARAM wParam, LPARAM lParam) {
    const LRESULT erased = DefaultHandler(WM_ERASEBKGND, wParam, lParam);
    backdrop_.Paint(reinterpret_cast<HDC>(wParam));
    return erased;
}

LRESULT NativeWindow::OnStaticColors(WPARAM wParam, LPARAM lParam) {
    const LRESULT standard = DefaultHandler(WM_CTLCOLORSTATIC, wParam, lParam);
    NativeControl* control = FromHandle(reinterpret_cast<HWND>(lParam));
    const HBRUSH brush =
        control != nullptr ? control->Colors(reinterpret_cast<HDC>(wParam)) : nullptr;
    return brush != nullptr ? reinterpret_cast<LRESULT>(brush) : standard;
}

LRESULT NativeWindow::OnClose(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    window_.UserCloses();
    return 0;
}

LRESULT NativeWindow::OnEndSession(WPARAM wParam, LPARAM /*lParam*/) {
    // Windows ends the process when this returns, so the settings must be saved now.
    if (wParam != 0 && !window_.Spec().dialog) {
        window_.UserCloses();
    }
    return 0;
}

LRESULT NativeWindow::OnActivate(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) != WA_INACTIVE) {
        return DefaultHandler(WM_ACTIVATE, wParam, lParam);
    }
    const HWND focus = ::GetFocus();
    if (::IsChild(handle_, focus)) {
        focus_ = focus;
    }
    return 0;
}

LRESULT NativeWindow::OnSetFocus(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    RestoreFocus();
    return 0;
}

LRESULT NativeWindow::OnDefaultButton(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    NativeControl* button = FromHandle(::GetFocus());
    if (button == nullptr || !button->IsPushButton()) {
        button = FindWithFlag(toolkit::Default);
    }
    return button != nullptr ? MAKELRESULT(::GetDlgCtrlID(button->Handle()), DC_HASDEFID) : 0;
}

/// Windows finds the label of an access key, but only its own dialogs move the focus to the next
/// control then.
LRESULT NativeWindow::OnNextControl(WPARAM wParam, LPARAM lParam) {
    const bool isNamed = LOWORD(lParam) != 0;
    ::SetFocus(isNamed ? reinterpret_cast<HWND>(wParam)
                       : ::GetNextDlgTabItem(handle_, ::GetFocus(), wParam != 0));
    return 0;
}

LRESULT NativeWindow::OnPointer(WPARAM wParam, LPARAM lParam) {
    const POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    const HWND child = ::ChildWindowFromPointEx(handle_, point, CWP_SKIPINVISIBLE);
    // The window also gets the movements over frames and disabled controls.
    if (NativeControl* control = FromHandle(child)) {
        POINT inside = point;
        ::MapWindowPoints(handle_, child, &inside, 1);
        control->GetControl().UserMovesPointer(inside.x, inside.y);
    } else {
        window_.UserMovesPointer();
    }
    return DefaultHandler(WM_MOUSEMOVE, wParam, lParam);
}

LRESULT NativeWindow::OnContextMenu(WPARAM wParam, LPARAM lParam) {
    constexpr LPARAM ByKeyboard = -1;
    if (NativeControl* control = FromHandle(reinterpret_cast<HWND>(wParam));
        control != nullptr && lParam == ByKeyboard) {
        control->OnMenuKey();
    }
    return 0;
}

LRESULT NativeWindow::OnColorChange(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    // Windows sends WM_SYSCOLORCHANGE to top-level windows only.
    for (const auto& control : controls_) {
        ::SendMessageW(control->Handle(), WM_SYSCOLORCHANGE, 0, 0);
    }
    ::RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return 0;
}

LRESULT NativeWindow::OnSettingChange(WPARAM wParam, LPARAM /*lParam*/) {
    if (wParam == SPI_SETNONCLIENTMETRICS) {  // the fonts
        metrics_ = FittingMetrics(window_, metrics_.Dpi());
        Layout();
    } else if (wParam == SPI_SETHIGHCONTRAST) {
        OnColorChange(0, 0);
    }
    return 0;
}

LRESULT NativeWindow::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    const auto& place = *reinterpret_cast<const RECT*>(lParam);
    metrics_ = FittingMetrics(window_, HIWORD(wParam));
    const RECT frame = FrameOf(window_, metrics_);
    ::SetWindowPos(handle_, nullptr, place.left, place.top, frame.right - frame.left,
                   frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Layout();
    return 0;
}

}  // namespace desktop
