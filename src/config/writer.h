// Writes a configuration tree in the text form that the reader reads (see reader.h).
#pragma once

#include <string>
#include <string_view>

#include "config/config_map.h"

/// The text as it is written between the quotes of a string.
std::string EscapeText(std::string_view text);

/// Whether the reader reads a key back as it was written. A key that contains a space, TAB, CR, LF
/// or one of = ; { } / is read as another one, or as no key.
bool KeyCanBeReadBack(std::string_view key);

/// The text form of a map at nesting level `level`, 0 for a document's root. `newLine` ends each
/// line. `whitespace` chooses the readable form: a TAB per level, spaces around "=" and an empty
/// line before and after a structure. Keys are written unchanged.
std::string OutputBlock(const ConfigMap& map, std::size_t level, std::string_view newLine,
                        bool whitespace);

/// Whether the text form of a document has at most `limit` bytes. Holds only one line of it:
/// indents grow with the square of the depth, so a small file may have a text that memory cannot
/// hold.
bool OutputFits(const ConfigMap& root, std::string_view newLine, bool whitespace,
                std::size_t limit);
