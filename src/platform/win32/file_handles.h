// Native file handles, for the sources behind platform/files.h alone.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/win32/handles.h"

namespace platform {

/// A failure with the reason that Windows gave last.
Outcome LastError();

/// Opens a file on a disk, shared with every other program. A folder, pipe or device is refused.
/// `access` and `disposition` as CreateFile takes them.
Outcome OpenRegularFile(const std::string& path, DWORD access, DWORD disposition,
                        OwnedHandle& file);

}  // namespace platform
