// Start-up, end and properties of this process.
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

/// Call first in `main`. Keeps the arguments for OwnCommandLine. On Linux, prints the output of
/// `--help` and `--version`, or an error for an unknown option, and returns the exit status. On
/// Windows, restricts later DLL loads to the System32 folder.
[[nodiscard]] std::optional<int> InitializeProcess(int argumentCount, char** arguments);

/// Folder of the running executable (links followed), a Windows path without a final backslash.
std::string ProgramDirectory();

/// The executable's own version.
VersionNumbers ProgramVersion();

/// The command-line arguments, separated by single spaces. On Windows, an argument that names an
/// existing file becomes a full path in double quotes and others are unchanged. On Linux, every
/// argument becomes a full Windows path in double quotes, and refused ones are left out.
std::string OwnCommandLine();

/// The reason for each file on the command line that Zorvane cannot use (see CheckNativeName in
/// files.h).
std::vector<std::string> RefusalReasons();

/// Ends the process at once, whatever is still open.
[[noreturn]] void EndProcess();

}  // namespace platform
