// The door between the paths of the system (Windows paths, this machine's tree being drive Z:) and
// native ones. Native paths go in as well and come out unchanged but for their backslashes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// `Z:\home\u` or `/home/u` as `/home/u`; a path without a drive stays relative. Nothing for
/// another drive, which is not there, or a text that no path can be (a NUL inside).
std::optional<std::string> NativePath(std::string_view path);

/// The native path of what `path` names, looked up component by component: the exact name first,
/// then in name order the first that is equal but for the case of ASCII letters. Nothing when it is
/// not there. A link counts as being there, wherever it leads.
std::optional<std::string> FindPath(std::string_view path);

/// As FindPath, but what is not there keeps its name: the place where a new file goes. Nothing only
/// where NativePath gives nothing.
std::optional<std::string> TargetPath(std::string_view path);

/// As FindPath for a regular file; a path that ends in `.exe` and finds none stands for the same
/// path without that ending.
std::optional<std::string> FindProgram(std::string_view path);

/// `/home/u` as `Z:\home\u`.
std::string WindowsPath(std::string_view native);

/// What a person is shown: in each line everything from a `Z:\` on as a native path.
std::string NativeText(std::string_view text);

}  // namespace platform
