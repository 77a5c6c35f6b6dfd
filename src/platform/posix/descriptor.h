// Owned file descriptors, and opening, reading and writing through them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files.h"

namespace platform {

/// The failure for an `errno` value.
Outcome Failure(int error);

/// Owns a file descriptor and closes it; -1 is none.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int Number() const { return number_; }
    int Release() { return std::exchange(number_, -1); }
    void Close();

  private:
    int number_;
};

/// Opens a regular file, close-on-exec, with the given `open` flags. Fails, without waiting, for
/// any other kind of file.
Outcome OpenRegularFile(const std::string& path, int flags, Descriptor& descriptor);

/// Reads `size` bytes, or fewer at the end of the file; `count` is the number read. Continues after
/// a signal.
Outcome ReadFully(int descriptor, std::int64_t position, void* buffer, std::size_t size,
                  std::size_t& count);

/// Writes all the bytes at `position`.
Outcome WriteFully(int descriptor, std::int64_t position, std::string_view bytes);

}  // namespace platform
