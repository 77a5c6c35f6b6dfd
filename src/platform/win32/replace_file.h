// Renaming a file over another one.
#pragma once

#include <string>

#include "platform/outcome.h"
#include "platform/win32/windows_headers.h"

namespace platform {

/// The Windows functions that MoveOver calls, so that tests can make them fail.
struct ReplaceCalls {
    decltype(&::ReplaceFileW) replace = ::ReplaceFileW;
    decltype(&::MoveFileExW) move = ::MoveFileExW;
    decltype(&::Sleep) sleep = ::Sleep;
};

/// Renames a file to `target`, replacing an existing one and keeping its attributes and
/// permissions. Retries for about two seconds while another program uses either file. Never deletes
/// `name`.
Outcome MoveOver(const std::wstring& name, const std::wstring& target,
                 const ReplaceCalls& calls = {});

}  // namespace platform
