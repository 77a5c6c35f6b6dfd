// Getting and handing out messages, with the keys of dialogs in every window of ours.
#pragma once

#include <functional>

namespace desktop {

/// Waits for messages and hands them out for as long as `goOn` says, asked after each one. Gives
/// the exit code when the process is told to end.
int RunMessages(const std::function<bool()>& goOn);

}  // namespace desktop
