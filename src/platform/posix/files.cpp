#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/posix/descriptor.h"

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

File File::Open(const std::string& path, Access access, Outcome* outcome) {
    File file;
    Descriptor descriptor;
    const Outcome opened = OpenRegularFile(path, OpenFlags(access), descriptor);
    file.handle_ = descriptor.Release();
    if (outcome != nullptr) {
        *outcome = opened;
    }
    return file;
}

File::File(File&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}

File& File::operator=(File&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

File::~File() {
    Close();
}

void File::Close() {
    if (IsOpen()) {
        close(std::exchange(handle_, -1));
    }
}

std::size_t File::ReadAt(std::int64_t position, void* buffer, std::size_t size) const {
    std::size_t count = 0;
    return ReadFully(handle_, position, buffer, size, count) ? count : 0;
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

bool File::Seek(std::int64_t position) const {
    return lseek(handle_, position, SEEK_SET) == position;
}

}  // namespace platform
