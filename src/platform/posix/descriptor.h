// File descriptors and what every file operation does with them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files.h"

namespace platform {

/// The failure that an `errno` value stands for.
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
    /// Whether the system could still write what it had kept back.
    bool Close();

  private:
    int number_;
};

/// Opens the regular file that a path of the system names, by `open` flags, close-on-exec. Anything
/// else is refused and not waited for.
Outcome OpenRegularFile(const std::string& path, int flags, Descriptor& descriptor);

/// Reads until `size` bytes are there or the file ends; `count` is how many. Asks again when a
/// signal interrupts.
Outcome ReadFully(int descriptor, std::int64_t position, void* buffer, std::size_t size,
                  std::size_t& count);

/// Writes all the bytes at `position`.
Outcome WriteFully(int descriptor, std::int64_t position, std::string_view bytes);

}  // namespace platform
