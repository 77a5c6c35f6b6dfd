#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Splits a command line at spaces. Double quotes group and are removed; an unclosed one groups to
/// the end, and `""` is an empty argument. A backslash is an ordinary character. An argument that
/// begins with `Z:\` (in either case) becomes a native path, with the names of the disk.
std::vector<std::string> SplitArguments(std::string_view text);

}  // namespace platform
