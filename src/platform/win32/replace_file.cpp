#include "platform/win32/replace_file.h"

#include "platform/win32/file_handles.h"

namespace platform {
namespace {

/// Errors of a file that a virus scanner, an indexer or a backup holds open for a moment.
bool IsBusy(DWORD error) {
    return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION ||
           error == ERROR_LOCK_VIOLATION || error == ERROR_UNABLE_TO_REMOVE_REPLACED;
}

}  // namespace

Outcome MoveOver(const std::wstring& name, const std::wstring& target, const ReplaceCalls& calls) {
    constexpr DWORD Flags = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    constexpr DWORD PauseMilliseconds = 100;
    constexpr int Attempts = 20;
    for (int attempt = 1;; ++attempt) {
        if (calls.replace(target.c_str(), name.c_str(), nullptr, Flags, nullptr, nullptr)) {
            return {};
        }
        const bool isLast = attempt == Attempts;
        // Any other error: there is no old file, ReplaceFile has deleted it without renaming the
        // new one (1176, 1177), or the file system does not support the call.
        if (isLast || !IsBusy(::GetLastError())) {
            if (calls.move(name.c_str(), target.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
                return {};
            }
            if (isLast || !IsBusy(::GetLastError())) {
                return LastError();
            }
        }
        calls.sleep(PauseMilliseconds);
    }
}

}  // namespace platform
