#include "platform/win32/event_loop.h"

#include "platform/desktop.h"
#include "platform/win32/windows_headers.h"

namespace platform {
namespace {

void HandOut(MSG& message) {
    const HWND window = message.hwnd != nullptr ? ::GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    if (window == nullptr || !::IsDialogMessageW(window, &message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
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

}  // namespace platform
