#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/posix/descriptor.h"
#include "platform/posix/paths.h"

namespace platform {

Outcome Failure(int error) {
    return {false, std::generic_category().message(error)};
}

void Descriptor::Close() {
    if (number_ >= 0) {
        close(std::exchange(number_, -1));
    }
}

Outcome OpenRegularFile(const std::string& path, int flags, Descriptor& descriptor) {
    std::optional<std::string> native = NativePath(path);
    if (!native) {
        return Failure(ENOENT);
    }
    // Without O_NONBLOCK, opening a pipe would wait for its other end.
    constexpr int Always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    Descriptor opened(open(native->c_str(), (flags & ~O_CREAT) | Always));
    if (opened.Number() < 0 && (errno == ENOENT || errno == ENOTDIR)) {
        constexpr mode_t Mode = 0666;  // less the bits of the user's umask
        native = TargetPath(path);
        opened = Descriptor(open(native->c_str(), flags | Always, Mode));
    }
    struct stat facts = {};
    if (opened.Number() < 0 || fstat(opened.Number(), &facts) != 0) {
        return Failure(errno);
    }
    if (!S_ISREG(facts.st_mode)) {
        return Failure(S_ISDIR(facts.st_mode) ? EISDIR : EINVAL);
    }
    descriptor = std::move(opened);
    return {};
}

Outcome ReadFully(int descriptor, std::int64_t position, void* buffer, std::size_t size,
                  std::size_t& count) {
    count = 0;
    while (count < size) {
        const ssize_t got = pread(descriptor, static_cast<char*>(buffer) + count, size - count,
                                  position + static_cast<std::int64_t>(count));
        if (got == 0) {
            break;
        }
        if (got > 0) {
            count += static_cast<std::size_t>(got);
        } else if (errno != EINTR) {
            return Failure(errno);
        }
    }
    return {};
}

Outcome WriteFully(int descriptor, std::int64_t position, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = pwrite(descriptor, bytes.data(), bytes.size(), position);
        if (put > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(put));
            position += put;
        } else if (put == 0 || errno != EINTR) {
            return Failure(put == 0 ? ENOSPC : errno);
        }
    }
    return {};
}

}  // namespace platform
