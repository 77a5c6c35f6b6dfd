#include "toolkit/win32/native_window.h"

#include <algorithm>
#include <utility>

#include "platform/win32/text.h"
#include "toolkit/win32/control_ids.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_windows.h"
#include "toolkit/win32/pictures.h"

namespace desktop {
namespace {

RECT ClientArea(const toolkit::Window& window, const Metrics& metrics) {
    return metrics.Pixels({0, 0, window.Spec().width, window.Spec().height});
}

struct Styles {
    DWORD style;
    DWORD extended;
};

Styles StylesOf(const toolkit::Window& window) {
    if (window.Spec().dialog) {
        return {WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME};
    }
    return {WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, WS_EX_CONTROLPARENT};
}

RECT WorkArea(HWND window) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

HWND Create(const toolkit::Window& window, const RECT& frame) {
    const auto [style, extended] = StylesOf(window);
    return ::CreateWindowExW(extended, WindowClassName, platform::Wide(window.Caption()).c_str(),
                             style, CW_USEDEFAULT, CW_USEDEFAULT, frame.right - frame.left,
                             frame.bottom - frame.top, nullptr, nullptr,
                             ::GetModuleHandleW(nullptr), nullptr);
}

/// The program's icon in the size of a system metric.
HICON Icon(HINSTANCE program, int metric) {
    const int size = ::GetSystemMetrics(metric);
    return static_cast<HICON>(
        ::LoadImageW(program, ProgramIcon, IMAGE_ICON, size, size, LR_SHARED));
}

}  // namespace

void NativeWindow::RegisterWindowClass() {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    description.lpfnWndProc = Procedure;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.hIcon = Icon(description.hInstance, SM_CXICON);
    description.hIconSm = Icon(description.hInstance, SM_CXSMICON);
    description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(INT_PTR{COLOR_3DFACE + 1});
    description.lpszClassName = WindowClassName;
    ::RegisterClassExW(&description);
}

NativeWindow::NativeWindow(toolkit::Window& window)
    : window_(window),
      metrics_(FittingMetrics(window, SystemDpi())),
      handle_(Create(window, FrameOf(window, metrics_))) {
    if (const int dpi = DpiOf(handle_); dpi != metrics_.Dpi()) {
        metrics_ = FittingMetrics(window, dpi);
    }
    UpdateSize();
    MakeControls();
    ::SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

NativeWindow::~NativeWindow() {
    ::SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    controls_.clear();
    ::DestroyWindow(handle_);
}

RECT NativeWindow::FrameOf(const toolkit::Window& window, const Metrics& metrics) {
    const auto [style, extended] = StylesOf(window);
    RECT frame = ClientArea(window, metrics);
    ::AdjustWindowRectEx(&frame, style, FALSE, extended);
    return frame;
}

Metrics NativeWindow::FittingMetrics(const toolkit::Window& window, int dpi) {
    constexpr int Smallest = 50;
    constexpr int Step = 5;
    const RECT work = WorkArea(FrontWindow());
    for (int percent = 100;; percent -= Step) {
        Metrics metrics(dpi, percent);
        const RECT frame = FrameOf(window, metrics);
        const bool fits = frame.right - frame.left <= work.right - work.left &&
                          frame.bottom - frame.top <= work.bottom - work.top;
        if (fits || percent <= Smallest) {
            return metrics;
        }
    }
}

void NativeWindow::MakeControls() {
    for (toolkit::Control* control : InStackingOrder(window_)) {
        if (auto native = MakeControl(*this, *control)) {
            controls_.push_back(std::move(native));
            controls_.back()->Create();
        }
    }
    default_ = FindWithFlag(toolkit::Default);
}

void NativeWindow::Layout() {
    UpdateSize();
    for (const auto& control : controls_) {
        control->Layout();
    }
    ::InvalidateRect(handle_, nullptr, TRUE);
}

void NativeWindow::UpdateSize() {
    const RECT wanted = ClientArea(window_, metrics_);
    RECT got = {};
    ::GetClientRect(handle_, &got);
    if (got.right != wanted.right || got.bottom != wanted.bottom) {
        RECT frame = {};
        ::GetWindowRect(handle_, &frame);
        ::SetWindowPos(handle_, nullptr, 0, 0, frame.right - frame.left + wanted.right - got.right,
                       frame.bottom - frame.top + wanted.bottom - got.bottom,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    backdrop_.Layout(window_, metrics_);
}

NativeControl* NativeWindow::Find(const toolkit::Control& control) const {
    for (const auto& native : controls_) {
        if (&native->GetControl() == &control) {
            return native.get();
        }
    }
    return nullptr;
}

NativeControl* NativeWindow::FromHandle(HWND handle) const {
    for (const auto& native : controls_) {
        if (native->Handle() == handle) {
            return native.get();
        }
    }
    return nullptr;
}

NativeControl* NativeWindow::FindWithFlag(toolkit::Flag flag) const {
    for (const auto& native : controls_) {
        if (native->GetControl().Has(flag)) {
            return native.get();
        }
    }
    return nullptr;
}

void NativeWindow::CaptionChanged() const {
    ::SetWindowTextW(handle_, platform::Wide(window_.Caption()).c_str());
}

void NativeWindow::Center() const {
    const HWND owner = ::GetWindow(handle_, GW_OWNER);
    const RECT work = WorkArea(owner != nullptr ? owner : handle_);
    RECT frame = {};
    ::GetWindowRect(handle_, &frame);
    const LONG x = (work.left + work.right - frame.right + frame.left) / 2;
    const LONG y = (work.top + work.bottom - frame.bottom + frame.top) / 2;
    ::SetWindowPos(handle_, nullptr, std::max(x, work.left), std::max(y, work.top), 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeWindow::ShowDefault(NativeControl* focused) {
    NativeControl* button = focused != nullptr ? focused : FindWithFlag(toolkit::Default);
    if (button == default_) {
        return;
    }
    if (default_ != nullptr) {
        default_->ShowDefault(false);
    }
    if (button != nullptr) {
        button->ShowDefault(true);
    }
    default_ = button;
}

void NativeWindow::SetMenuPosition(HWND control, POINT point) {
    ::ClientToScreen(control, &point);
    menuPosition_ = point;
}

POINT NativeWindow::TakeMenuPosition() {
    POINT point = {};
    ::GetCursorPos(&point);
    return std::exchange(menuPosition_, std::nullopt).value_or(point);
}

void NativeWindow::Focus(HWND control) {
    focus_ = control;
    if (::GetActiveWindow() == handle_) {
        RestoreFocus();
    }
}

void NativeWindow::RestoreFocus() {
    const bool usable = focus_ != nullptr && ::IsWindowVisible(focus_) && ::IsWindowEnabled(focus_);
    const HWND target = usable ? focus_ : ::GetNextDlgTabItem(handle_, nullptr, FALSE);
    ::SetFocus(target);
    if ((::SendMessageW(target, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0 && !usable) {
        ::SendMessageW(target, EM_SETSEL, 0, -1);
    }
}

}  // namespace desktop
