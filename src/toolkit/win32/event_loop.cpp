#include "toolkit/win32/event_loop.h"

#include <cctype>
#include <iterator>

#include "platform/shell.h"
#include "toolkit/desktop.h"
#include "toolkit/lists.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {
namespace {

double HorizontalPosition(const MSG& message) {
    return static_cast<short>(LOWORD(message.lParam));
}

double VerticalPosition(const MSG& message) {
    return static_cast<short>(HIWORD(message.lParam));
}

/// Reports pointer messages to the control, after the native control has processed them: by then a
/// click has selected its row. This saves subclassing every control.
void ReportPointer(const MSG& message) {
    const NativeControl* native = FindNative(message.hwnd);
    if (native == nullptr) {
        return;
    }
    toolkit::Control& control = native->GetControl();
    if (message.message == WM_MOUSEMOVE) {
        control.UserMovesPointer(HorizontalPosition(message), VerticalPosition(message));
    } else if (message.message == WM_LBUTTONUP || message.message == WM_RBUTTONUP) {
        if (auto* list = dynamic_cast<toolkit::ListBox*>(&control)) {
            const auto button = message.message == WM_LBUTTONUP ? toolkit::MouseButton::Left
                                                                : toolkit::MouseButton::Right;
            list->UserReleasesButton(button, HorizontalPosition(message),
                                     VerticalPosition(message));
        }
    }
}

/// Whether a message is the wheel over a combo box without the focus, which would change its
/// selection while the user scrolls something else.
bool IsStrayWheel(const MSG& message) {
    if (message.message != WM_MOUSEWHEEL) {
        return false;
    }
    wchar_t name[16] = L"";
    ::GetClassNameW(message.hwnd, name, static_cast<int>(std::size(name)));
    const bool isCombo = ::lstrcmpiW(name, WC_COMBOBOXW) == 0;
    return isCombo && message.hwnd != ::GetFocus() && !::IsChild(message.hwnd, ::GetFocus());
}

/// Moves the focus to the link of an access key: Windows finds those of labels and buttons only.
bool FocusesLink(const MSG& message) {
    const NativeControl* focused =
        message.message == WM_SYSCHAR ? FindNative(message.hwnd) : nullptr;
    if (focused == nullptr) {
        return false;
    }
    for (const toolkit::Control* control : focused->GetControl().Owner().Controls()) {
        if (control->Has(toolkit::Link) &&
            control->Access() == std::toupper(static_cast<int>(message.wParam))) {
            ::SetFocus(FindNative(*control)->Handle());
            return true;
        }
    }
    return false;
}

void Dispatch(MSG& message) {
    if (IsStrayWheel(message) || FocusesLink(message)) {
        return;
    }
    const HWND window = message.hwnd != nullptr ? ::GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    if (window == nullptr || !::IsDialogMessageW(window, &message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) {
        ReportPointer(message);
    }
}

/// Handles the messages in the queue. Returns false if one of them ends the program.
bool HandlePending() {
    MSG message = {};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));  // for the outer loops
            return false;
        }
        Dispatch(message);
    }
    return true;
}

}  // namespace

int RunMessages(const std::function<bool()>& isRunning) {
    MSG message = {};
    while (isRunning()) {
        if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
            ::PostQuitMessage(static_cast<int>(message.wParam));  // for the outer loops
            return static_cast<int>(message.wParam);
        }
        Dispatch(message);
    }
    return 0;
}

void DoEvents() {
    HandlePending();
}

int RunEventLoop() {
    return RunMessages([] { return true; });
}

void RunEventsUntilEnd(const platform::ProcessHandle& process) {
    auto* const handle = reinterpret_cast<HANDLE>(process.Native());
    constexpr DWORD Message = WAIT_OBJECT_0 + 1;
    while (::MsgWaitForMultipleObjectsEx(1, &handle, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE) ==
               Message &&
           HandlePending()) {
    }
}

}  // namespace desktop
