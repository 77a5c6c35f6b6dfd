#include "platform/shell.h"

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <sstream>
#include <vector>

#include "platform/posix/arguments.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/paths.h"
#include "platform/posix/spawn.h"
#include "text/ascii.h"
#include "text/file_names.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

/// The outcome for an `errno` value, 0 for success.
Outcome StartFailure(int error) {
    return error == 0 ? Outcome{} : Failure(error);
}

/// The desktop's program for opening a document or URL, from the folders of PATH.
std::optional<std::string> Opener() {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path != nullptr ? path : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::string program = folder + "/xdg-open";
        if (folder.starts_with('/') && access(program.c_str(), X_OK) == 0) {
            return program;
        }
    }
    return std::nullopt;
}

Outcome OpenOnDesktop(const std::string& target, const std::string& folder) {
    const std::optional<std::string> opener = Opener();
    return opener ? StartFailure(Spawn({*opener, target}, folder).error)
                  : Outcome{false, "There is no xdg-open to open it with"};
}

/// Whether the extension is that of a document. Archives and Windows disks set the permission to
/// execute for every file, so it says nothing about these.
bool IsDocument(std::string_view path) {
    constexpr std::string_view Extensions[] = {
        ".txt", ".md",  ".rtf", ".doc", ".odt", ".pdf", ".htm", ".html", ".log", ".cfg", ".ini",
        ".deh", ".bex", ".wad", ".lmp", ".pk3", ".pk7", ".zip", ".7z",   ".png", ".jpg",
    };
    return std::ranges::any_of(Extensions, [path](std::string_view extension) {
        return EndsWithIgnoringCase(path, extension);
    });
}

bool IsExecutable(const std::string& path) {
    struct stat facts = {};
    return stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) &&
           access(path.c_str(), X_OK) == 0;
}

/// The absolute native path of the program, or else of whatever `path` names.
std::optional<std::string> FindTarget(const std::string& path) {
    std::optional<std::string> found = FindProgram(path);
    if (!found) {
        found = FindPath(path);
    }
    std::error_code error;
    if (found) {
        *found = fs::absolute(*found, error);
    }
    return error ? std::nullopt : found;
}

}  // namespace

ProcessHandle::~ProcessHandle() {
    if (handle_ != -1) {
        close(static_cast<int>(handle_));
    }
}

Outcome ShellExecuteExA(ShellExecuteInfo& info) {
    info.hProcess = ProcessHandle();
    const std::optional<std::string> folder =
        info.lpDirectory.empty() ? "" : FindPath(info.lpDirectory);
    if (!folder) {
        return Failure(ENOENT);
    }
    if (IsUrl(info.lpFile)) {
        return OpenOnDesktop(info.lpFile, *folder);
    }
    const std::optional<std::string> file = FindTarget(info.lpFile);
    if (!file) {
        return Failure(ENOENT);
    }
    if (IsDocument(*file) || !IsExecutable(*file)) {
        return OpenOnDesktop(*file, *folder);
    }
    std::vector<std::string> arguments = SplitArguments(info.lpParameters);
    arguments.insert(arguments.begin(), *file);
    Spawned process = Spawn(arguments, *folder);
    // The file has the permission to execute and is no program after all.
    if (process.error == ENOEXEC) {
        return OpenOnDesktop(*file, *folder);
    }
    if ((info.fMask & SeeMaskNoCloseProcess) != 0) {
        info.hProcess = std::move(process.handle);
    }
    return StartFailure(process.error);
}

std::uint32_t WaitForSingleObject(const ProcessHandle& process, std::uint32_t milliseconds) {
    constexpr std::uint32_t Ended = 0;
    constexpr std::uint32_t TimedOut = 258;
    constexpr std::uint32_t Failed = 0xFFFFFFFF;
    constexpr std::uint32_t Forever = 0xFFFFFFFF;
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    pollfd waited = {static_cast<int>(process.Native()), POLLIN, 0};
    if (!process) {
        return Failed;
    }
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        const int timeout = static_cast<int>(std::clamp<long long>(left, 0, INT_MAX));
        const int count = poll(&waited, 1, milliseconds == Forever ? -1 : timeout);
        if (count > 0) {
            return (waited.revents & POLLIN) != 0 ? Ended : Failed;
        }
        if (count == 0) {
            return TimedOut;
        }
        if (errno != EINTR) {
            return Failed;
        }
    }
}

}  // namespace platform
