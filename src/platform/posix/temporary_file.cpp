#include "platform/temporary_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>

#include "platform/posix/descriptor.h"
#include "platform/posix/paths.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

/// Resolves the symbolic links of a path. The target may be missing.
Outcome FollowLinks(std::string& path) {
    // Let the kernel resolve the links, so that its restrictions on links in shared folders apply.
    const Descriptor file(open(path.c_str(), O_PATH | O_CLOEXEC));
    std::error_code error;
    if (file.Number() >= 0) {
        path = fs::read_symlink("/proc/self/fd/" + std::to_string(file.Number()), error);
        return error ? Failure(error.value()) : Outcome{};
    }
    if (errno != ENOENT) {
        return Failure(errno);
    }
    // The last link points to a missing file; a loop would have failed with ELOOP.
    constexpr int LongestChain =
        40;  // the kernel's limit; ends a loop made by a link that changes meanwhile
    for (int link = 0; link < LongestChain && fs::is_symlink(path, error); ++link) {
        path = fs::path(path).replace_filename(fs::read_symlink(path, error));
    }
    return {};
}

Outcome CheckTarget(const std::string& target, mode_t& mode) {
    struct stat old = {};
    if (stat(target.c_str(), &old) != 0) {
        return errno == ENOENT ? Outcome{} : Failure(errno);
    }
    if (!S_ISREG(old.st_mode)) {
        return Failure(S_ISDIR(old.st_mode) ? EISDIR : EINVAL);
    }
    mode &= old.st_mode;
    // A rename needs write permission for the folder only, so this has to be asked for.
    return faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) == 0 ? Outcome{} : Failure(errno);
}

/// Copies the owner and mode of the old file. Only root may change the owner, and some
/// file systems have no permissions: neither is a reason to lose what was written.
Outcome CopyPermissions(const std::string& target, int descriptor) {
    struct stat old = {};
    if (stat(target.c_str(), &old) != 0) {
        return {};
    }
    constexpr mode_t AllBits = 07777;
    const bool copied = (fchown(descriptor, old.st_uid, old.st_gid) == 0 || errno == EPERM) &&
                        (fchmod(descriptor, old.st_mode & AllBits) == 0 || errno == EPERM);
    return copied ? Outcome{} : Failure(errno);
}

void RemoveAbandonedFiles(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; entry != end && !error;
         entry.increment(error)) {
        if (IsAbandoned(entry->path().filename().native())) {
            unlink(entry->path().c_str());
        }
    }
}

}  // namespace

std::uint32_t ProcessId() {
    return static_cast<std::uint32_t>(getpid());
}

bool IsRunning(std::uint32_t processId) {
    return kill(static_cast<pid_t>(processId), 0) == 0 || errno != ESRCH;
}

TemporaryFile::~TemporaryFile() {
    if (!name_.empty()) {
        unlink(name_.c_str());
    }
}

Outcome TemporaryFile::Create(const std::string& path) {
    std::optional<std::string> native = TargetPath(path);
    if (!native) {
        return Failure(ENOENT);
    }
    target_ = std::move(*native);
    mode_t mode = 0666;  // less the bits of the user's umask
    Outcome outcome = FollowLinks(target_);
    if (outcome) {
        outcome = CheckTarget(target_, mode);
    }
    if (!outcome) {
        return outcome;
    }
    const std::string name = fs::path(target_).replace_filename(TemporaryName());
    Descriptor file(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (file.Number() < 0) {
        return Failure(errno);
    }
    name_ = name;
    file_ = File(file.Release());
    return {};
}

Outcome TemporaryFile::Append(std::string_view bytes) {
    Outcome written = file_.WriteAt(size_, bytes);
    size_ += static_cast<std::int64_t>(bytes.size());
    return written;
}

Outcome TemporaryFile::Commit() {
    Outcome outcome = CopyPermissions(target_, file_.Handle());
    if (outcome) {
        outcome = file_.Flush();
    }
    if (outcome && rename(name_.c_str(), target_.c_str()) != 0) {
        outcome = Failure(errno);
    }
    if (!outcome) {
        return outcome;
    }
    name_.clear();
    const fs::path folder = fs::path(target_).parent_path();
    // Flush the folder too. Failure is ignored: some file systems cannot, and the rename has
    // already succeeded.
    const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    fsync(opened.Number());
    RemoveAbandonedFiles(folder);
    return {};
}

bool TemporaryFile::Replaces(const File& file) const {
    struct stat left = {};
    struct stat right = {};
    return stat(target_.c_str(), &left) == 0 && fstat(file.Handle(), &right) == 0 &&
           left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

}  // namespace platform
