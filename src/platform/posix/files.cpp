#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/posix/descriptor.h"
#include "platform/posix/paths.h"

namespace platform {
namespace {

int OpenFlags(File::Access access) {
    switch (access) {
        case File::Access::Read:
            return O_RDONLY;
        case File::Access::ReadWrite:
            return O_RDWR;
        case File::Access::Create:
            break;
    }
    return O_RDWR | O_CREAT;
}

}  // namespace

Outcome File::Open(const std::string& path, Access access) {
    Close();
    Descriptor descriptor;
    Outcome outcome = OpenRegularFile(path, OpenFlags(access), descriptor);
    handle_ = descriptor.Release();
    return outcome;
}

void File::Close() {
    if (IsOpen()) {
        close(std::exchange(handle_, -1));
    }
}

Outcome File::ReadAt(std::int64_t position, void* buffer, std::size_t size,
                     std::size_t& count) const {
    Outcome outcome = ReadFully(handle_, position, buffer, size, count);
    count = outcome ? count : 0;
    return outcome;
}

Outcome File::WriteAt(std::int64_t position, std::string_view bytes) {
    return WriteFully(handle_, position, bytes);
}

Outcome File::Flush() {
    return fsync(handle_) == 0 ? Outcome{} : Failure(errno);
}

std::int64_t File::Size() const {
    struct stat facts = {};
    return fstat(handle_, &facts) == 0 ? facts.st_size : 0;
}

Outcome File::Seek(std::int64_t position) const {
    return lseek(handle_, position, SEEK_SET) == position ? Outcome{} : Failure(errno);
}

Outcome RemoveFile(const std::string& path) {
    const std::optional<std::string> native = FindPath(path);
    if (!native) {
        return Failure(ENOENT);
    }
    return unlink(native->c_str()) == 0 ? Outcome{} : Failure(errno);
}

}  // namespace platform
