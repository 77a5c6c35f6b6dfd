// Writes a configuration tree in the text form that the reader reads (see reader.h).
#pragma once

#include <string>
#include <string_view>

#include "config/config_map.h"

/// The text as it is written between the quotes of a string.
std::string EscapeText(std::string_view text);

/// The text form of a map at nesting level `level`, 0 for a document's root. `newLine` ends each
/// line. `whitespace` chooses the readable form: a TAB per level, spaces around "=" and an empty
/// line before and after a structure. Keys are written unchanged: one with a space or one of = ; {
/// } / in it is not read back.
std::string OutputBlock(const ConfigMap& map, std::size_t level, std::string_view newLine,
                        bool whitespace);
