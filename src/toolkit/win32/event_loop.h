// The message loop, with keyboard navigation as in dialogs.
#pragma once

#include <functional>

namespace desktop {

/// Waits for messages and dispatches them while `isRunning` returns true, which is called before
/// each one. Returns the exit code if WM_QUIT arrives, otherwise 0.
int RunMessages(const std::function<bool()>& isRunning);

}  // namespace desktop
