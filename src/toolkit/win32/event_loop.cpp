#include "toolkit/win32/event_loop.h"

#include "toolkit/desktop.h"
#include "toolkit/lists.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {
namespace {

double Across(const MSG& message) {
    return static_cast<short>(LOWORD(message.lParam));
}

double Down(const MSG& message) {
    return static_cast<short>(HIWORD(message.lParam));
}

/// Tells a control of the pointer when the native one has acted on the message: a click has
/// selected its row by then. From here no control has to be watched by itself.
void TellOfPointer(const MSG& message) {
    const NativeControl* native = FindNative(message.hwnd);
    if (native == nullptr) {
        return;
    }
    toolkit::Control& control = native->Shown();
    if (message.message == WM_MOUSEMOVE) {
        control.UserMovesPointer(Across(message), Down(message));
    } else if (message.message == WM_LBUTTONUP || message.message == WM_RBUTTONUP) {
        if (auto* list = dynamic_cast<toolkit::ListBox*>(&control)) {
            const auto button = message.message == WM_LBUTTONUP ? toolkit::MouseButton::Left
                                                                : toolkit::MouseButton::Right;
            list->UserReleasesButton(button, Across(message), Down(message));
        }
    }
}

void HandOut(MSG& message) {
    const HWND window = message.hwnd != nullptr ? ::GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    if (window == nullptr || !::IsDialogMessageW(window, &message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) {
        TellOfPointer(message);
    }
}

}  // namespace

int RunMessages(const std::function<bool()>& goOn) {
    MSG message = {};
    while (goOn()) {
        if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
            ::PostQuitMessage(static_cast<int>(message.wParam));  // for the loops around this one
            return static_cast<int>(message.wParam);
        }
        HandOut(message);
    }
    return 0;
}

void DoEvents() {
    MSG message = {};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        HandOut(message);
    }
}

int RunEventLoop() {
    return RunMessages([] { return true; });
}

}  // namespace desktop
