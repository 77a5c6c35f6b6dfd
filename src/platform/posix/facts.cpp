#include "platform/facts.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/posix/paths.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr const char* Help =
    "Usage: zorvane [FILE]...\n"
    "Starts games of the Doom family. The files replace the list of additional files.\n"
    "\n"
    "  --help     print this text and exit\n"
    "  --version  print the version and exit\n"
    "  --         treat every further argument as a file\n";

std::vector<std::string> ownArguments;

/// Prints the answer to an option and returns the exit status.
int Answer(const std::string& option) {
    const auto [major, minor, revision] = ProgramVersion();
    if (option == "--help") {
        std::fputs(Help, stdout);
    } else if (option == "--version") {
        std::printf("Zorvane %d.%d.%d\n", major, minor, revision);
    } else {
        std::fprintf(stderr, "zorvane: unknown option '%s'; see zorvane --help\n", option.c_str());
        return 2;
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}

/// The argument as a full Windows path. A path on another drive and an empty text stay.
std::string FullPath(const std::string& argument) {
    const std::optional<std::string> native = NativePath(argument);
    if (!native) {
        return argument;
    }
    std::error_code error;
    const fs::path path = fs::absolute(*native, error);
    // The parent of a linked folder is not the one that its name says.
    const bool hasParent = path.native().find("/../") != std::string::npos;
    const fs::path folder =
        hasParent ? fs::weakly_canonical(path.parent_path(), error) : path.parent_path();
    return WindowsPath((folder / path.filename()).lexically_normal().native());
}

/// Whether the argument is a native name that Zorvane cannot use. One with backslashes is taken for
/// a Windows path unless a file has exactly that name.
bool IsRefused(const std::string& argument) {
    std::error_code error;
    return !CheckNativeName(argument) && (argument.find('"') != std::string::npos ||
                                          fs::exists(fs::symlink_status(argument, error)));
}

}  // namespace

std::optional<int> InitializeProcess(int argumentCount, char** arguments) {
    ownArguments.clear();
    bool optionsEnded = false;
    for (int i = 1; i < argumentCount; ++i) {
        const std::string argument = arguments[i];
        if (optionsEnded || argument == "-" || !argument.starts_with('-')) {
            ownArguments.push_back(argument);
        } else if (argument == "--") {
            optionsEnded = true;
        } else {
            return Answer(argument);
        }
    }
    return std::nullopt;
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
        if (!IsRefused(argument)) {
            text.append(text.empty() ? "\"" : " \"").append(FullPath(argument)).append("\"");
        }
    }
    return text;
}

std::vector<std::string> RefusalReasons() {
    std::vector<std::string> reasons;
    for (const std::string& argument : ownArguments) {
        if (IsRefused(argument)) {
            reasons.push_back(CheckNativeName(argument).reason);
        }
    }
    return reasons;
}

void EndProcess() {
    _exit(0);
}

}  // namespace platform
