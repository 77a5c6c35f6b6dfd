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
// Every text is accepted, and what makes no sense is passed over. CR and TAB count as not there,
// inside strings too; a string holds them as \r and \t. A number with a point is one of 32 bits,
// any other is one of 64 bits.
#pragma once

#include <cstddef>
#include <string_view>

#include "config/config_value.h"

/// What the text says from `position`, the number of characters that are done with, up to a `}`
/// that closes nothing or the end of the text; `position` then stands behind that. Of a repeated
/// key the last value counts, at the first one's place. Depth of nesting is bounded by memory
/// alone.
ConfigMapRef ParseBlock(std::size_t& position, std::string_view text);
