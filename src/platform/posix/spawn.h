#pragma once

#include <string>
#include <vector>

#include "platform/shell.h"

namespace platform {

/// How a start ended: 0 and the process, or the `errno` value that says why there is none.
struct Spawned {
    int error = 0;
    ProcessHandle handle;
};

/// Starts the program arguments[0] (an absolute native path) in `folder` (the current one when
/// empty), in a session of its own and with every signal as it was at login, so that it outlives
/// us. Its end is collected whether or not anybody waits for it.
Spawned Spawn(const std::vector<std::string>& arguments, const std::string& folder);

}  // namespace platform
