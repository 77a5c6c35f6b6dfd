#pragma once

#include <string>
#include <vector>

#include "platform/shell.h"

namespace platform {

/// The started process, or the `errno` value of the failure.
struct Spawned {
    int error = 0;
    ProcessHandle handle;
};

/// Starts the program arguments[0] (an absolute native path) in `folder` (the current one if
/// empty). It gets a session of its own and default signals, so that it outlives Zorvane. It is
/// reaped when it ends, also if nothing waits for it.
Spawned Spawn(const std::vector<std::string>& arguments, const std::string& folder);

}  // namespace platform
