// File names as Windows matches and orders them: the case of ASCII letters counts for nothing.
#pragma once

#include <string>
#include <string_view>

/// Whether the name fits the pattern, in which `*` stands for any characters and `?` for one.
bool MatchesPattern(std::string_view name, std::string_view pattern);

/// The directory, a backslash and the name. Adds the backslash even after one, as in `C:\\a.wad`.
std::string JoinPath(std::string_view directory, std::string_view name);

/// Whether a listing of a folder has `left` before `right`: the order of their capital forms.
bool ListedBefore(const std::string& left, const std::string& right);
