// Files, as the system asks for them. Every path is a Windows path with backslashes; a native path
// is accepted as well. On Linux the whole tree is drive Z: and names are found whatever the case of
// their ASCII letters, the exact name first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// How a file operation ended: `ok`, or the reason in the operating system's words.
struct Outcome {
    bool ok = true;
    std::string reason;
    explicit operator bool() const { return ok; }
};

/// An open file of raw bytes, addressed by absolute positions from 0. Owns the file and closes it.
/// Only regular files open: a folder, a pipe or a device is refused at once and never waited for.
/// Other programs may read the file meanwhile.
class File {
  public:
    enum class Access {
        Read,       // the file must be there
        ReadWrite,  // the file must be there and be writable; nothing is cut off
        Create,     // as ReadWrite, and made empty if it is not there
    };

    /// A closed file.
    File() = default;
    /// The open file, or a closed one when the system refuses; `outcome` then says why.
    static File Open(const std::string& path, Access access, Outcome* outcome = nullptr);

    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File();

    bool IsOpen() const { return handle_ >= 0; }
    void Close();

    /// Reads up to `size` bytes from `position` into `buffer`; gives the number read, less than
    /// `size` at the end of the file, 0 on failure.
    std::size_t ReadAt(std::int64_t position, void* buffer, std::size_t size) const;
    /// Writes all the bytes, growing the file as needed.
    Outcome WriteAt(std::int64_t position, std::string_view bytes);
    /// Hands everything written over to the disk.
    Outcome Flush();
    /// Length in bytes, 0 on failure.
    std::int64_t Size() const;
    /// Moves the read position that Handle() shares; gives whether that worked.
    bool Seek(std::int64_t position) const;
    /// The C runtime's descriptor, -1 when closed. Stays owned by this object.
    int Handle() const { return handle_; }

  private:
    int handle_ = -1;
};

/// Whether the path names an existing ordinary file: not a folder, not hidden (on Linux: its name
/// begins with a point), not a system file, pipe or device. Read-only files count.
bool IsOrdinaryFile(const std::string& path);

/// Whether anything at all has that name: a file of any kind, hidden or not, or a folder.
bool Exists(const std::string& path);

/// The bare name under which `path` finds an ordinary file, as it is on the disk. A program that
/// stands for a name in `.exe` goes by the name asked for, so the length is always that of the bare
/// name in `path`. Empty when there is none; nothing at all when the text is no usable file name (a
/// URL).
std::optional<std::string> LookUpFileName(const std::string& path);

/// Bare names of the ordinary files in `directory` that match `pattern` (`*` and `?`, any case), in
/// case-insensitive name order. Empty when the directory is not there.
std::vector<std::string> ListFiles(const std::string& directory, const std::string& pattern);

/// All bytes of a regular file; `outcome` says whether it could be read.
std::string ReadWholeFile(const std::string& path, Outcome& outcome);

/// Puts `bytes` in the place of the file, or makes it: a new file is written beside the old one and
/// takes its name in one step. A failure leaves the old file whole. Keeps the old file's rights and
/// follows a link to the file it names.
Outcome ReplaceWholeFile(const std::string& path, std::string_view bytes);

/// Copies the content of one file over another, which is replaced. Fails when both are one file; a
/// failure leaves no half copy under the target's name.
Outcome CopyWholeFile(const std::string& from, const std::string& to);

/// Deletes one file. A file that is not there is a failure.
Outcome RemoveFile(const std::string& path);

}  // namespace platform
