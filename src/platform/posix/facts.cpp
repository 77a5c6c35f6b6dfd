#include "platform/facts.h"

#include <unistd.h>

#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/posix/paths.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> ownArguments;

/// The argument as a full Windows path; a path on another drive, and the empty text, as it is.
std::string FullPath(const std::string& argument) {
    const std::optional<std::string> native = NativePath(argument);
    if (!native) {
        return argument;
    }
    std::error_code error;
    const fs::path path = fs::absolute(*native, error);
    // A folder behind a link has another parent than its name says.
    const bool climbs = path.native().find("/../") != std::string::npos;
    const fs::path folder =
        climbs ? fs::weakly_canonical(path.parent_path(), error) : path.parent_path();
    return WindowsPath((folder / path.filename()).lexically_normal().native());
}

}  // namespace

void RememberArguments(int argumentCount, char** arguments) {
    ownArguments.assign(arguments + (argumentCount > 0 ? 1 : 0), arguments + argumentCount);
}

std::string ProgramDirectory() {
    std::error_code error;
    return WindowsPath(fs::read_symlink("/proc/self/exe", error).parent_path().native());
}

VersionNumbers ProgramVersion() {
    return {ZORVANE_MAJOR, ZORVANE_MINOR, ZORVANE_REVISION};
}

std::string OwnCommandLine() {
    std::string text;
    for (const std::string& argument : ownArguments) {
        if (argument.find('"') == std::string::npos) {
            text.append(text.empty() ? "\"" : " \"").append(FullPath(argument)).append("\"");
        }
    }
    return text;
}

void EndProcess() {
    _exit(0);
}

}  // namespace platform
