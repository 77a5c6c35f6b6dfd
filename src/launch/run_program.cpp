#include "launch/run_program.h"

#include <optional>

#include "platform/facts.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "toolkit/desktop.h"

namespace {

/// A program that ends within this time is waited for without handling events.
constexpr std::uint32_t ShortestRunMilliseconds = 10;

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
    const platform::Outcome accepted = platform::ShellExecuteExA(info);
    if (wait && info.hProcess &&
        platform::WaitForSingleObject(info.hProcess, ShortestRunMilliseconds) != 0) {
        desktop::RunEventsUntilEnd(info.hProcess);
    }
    return accepted ? 1 : 0;
}

std::string FolderOfFile(const std::string& fileName) {
    const std::optional<std::string> found = platform::LookUpFileName(fileName);
    return found ? fileName.substr(0, fileName.size() - found->size()) : std::string();
}
