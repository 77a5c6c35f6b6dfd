#include "platform/shell.h"

#include "platform/win32/com.h"
#include "platform/win32/windows_headers.h"

namespace platform {

static_assert(sizeof(void*) != 4 || sizeof(SHELLEXECUTEINFOA) == 60);

ProcessHandle::~ProcessHandle() {
    if (handle_ != -1) {
        ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
    }
}

bool ShellExecuteExA(ShellExecuteInfo& info) {
    const ComApartment apartment;  // what opens documents may be an object of its own
    SHELLEXECUTEINFOA record = {};
    record.cbSize = sizeof record;
    record.fMask = info.fMask;
    record.lpFile = info.lpFile.c_str();
    record.lpParameters = info.lpParameters.c_str();
    record.lpDirectory = info.lpDirectory.c_str();
    record.nShow = info.nShow;
    const bool accepted = LATE(shell32, ShellExecuteExA)(&record) != 0;
    info.hProcess = record.hProcess != nullptr
                        ? ProcessHandle(reinterpret_cast<std::intptr_t>(record.hProcess))
                        : ProcessHandle();
    return accepted;
}

std::uint32_t WaitForSingleObject(const ProcessHandle& process, std::uint32_t milliseconds) {
    // To Windows -1 is this process itself, which would be waited for in vain.
    return process ? ::WaitForSingleObject(reinterpret_cast<HANDLE>(process.Native()), milliseconds)
                   : WAIT_FAILED;
}

}  // namespace platform
