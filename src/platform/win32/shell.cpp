#include "platform/shell.h"

#include "platform/win32/com.h"
#include "platform/win32/file_handles.h"
#include "platform/win32/text.h"

namespace platform {

static_assert(sizeof(void*) != 4 || sizeof(SHELLEXECUTEINFOW) == 60);

ProcessHandle::~ProcessHandle() {
    if (handle_ != -1) {
        ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
    }
}

namespace {

/// Decodes what is inside and outside quotes piece by piece: an old settings file holds paths in
/// Windows-1252, and they may follow paths in UTF-8.
std::wstring WideParameters(std::string_view text) {
    std::wstring wide;
    for (std::size_t quote = 0; quote != std::string_view::npos;) {
        quote = text.find('"');
        const std::size_t length = quote == std::string_view::npos ? text.size() : quote + 1;
        wide += Wide(text.substr(0, length));
        text.remove_prefix(length);
    }
    return wide;
}

}  // namespace

Outcome ShellExecuteExA(ShellExecuteInfo& info) {
    const ComApartment apartment;  // the shell may pass a document to a COM object
    const std::wstring file = Wide(info.lpFile);
    const std::wstring parameters = WideParameters(info.lpParameters);
    const std::wstring directory = Wide(info.lpDirectory);
    SHELLEXECUTEINFOW record = {};
    record.cbSize = sizeof record;
    // Without this flag Windows shows an error message of its own before the caller's.
    record.fMask = info.fMask | SEE_MASK_FLAG_NO_UI;
    record.lpFile = file.c_str();
    record.lpParameters = parameters.c_str();
    record.lpDirectory = directory.c_str();
    record.nShow = info.nShow;
    Outcome outcome = LATE(shell32, ShellExecuteExW)(&record) ? Outcome{} : LastError();
    info.hProcess = record.hProcess != nullptr
                        ? ProcessHandle(reinterpret_cast<std::intptr_t>(record.hProcess))
                        : ProcessHandle();
    return outcome;
}

std::uint32_t WaitForSingleObject(const ProcessHandle& process, std::uint32_t milliseconds) {
    // To Windows -1 means this process.
    return process ? ::WaitForSingleObject(reinterpret_cast<HANDLE>(process.Native()), milliseconds)
                   : WAIT_FAILED;
}

}  // namespace platform
