// Whole files, read at once or put in place in one step.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#include <vector>

#include "platform/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/paths.h"

namespace platform {
namespace {

/// Where the chain of links that begins at `native` ends, whether or not a file is there.
std::string EndOfLinks(const std::string& native) {
    std::filesystem::path path = native;
    std::error_code error;
    constexpr int longestChain = 40;  // as in Linux's own look-up
    for (int link = 0; link < longestChain && is_symlink(path, error); ++link) {
        path = path.parent_path() / read_symlink(path, error);
    }
    return path;
}

std::string RandomName() {
    std::random_device random;
    std::array<char, 32> name = {};
    std::snprintf(name.data(), name.size(), ".zorvane-%08x%08x", random(), random());
    return name.data();
}

/// A file in the making beside the one whose place it takes. Goes away unless it gets that place.
class NewFile {
  public:
    explicit NewFile(const std::string& path);
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    /// Whether it could be made.
    const Outcome& Made() const { return made_; }
    Outcome Append(std::string_view bytes);
    /// Takes the place of the old file, with its owner and rights.
    Outcome TakePlace();
    /// Whether the file to be replaced is the one that is open here.
    bool Replaces(const Descriptor& file) const;

  private:
    Outcome CheckOldFile();

    std::string target_;
    std::string name_;
    struct stat old_ = {};
    bool hasOld_ = false;
    Descriptor file_;
    std::int64_t size_ = 0;
    Outcome made_;
};

NewFile::NewFile(const std::string& path) {
    const std::optional<std::string> native = TargetPath(path);
    if (!native) {
        made_ = Failure(ENOENT);
        return;
    }
    target_ = EndOfLinks(*native);
    made_ = CheckOldFile();
    constexpr mode_t forEverybody = 0666;  // less what the user's umask takes away
    const mode_t rights = hasOld_ ? old_.st_mode & forEverybody : forEverybody;
    while (made_ && file_.Number() < 0) {
        name_ = std::filesystem::path(target_).replace_filename(RandomName());
        file_ = Descriptor(open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, rights));
        if (file_.Number() < 0 && errno != EEXIST) {
            made_ = Failure(errno);
        }
    }
}

NewFile::~NewFile() {
    if (file_.Number() >= 0) {
        unlink(name_.c_str());
    }
}

Outcome NewFile::CheckOldFile() {
    hasOld_ = stat(target_.c_str(), &old_) == 0;
    if (!hasOld_) {
        return errno == ENOENT ? Outcome{} : Failure(errno);
    }
    if (!S_ISREG(old_.st_mode)) {
        return Failure(S_ISDIR(old_.st_mode) ? EISDIR : EINVAL);
    }
    // The folder's rights would do for the system, but a write-protected file is not ours to
    // change.
    return faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) == 0 ? Outcome{} : Failure(errno);
}

Outcome NewFile::Append(std::string_view bytes) {
    Outcome written = WriteFully(file_.Number(), size_, bytes);
    size_ += static_cast<std::int64_t>(bytes.size());
    return written;
}

Outcome NewFile::TakePlace() {
    // A file of somebody else's cannot be given back to him but by root, and some disks keep no
    // rights at all: neither is a reason to lose what was written.
    constexpr mode_t allRights = 07777;
    if (hasOld_ && ((fchown(file_.Number(), old_.st_uid, old_.st_gid) != 0 && errno != EPERM) ||
                    (fchmod(file_.Number(), old_.st_mode & allRights) != 0 && errno != EPERM))) {
        return Failure(errno);
    }
    if (fsync(file_.Number()) != 0 || rename(name_.c_str(), target_.c_str()) != 0) {
        return Failure(errno);
    }
    file_.Close();
    return {};
}

bool NewFile::Replaces(const Descriptor& file) const {
    struct stat facts = {};
    return hasOld_ && fstat(file.Number(), &facts) == 0 && facts.st_dev == old_.st_dev &&
           facts.st_ino == old_.st_ino;
}

}  // namespace

Outcome ReadWholeFile(const std::string& path, std::string& bytes) {
    Descriptor file;
    Outcome outcome = OpenRegularFile(path, O_RDONLY, file);
    bytes.clear();
    struct stat facts = {};
    if (outcome && fstat(file.Number(), &facts) == 0) {
        bytes.resize(static_cast<std::size_t>(facts.st_size));
        std::size_t count = 0;
        outcome = ReadFully(file.Number(), 0, bytes.data(), bytes.size(), count);
        bytes.resize(outcome ? count : 0);
    }
    return outcome;
}

Outcome ReplaceWholeFile(const std::string& path, std::string_view bytes) {
    NewFile file(path);
    if (!file.Made()) {
        return file.Made();
    }
    Outcome outcome = file.Append(bytes);
    return outcome ? file.TakePlace() : outcome;
}

Outcome CopyWholeFile(const std::string& from, const std::string& to) {
    Descriptor source;
    Outcome outcome = OpenRegularFile(from, O_RDONLY, source);
    if (!outcome) {
        return outcome;
    }
    NewFile target(to);
    if (!target.Made()) {
        return target.Made();
    }
    if (target.Replaces(source)) {
        return {false, "The source and the target are the same file"};
    }
    std::vector<char> buffer(std::size_t{1} << 16);
    std::size_t count = 0;
    std::int64_t position = 0;
    do {
        outcome = ReadFully(source.Number(), position, buffer.data(), buffer.size(), count);
        if (outcome) {
            outcome = target.Append({buffer.data(), count});
        }
        position += static_cast<std::int64_t>(count);
    } while (outcome && count == buffer.size());
    return outcome ? target.TakePlace() : outcome;
}

Outcome RemoveFile(const std::string& path) {
    const std::optional<std::string> native = FindPath(path);
    if (!native) {
        return Failure(ENOENT);
    }
    return unlink(native->c_str()) == 0 ? Outcome{} : Failure(errno);
}

}  // namespace platform
