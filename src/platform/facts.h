// Facts of this process.
#pragma once

#include <string>

namespace platform {

struct VersionNumbers {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// Remembers what the facts below are made of. `main` calls it first.
void RememberArguments(int argumentCount, char** arguments);

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
