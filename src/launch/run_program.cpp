#include "launch/run_program.h"

#include <optional>

#include "platform/facts.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "toolkit/desktop.h"

namespace {

/// How long one look at a waited-for process lasts: short enough for the windows to feel alive.
constexpr std::uint32_t WaitMilliseconds = 10;

}  // namespace

int RunProgram(std::string& FileName, const std::string& Parameters, int ShowCommand, bool Wait) {
    if (FileName.find_first_of("/\\:") == std::string::npos) {
        FileName = platform::ProgramDirectory() + "\\" + FileName;
    }
    platform::ShellExecuteInfo info;
    info.fMask = platform::SeeMaskNoCloseProcess;
    info.lpFile = FileName;
    info.lpParameters = Parameters;
    info.lpDirectory = FolderOfFile(FileName);
    info.nShow = ShowCommand;
    const bool accepted = platform::ShellExecuteExA(info);
    if (Wait && info.hProcess) {
        while (platform::WaitForSingleObject(info.hProcess, WaitMilliseconds) != 0) {
            desktop::DoEvents();
        }
    }
    return accepted ? 1 : 0;
}

std::string FolderOfFile(const std::string& FileName) {
    const std::optional<std::string> found = platform::LookUpFileName(FileName);
    return found ? FileName.substr(0, FileName.size() - found->size()) : std::string();
}
