// File names as Windows joins, matches and orders them. The case of ASCII letters is ignored.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Returns directory, backslash, name. A directory that ends in a backslash gets a second one.
std::string JoinPath(std::string_view directory, std::string_view name);

/// Returns the texts between double quotes, in order. Skips what is outside, and an unclosed quote.
std::vector<std::string> QuotedPaths(std::string_view commandLine);

/// Whether the text begins with the scheme of a URL, such as `https:`. One letter is a drive.
bool IsUrl(std::string_view text);

/// Whether the whole name matches the pattern: `*` matches any characters, `?` exactly one.
bool MatchesPattern(std::string_view name, std::string_view pattern);

/// Whether a folder's listing shows `left` before `right`. Names that differ in case only are
/// ordered by their bytes.
bool ListedBefore(const std::string& left, const std::string& right);
