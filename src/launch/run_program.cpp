#include "launch/run_program.h"

#include <optional>

#include "platform/facts.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "toolkit/desktop.h"

namespace {

/// Timeout of one wait for the process, between which events are handled.
constexpr std::uint32_t WaitMilliseconds = 10;

}  // namespace

int RunProgram(std::string& fileName, const std::string& parameters, int showCommand, bool wait) {
    if (fileName.find_first_of("/\\:") == std::string::npos) {
        fileName = platform::ProgramDirectory() + "\\" + fileName;
    }
    platform::ShellExecuteInfo info;
    info.fMask = platform::SeeMaskNoCloseProcess;
    info.lpFile = fileName;
    info.lpParameters = parameters;
    info.lpDirectory = FolderOfFile(fileName);
    info.nShow = showCommand;
    const bool accepted = platform::ShellExecuteExA(info);
    if (wait && info.hProcess) {
        while (platform::WaitForSingleObject(info.hProcess, WaitMilliseconds) != 0) {
            desktop::DoEvents();
        }
    }
    return accepted ? 1 : 0;
}

std::string FolderOfFile(const std::string& fileName) {
    const std::optional<std::string> found = platform::LookUpFileName(fileName);
    return found ? fileName.substr(0, fileName.size() - found->size()) : std::string();
}
