// Text is one byte a character and is never decoded. Only the 26 ASCII letters have a case.
#pragma once

#include <string>
#include <string_view>

/// The letter's lower or upper case form; any other byte unchanged.
char LowerCase(char character);
char UpperCase(char character);

/// The same for every character of a text.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// The text without the blanks (code 32, nothing else) at both of its ends.
std::string_view TrimBlanks(std::string_view text);

/// Whether the text ends in `ending`, the case of ASCII letters apart.
bool EndsWithIgnoringCase(std::string_view text, std::string_view ending);

/// Whether two texts are equal, the case of ASCII letters apart.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

/// `text` with every occurrence of `from` (not empty) replaced, from left to right.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
