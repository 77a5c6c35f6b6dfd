// Renaming a file over another one.
#pragma once

#include <string>

#include "platform/outcome.h"
#include "platform/win32/windows_headers.h"

namespace platform {

/// The services that MoveOver calls. Tests pass failing ones.
struct ReplaceCalls {
    decltype(&::ReplaceFileW) replace = ::ReplaceFileW;
    decltype(&::MoveFileExW) move = ::MoveFileExW;
    decltype(&::Sleep) sleep = ::Sleep;
};

/// Renames a file over `target`, whose attributes and permissions it takes over, or which does not
/// exist. For about two seconds it tries again while another program uses one of the files. Never
/// deletes `name`.
Outcome MoveOver(const std::wstring& name, const std::wstring& target,
                 const ReplaceCalls& calls = {});

}  // namespace platform
