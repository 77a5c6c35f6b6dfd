// The temporary file of an atomic replacement. Only whole_files.cpp uses it; the back end defines
// it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace platform {

/// A new file beside the one that it will replace. Deleted unless it is committed.
class TemporaryFile {
  public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    /// Creates it beside the file that `path` names once links are followed. Fails if that file is
    /// write-protected or not a regular file.
    Outcome Create(const std::string& path);
    Outcome Append(std::string_view bytes);
    /// Flushes it and renames it over the target, whose permissions it takes over. Then deletes the
    /// temporary files that killed runs left in that folder.
    Outcome Commit();
    /// Whether `file` is the file that Commit would replace.
    bool Replaces(const File& file) const;

  private:
    std::string target_;
    std::string name_;  // empty before Create and after Commit
    File file_;
    std::int64_t size_ = 0;
};

/// A new file name, made of the id of this process and the time.
std::string TemporaryName();

/// Whether a file name is a TemporaryName of a process that has ended.
bool IsAbandoned(std::string_view name);

/// The id of this process.
std::uint32_t ProcessId();
/// Whether a process is running; true if that cannot be determined.
bool IsRunning(std::uint32_t processId);

}  // namespace platform
