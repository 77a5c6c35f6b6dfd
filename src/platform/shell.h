// Starts programs and opens documents and web pages.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/outcome.h"

namespace platform {

/// Owns the handle of a started process: a Windows handle or a Linux pidfd, -1 for none. Closing it
/// does nothing to the process.
class ProcessHandle {
  public:
    ProcessHandle() = default;
    explicit ProcessHandle(std::intptr_t handle) : handle_(handle) {}
    ProcessHandle(ProcessHandle&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}
    ProcessHandle& operator=(ProcessHandle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ProcessHandle(const ProcessHandle&) = delete;
    ProcessHandle& operator=(const ProcessHandle&) = delete;
    ~ProcessHandle();

    explicit operator bool() const { return handle_ != -1; }
    std::intptr_t Native() const { return handle_; }

  private:
    std::intptr_t handle_ = -1;
};

/// The Windows record in portable form, without the members that Zorvane leaves at 0.
struct ShellExecuteInfo {
    std::uint32_t fMask = 0;   // SeeMaskNoCloseProcess asks for hProcess
    std::string lpFile;        // program, document or URL
    std::string lpParameters;  // separated by spaces, grouped by double quotes, without escapes
    std::string lpDirectory;   // working directory
    int nShow = 0;             // a Windows show state; ignored on Linux
    ProcessHandle hProcess;    // receives the started process
};

inline constexpr std::uint32_t SeeMaskNoCloseProcess = 64;

/// Opens lpFile by its default verb: starts a program with the parameters in the directory, or
/// passes a document or URL to the desktop's program for it. Returns at once whether that was
/// accepted. On Linux a file with the extension of a document, or without execute permission, is a
/// document; if `foo.exe` is missing, `foo` is started; and a parameter that begins with
/// `Z:\` becomes a native path.
Outcome ShellExecuteExA(ShellExecuteInfo& info);

/// Waits until a process has ended, at most the given time. Returns 0 if it has ended, 258 if the
/// time is over, another number on failure.
std::uint32_t WaitForSingleObject(const ProcessHandle& process, std::uint32_t milliseconds);

}  // namespace platform
