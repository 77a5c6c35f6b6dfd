#include "platform/posix/spawn.h"

extern "C" {
#include <sys/pidfd.h>  // lacks extern "C" in glibc 2.36
}
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <thread>

namespace platform {
namespace {

/// Signals, session and working directory of the child.
class ChildSettings {
  public:
    explicit ChildSettings(const std::string& folder) {
        sigset_t signals;
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        posix_spawn_file_actions_init(&actions_);
        if (!folder.empty()) {
            posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
        }
    }
    ChildSettings(const ChildSettings&) = delete;
    ChildSettings& operator=(const ChildSettings&) = delete;
    ~ChildSettings() {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }

    const posix_spawnattr_t* Attributes() const { return &attributes_; }
    const posix_spawn_file_actions_t* Actions() const { return &actions_; }

  private:
    posix_spawnattr_t attributes_ = {};
    posix_spawn_file_actions_t actions_ = {};
};

/// Reaps the child on a detached thread. A handler of SIGCHLD would also reap children that the
/// window toolkit waits for.
void ReapAtEnd(pid_t child) {
    const auto reap = [child] {
        while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
    };
    try {
        std::thread(reap).detach();
    } catch (const std::system_error&) {
        // Without a thread the child stays a zombie until Zorvane ends.
    }
}

}  // namespace

Spawned Spawn(const std::vector<std::string>& arguments, const std::string& folder) {
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) {
        pointers.push_back(const_cast<char*>(argument.c_str()));
    }
    pointers.push_back(nullptr);
    const ChildSettings settings(folder);
    pid_t child = 0;
    Spawned spawned;
    spawned.error = posix_spawn(&child, pointers[0], settings.Actions(), settings.Attributes(),
                                pointers.data(), environ);
    if (spawned.error == 0) {
        // Every pidfd is close-on-exec.
        spawned.handle = ProcessHandle(pidfd_open(child, 0));
        ReapAtEnd(child);
    }
    return spawned;
}

}  // namespace platform
