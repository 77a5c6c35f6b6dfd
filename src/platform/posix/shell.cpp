#include "platform/shell.h"

#include <poll.h>
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
#include "platform/posix/paths.h"
#include "platform/posix/spawn.h"

namespace platform {
namespace {

/// The desktop's own program for opening a document or URL, from the folders of PATH.
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

bool OpenOnDesktop(const std::string& target, const std::string& folder) {
    const std::optional<std::string> opener = Opener();
    return opener && Spawn({*opener, target}, folder).error == 0;
}

bool IsProgram(const std::string& native) {
    return !std::filesystem::is_directory(native) && access(native.c_str(), X_OK) == 0;
}

std::string Absolute(const std::string& native) {
    return std::filesystem::absolute(native);
}

/// The file that `path` names, whatever its kind, or the program that stands for it.
std::optional<std::string> WhatToOpen(const std::string& path) {
    const std::optional<std::string> program = FindProgram(path);
    return program ? program : FindPath(path);
}

}  // namespace

ProcessHandle::~ProcessHandle() {
    if (handle_ != -1) {
        close(static_cast<int>(handle_));
    }
}

bool ShellExecuteExA(ShellExecuteInfo& info) {
    info.hProcess = ProcessHandle();
    const std::optional<std::string> folder =
        info.lpDirectory.empty() ? "" : FindPath(info.lpDirectory);
    if (!folder) {
        return false;
    }
    if (IsUrl(info.lpFile)) {
        return OpenOnDesktop(info.lpFile, *folder);
    }
    std::optional<std::string> file = WhatToOpen(info.lpFile);
    if (!file) {
        return false;
    }
    file = Absolute(*file);
    if (IsProgram(*file)) {
        std::vector<std::string> arguments = SplitArguments(info.lpParameters);
        arguments.insert(arguments.begin(), *file);
        Spawned process = Spawn(arguments, *folder);
        // What the system cannot run, for all its rights, is a document (files on a Windows disk
        // all have the right to run).
        if (process.error != ENOEXEC) {
            if ((info.fMask & SeeMaskNoCloseProcess) != 0) {
                info.hProcess = std::move(process.handle);
            }
            return process.error == 0;
        }
    }
    return OpenOnDesktop(*file, *folder);
}

std::uint32_t WaitForSingleObject(const ProcessHandle& process, std::uint32_t milliseconds) {
    constexpr std::uint32_t ended = 0;
    constexpr std::uint32_t timedOut = 258;
    constexpr std::uint32_t failed = 0xFFFFFFFF;
    constexpr std::uint32_t forever = 0xFFFFFFFF;
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    pollfd waited = {static_cast<int>(process.Native()), POLLIN, 0};
    if (!process) {
        return failed;
    }
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        const int patience = static_cast<int>(std::clamp<long long>(left, 0, INT_MAX));
        const int count = poll(&waited, 1, milliseconds == forever ? -1 : patience);
        if (count > 0) {
            return (waited.revents & POLLIN) != 0 ? ended : failed;
        }
        if (count == 0) {
            return timedOut;
        }
        if (errno != EINTR) {
            return failed;
        }
    }
}

}  // namespace platform
