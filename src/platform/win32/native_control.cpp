#include "platform/win32/native_control.h"

#include "platform/win32/control_ids.h"
#include "platform/win32/controls.h"
#include "platform/win32/native_window.h"
#include "platform/win32/text.h"
#include "platform/win32/tool_tip.h"

namespace platform {
namespace {

HWND Create(const NativeWindow& parent, const toolkit::Control& control, const NativeClass& what) {
    const DWORD tabStop = IsInTabOrder(control) ? WS_TABSTOP : 0;
    const auto id = static_cast<INT_PTR>(ControlId(parent.Shown().Table(), control.Row()));
    return ::CreateWindowExW(
        what.extendedStyle, what.name, L"", WS_CHILD | WS_CLIPSIBLINGS | tabStop | what.style, 0, 0,
        0, 0, parent.Handle(), reinterpret_cast<HMENU>(id), ::GetModuleHandleW(nullptr), nullptr);
}

/// Counts a level of drawing for as long as it lives.
class Level {
  public:
    explicit Level(int& depth) : depth_(depth) { ++depth_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;
    ~Level() { --depth_; }

  private:
    int& depth_;
};

double Across(LPARAM position) {
    return static_cast<short>(LOWORD(position));
}

double Down(LPARAM position) {
    return static_cast<short>(HIWORD(position));
}

}  // namespace

NativeControl::NativeControl(NativeWindow& parent, toolkit::Control& control,
                             const NativeClass& what)
    : parent_(parent), control_(control), face_(what.face), handle_(Create(parent, control, what)) {
    ::SetWindowSubclass(handle_, Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

NativeControl::~NativeControl() {
    ::RemoveWindowSubclass(handle_, Procedure, 0);
}

LRESULT CALLBACK NativeControl::Procedure(HWND /*handle*/, UINT message, WPARAM wParam,
                                          LPARAM lParam, UINT_PTR /*id*/, DWORD_PTR self) {
    return reinterpret_cast<NativeControl*>(self)->OnMessage(message, wParam, lParam);
}

LRESULT NativeControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // The native control acts first: a click has selected its row before it is reported.
    const LRESULT result = ::DefSubclassProc(handle_, message, wParam, lParam);
    switch (message) {
        case WM_MOUSEMOVE:
            control_.UserMovesPointer(Across(lParam), Down(lParam));
            break;
        case WM_LBUTTONUP:
            control_.UserReleasesButton(1, Across(lParam), Down(lParam));
            break;
        case WM_RBUTTONUP:
            control_.UserReleasesButton(2, Across(lParam), Down(lParam));
            break;
        default:
            break;
    }
    return result;
}

void NativeControl::Draw(Aspect aspect, int row) {
    const Level level(drawing_);
    OnDraw(aspect, row);
}

void NativeControl::DrawAll() {
    const Level level(drawing_);
    OnDraw(Aspect::Caption, -1);
    OnDrawAll();
    OnDraw(Aspect::Enabled, -1);
    OnDraw(Aspect::Visible, -1);
    if (!control_.ToolTip().empty()) {
        OnDraw(Aspect::ToolTip, -1);
    }
}

void NativeControl::OnDraw(Aspect aspect, int /*row*/) {
    switch (aspect) {
        case Aspect::Caption:
            ::SetWindowTextW(handle_, CaptionText().c_str());
            break;
        case Aspect::Enabled:
            DrawEnabled();
            break;
        case Aspect::Visible:
            ::ShowWindow(handle_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
            break;
        case Aspect::ToolTip:
            parent_.Tips().Set(handle_, control_.ToolTip());
            break;
        case Aspect::Focus:
            DrawFocus();
            break;
        default:
            break;
    }
}

void NativeControl::DrawEnabled() {
    // The keyboard would go nowhere if it stayed with a control that takes no input.
    if (!control_.Enabled() && ::GetFocus() == handle_) {
        ::SetFocus(::GetNextDlgTabItem(parent_.Handle(), handle_, FALSE));
    }
    ::EnableWindow(handle_, control_.Enabled());
}

void NativeControl::DrawFocus() {
    parent_.Focus(handle_);
}

void NativeControl::Lay(const Metrics& metrics) {
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(metrics.Font(face_)), TRUE);
    const RECT place = metrics.Pixels(control_.Row().place);
    ::SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left,
                   place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeControl::LayInMiddle(const Metrics& metrics, int height, int more) const {
    const RECT place = metrics.Pixels(control_.Row().place);
    const int spare = place.bottom - place.top - height;
    ::SetWindowPos(handle_, nullptr, place.left, place.top + spare / 2, place.right - place.left,
                   height + more, SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeControl::Command(WORD code) {
    if (drawing_ == 0) {
        OnCommand(code);
    }
}

LRESULT NativeControl::Notify(const NMHDR& notice) {
    return drawing_ == 0 ? OnNotify(notice) : 0;
}

void NativeControl::OnCommand(WORD /*code*/) {}

LRESULT NativeControl::OnNotify(const NMHDR& /*notice*/) {
    return 0;
}

HBRUSH NativeControl::Colours(HDC /*context*/) {
    return nullptr;
}

void NativeControl::DrawItem(const DRAWITEMSTRUCT& /*item*/) {}

std::wstring NativeControl::CaptionText() const {
    return Wide(control_.Caption());
}

LRESULT NativeControl::SendText(UINT message, WPARAM wParam, const std::string& text) const {
    return Send(message, wParam, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

std::string NativeControl::NativeText() const {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(handle_)) + 1, L'\0');
    const int length = ::GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()));
    return Bytes({text.data(), static_cast<std::size_t>(length)});
}

}  // namespace platform
