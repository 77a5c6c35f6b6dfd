// Reads the text form of a configuration:
//
//     // a comment
//     name = "C:\\games";   /* another */
//     skill = 2;
//     ratio = 0.5;
//     files
//     {
//         wad = "WAD files";
//     }
//
// Every text is accepted; what makes no sense is skipped. CR and TAB are ignored everywhere, also
// in strings, which contain them as \r and \t. A number with a dot becomes a float, any other a
// double.
#pragma once

#include <cstddef>
#include <string_view>

#include "config/config_value.h"

/// Reads from `position`, the number of characters already read, to a `}` that closes nothing or to
/// the end of the text, and moves `position` past what it read. Of a repeated key the last value
/// counts, at the first one's place. Only memory limits the depth of nesting. `complete`, if given,
/// becomes false when the text ends inside a structure, a string or a block comment.
ConfigMapRef ParseBlock(std::size_t& position, std::string_view text, bool* complete = nullptr);
