#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Splits a command line text into arguments: blanks part them, double quotes group and are
/// dropped, an unclosed one groups to the end, a backslash is an ordinary character, `""` is an
/// empty argument. An argument that begins with `Z:\` (either case) comes out as a native path,
/// what is there by its name on the disk.
std::vector<std::string> SplitArguments(std::string_view text);

}  // namespace platform
