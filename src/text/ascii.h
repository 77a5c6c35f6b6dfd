// Text is bytes, one per character, and is never decoded. Only the 26 ASCII letters have a case.
#pragma once

#include <string>
#include <string_view>

/// Returns the ASCII letter in lower or upper case, and any other byte unchanged.
char LowerCase(char character);
char UpperCase(char character);

/// Converts every character of a text.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// Returns the text without leading and trailing spaces (U+0020 only).
std::string_view TrimSpaces(std::string_view text);

/// Both compare byte by byte, ignoring the case of ASCII letters.
bool EqualIgnoringCase(std::string_view left, std::string_view right);
bool EndsWithIgnoringCase(std::string_view text, std::string_view ending);

/// Replaces every occurrence of `from` (not empty), from left to right.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
