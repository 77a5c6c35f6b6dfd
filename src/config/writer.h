// Writes a configuration tree in the text form that the reader reads.
#pragma once

#include <string>
#include <string_view>

#include "config/config_map.h"

/// The text that stands for `text` between the quotes of a string.
std::string EscapeText(std::string_view text);

/// The text form of a map at nesting level `level`, 0 for a document's root. `newLine` ends each
/// line. `whitespace` gives the readable form: a TAB for each level, blanks around "=" and an empty
/// line on both sides of a structure. Keys go out as they are: one that holds a blank or one of
/// = ; { } / does not come back when the text is read.
std::string OutputBlock(const ConfigMap& map, std::size_t level, std::string_view newLine,
                        bool whitespace);
