// Converts between Zorvane's Windows paths, in which the file tree is drive Z:, and native paths. A
// native path is accepted too: its backslashes become slashes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace platform {

/// Whether the path begins with a letter and a colon.
bool HasDrive(std::string_view path);

/// Returns `/home/u` for `Z:\home\u` and `/home/u`; a path without a drive stays relative. Returns
/// nothing for another drive and for a text that cannot be a path (empty, or with a NUL inside).
std::optional<std::string> NativePath(std::string_view path);

/// Returns the native path of what `path` names, or nothing if it does not exist. Of each component
/// the exact name comes first, then the first name, in byte order, that differs in ASCII case only.
/// A link exists, wherever it leads.
std::optional<std::string> FindPath(std::string_view path);

/// A cache of folder listings, so that repeated look-ups list each folder once.
class FolderNames {
  public:
    /// The first name in the folder that equals `name` but for case, null if there is none.
    const std::string* Find(const std::string& folder, std::string_view name);

  private:
    using ByLowerCase = std::unordered_map<std::string, std::string>;
    std::unordered_map<std::string, ByLowerCase> folders_;
};

/// As FindPath, but a missing component keeps its name: the place for a new file. Returns nothing
/// only if NativePath does.
std::optional<std::string> TargetPath(std::string_view path, FolderNames& names);
std::optional<std::string> TargetPath(std::string_view path);

/// As FindPath for a regular file. If `foo.exe` is missing, returns `foo`.
std::optional<std::string> FindProgram(std::string_view path);

/// Returns `Z:\home\u` for `/home/u`.
std::string WindowsPath(std::string_view native);

/// Returns the text as it is shown: in each line, everything from `Z:\` on becomes a native path.
std::string NativeText(std::string_view text);

}  // namespace platform
