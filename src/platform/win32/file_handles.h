// Native file handles, for the sources of platform/files.h.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/win32/handles.h"

namespace platform {

/// The failure of the last system call.
Outcome LastError();

/// The handle of an open file, INVALID_HANDLE_VALUE of a closed one.
HANDLE NativeHandle(const File& file);

/// Opens a file on a disk, shared with every other program. A folder, pipe or device is a failure.
/// `access` and `disposition` as CreateFile takes them.
Outcome OpenRegularFile(const std::string& path, DWORD access, DWORD disposition,
                        OwnedHandle& file);

}  // namespace platform
