// Facts about this process.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace platform {

struct VersionNumbers {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// Prepares the process; `main` calls it first. Keeps the arguments for OwnCommandLine. On Linux,
/// returns the exit status if they were an option (`--help`, `--version`), after printing its
/// answer, or an unknown one. On Windows, DLLs are loaded from the system's folder only from then
/// on.
[[nodiscard]] std::optional<int> InitialiseProcess(int argumentCount, char** arguments);

/// Folder of the running executable (links followed), a Windows path without a final backslash.
std::string ProgramDirectory();

/// The executable's own version.
VersionNumbers ProgramVersion();

/// The arguments of the command line, separated by single spaces. An argument that names an
/// existing file is a full Windows path in double quotes. On Linux all other arguments are quoted
/// too, without RefusedArguments; on Windows they are as they were typed.
std::string OwnCommandLine();

/// The reason for each file on the command line that Zorvane cannot use (see CheckNativeName in
/// files.h).
std::vector<std::string> RefusedArguments();

/// Ends the process at once, whatever is still open.
[[noreturn]] void EndProcess();

}  // namespace platform
