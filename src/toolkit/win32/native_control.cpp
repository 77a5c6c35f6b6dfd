#include "toolkit/win32/native_control.h"

#include "platform/win32/text.h"
#include "toolkit/win32/control_ids.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"
#include "toolkit/win32/tool_tip.h"

namespace desktop {
namespace {

/// Increments a counter while it exists.
class Level {
  public:
    explicit Level(int& depth) : depth_(depth) { ++depth_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;
    ~Level() { --depth_; }

  private:
    int& depth_;
};

}  // namespace

DWORD NativeControl::Style() const {
    return WS_CHILD | class_.style | (IsInTabOrder(control_) ? WS_TABSTOP : 0) |
           (control_.Visible() ? WS_VISIBLE : 0) | (control_.Enabled() ? 0 : WS_DISABLED);
}

void NativeControl::Create() {
    const Level level(applying_);
    const RECT place = Place();
    const auto id = static_cast<INT_PTR>(ControlId(control_));
    handle_ = ::CreateWindowExW(class_.extendedStyle, class_.name, CaptionText().c_str(), Style(),
                                place.left, place.top, place.right - place.left,
                                place.bottom - place.top, parent_.Handle(),
                                reinterpret_cast<HMENU>(id), ::GetModuleHandleW(nullptr), nullptr);
    ApplyFont();
    OnCreated();
    OnLayout();
    if (!control_.ToolTip().empty()) {
        OnPropertyChanged(Property::ToolTip, -1);
    }
}

void NativeControl::ApplyFont() const {
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetMetrics().Font(class_.face)), FALSE);
}

void NativeControl::Layout() {
    const Level level(applying_);
    const RECT place = Place();
    ApplyFont();
    ::SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left,
                   place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    OnLayout();
}

void NativeControl::Apply(Property property, int row) {
    const Level level(applying_);
    OnPropertyChanged(property, row);
}

void NativeControl::OnPropertyChanged(Property property, int /*row*/) {
    switch (property) {
        case Property::Caption:
            ::SetWindowTextW(handle_, CaptionText().c_str());
            break;
        case Property::Enabled:
            ApplyEnabled();
            break;
        case Property::Visible:
            ::ShowWindow(handle_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
            break;
        case Property::ToolTip:
            parent_.Tips().Set(handle_, control_.ToolTip());
            break;
        case Property::Focus:
            parent_.Focus(handle_);
            break;
        default:
            break;
    }
}

void NativeControl::ApplyEnabled() {
    // A disabled control with the focus would block the keyboard.
    if (!control_.Enabled() && ::GetFocus() == handle_) {
        ::SetFocus(::GetNextDlgTabItem(parent_.Handle(), handle_, FALSE));
    }
    ::EnableWindow(handle_, control_.Enabled());
}

const Metrics& NativeControl::GetMetrics() const {
    return parent_.GetMetrics();
}

RECT NativeControl::Place() const {
    return GetMetrics().Pixels(control_.Spec().place);
}

RECT NativeControl::WithHeight(RECT place, int height) {
    place.top += (place.bottom - place.top - height) / 2;
    place.bottom = place.top + height;
    return place;
}

void NativeControl::Command(WORD code) {
    if (applying_ == 0) {
        OnCommand(code);
    }
}

LRESULT NativeControl::Notify(const NMHDR& notice) {
    return applying_ == 0 ? OnNotify(notice) : 0;
}

HBRUSH NativeControl::Colors(HDC /*context*/) {
    return nullptr;
}

void NativeControl::DrawItem(const DRAWITEMSTRUCT& /*item*/) {}

std::wstring NativeControl::CaptionText() const {
    return platform::Wide(control_.Caption());
}

LRESULT NativeControl::SendText(UINT message, WPARAM wParam, const std::string& text) const {
    return Send(message, wParam, reinterpret_cast<LPARAM>(platform::Wide(text).c_str()));
}

std::string NativeControl::WindowText() const {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(handle_)) + 1, L'\0');
    const int length = ::GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()));
    return platform::Bytes({text.data(), static_cast<std::size_t>(length)});
}

}  // namespace desktop
