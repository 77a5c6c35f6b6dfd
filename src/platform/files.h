// Files of the operating system. Every path is a Windows path with backslashes; a native path is
// accepted as well. On Linux the file tree is drive Z: and a name is found in any case of its ASCII
// letters, the exact name first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/outcome.h"

namespace platform {

/// An open file of raw bytes, addressed by absolute positions from 0. Closes the file when it is
/// destroyed. Opening anything but a regular file (a folder, a pipe, a device) fails without
/// waiting. Other programs may use the file meanwhile.
class File {
  public:
    enum class Access {
        Read,       // the file must exist
        ReadWrite,  // the file must exist; its content stays
        Create,     // as ReadWrite, but a missing file is created empty
    };

    /// A closed file.
    File() = default;
    /// Takes over a descriptor of the C runtime.
    explicit File(int descriptor) : handle_(descriptor) {}
    File(File&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}
    File& operator=(File&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { Close(); }

    /// Closes the file and opens another. On failure it stays closed.
    Outcome Open(const std::string& path, Access access);
    bool IsOpen() const { return handle_ >= 0; }
    void Close();

    /// Reads up to `size` bytes at `position` into `buffer`. `count` is the number read: less than
    /// `size` only at the end of the file, 0 on failure.
    Outcome ReadAt(std::int64_t position, void* buffer, std::size_t size, std::size_t& count) const;
    /// Writes all the bytes at `position`; the file grows as needed.
    Outcome WriteAt(std::int64_t position, std::string_view bytes);
    /// Returns once everything written is on the disk.
    Outcome Flush();
    /// Length in bytes, 0 for a closed file.
    std::int64_t Size() const;
    /// Moves the read position of Handle().
    Outcome Seek(std::int64_t position) const;
    /// The C runtime's descriptor, which this object still owns; -1 for a closed file.
    int Handle() const { return handle_; }

  private:
    int handle_ = -1;
};

/// Whether the path names an existing ordinary file: not a folder, pipe, device or system file, and
/// not hidden (on Linux: its name begins with a dot). Read-only files count.
bool IsOrdinaryFile(const std::string& path);

/// Whether the path names anything: a file of any kind, hidden or not, or a folder.
bool Exists(const std::string& path);

/// Returns the bare name of the ordinary file at `path`, spelled as on the disk; an empty text if
/// there is none; nothing if `path` is a URL. A name of another length (`foo` found for `foo.exe`)
/// is returned as it was asked for, so that callers can cut it off `path`.
std::optional<std::string> LookUpFileName(const std::string& path);

/// Fails, with a message that contains the path, if the path has a character that Zorvane cannot
/// handle: on Linux a double quote (it would end the argument on a command line) or a backslash (it
/// would separate folders).
Outcome CheckNativeName(std::string_view path);

/// Bare names of the ordinary files in `directory` that match `pattern` (`*` and `?`, in any case),
/// in case-insensitive name order. Empty if there is no such directory.
std::vector<std::string> ListFiles(const std::string& directory, const std::string& pattern);

/// The largest file that is read or written as a whole: 64 MiB.
inline constexpr std::size_t LargestWholeFile = std::size_t{64} << 20;

/// Reads all bytes of a regular file. Fails if it is larger than LargestWholeFile. `bytes` is empty
/// on failure.
Outcome ReadWholeFile(const std::string& path, std::string& bytes);

/// Writes a file atomically: writes a temporary file beside it, flushes that and renames it over
/// the target. A failure leaves the old file whole. Fails above LargestWholeFile. Follows links,
/// and keeps the permissions of an existing file.
Outcome ReplaceWholeFile(const std::string& path, std::string_view bytes);

/// Copies the content of one file over another, atomically as ReplaceWholeFile. Fails if both are
/// the same file.
Outcome CopyWholeFile(const std::string& from, const std::string& to);

/// Deletes one file. Fails if there is none.
Outcome RemoveFile(const std::string& path);

}  // namespace platform
