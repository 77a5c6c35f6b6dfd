// Programs, documents and web pages: the one way out of the system, with the record of the Windows
// shell in portable form.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace platform {

/// Owns the handle of a started process: a Windows handle or a Linux pidfd. -1 holds none.
/// Letting go of it does nothing to the process.
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

/// What ShellExecuteExA takes and gives. Members that Windows has and this system leaves at 0 are
/// not here.
struct ShellExecuteInfo {
    std::uint32_t fMask = 0;   // SeeMaskNoCloseProcess asks for hProcess
    std::string lpFile;        // program, document or URL
    std::string lpParameters;  // one text; blanks part it, double quotes group, nothing escapes
    std::string lpDirectory;   // working directory
    int nShow = 0;             // a Windows show state; Linux has none and passes over it
    ProcessHandle hProcess;    // filled when a process was started
};

inline constexpr std::uint32_t SeeMaskNoCloseProcess = 64;

/// Opens lpFile by its default verb: a program starts with the parameters in the directory, a
/// document or URL goes to the program that the desktop has for it. Gives whether that was
/// accepted, at once; never waits for the started program. On Linux a program name that ends in
/// `.exe` and is not there stands for the name without it, and an argument that begins with `Z:\`
/// becomes a native path.
bool ShellExecuteExA(ShellExecuteInfo& info);

/// Waits for the end of a process, at most the given time. Gives 0 when it has ended, 258 when the
/// time ran out, another number on failure. Takes no processor time while it waits.
std::uint32_t WaitForSingleObject(const ProcessHandle& process, std::uint32_t milliseconds);

}  // namespace platform
