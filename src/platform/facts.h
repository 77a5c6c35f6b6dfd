// Facts of this process.
#pragma once

#include <optional>
#include <string>

namespace platform {

struct VersionNumbers {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// Remembers the arguments of `main` for OwnCommandLine. On Linux, returns the exit status if they
/// were an option (`--help`, `--version`), after printing its answer, or an unknown one.
[[nodiscard]] std::optional<int> RememberArguments(int argumentCount, char** arguments);

/// Folder of the running executable (links followed), a Windows path without a closing backslash.
std::string ProgramDirectory();

/// The executable's own version.
VersionNumbers ProgramVersion();

/// The command line behind the program's own name. On Linux each argument stands in double quotes,
/// as a full Windows path, with one blank between two; an argument that holds a double quote cannot
/// be told so and is left out.
std::string OwnCommandLine();

/// Ends the process at once, whatever is still open.
[[noreturn]] void EndProcess();

}  // namespace platform
