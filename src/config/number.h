// Numbers as configuration text spells them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The number that a text begins with, 0 when it begins with none. Spaces, TABs and LFs are
/// ignored wherever they are.
/// "&H" or "&O" (either case) starts a hexadecimal or octal whole number; anything else is an
/// optional sign, digits with at most one dot, and an optional exponent after e, E, d or D. A
/// number too large for a double becomes the largest finite one of its sign.
double NumberValue(std::string_view text);

/// Converts to float, clamped to its finite range.
float SingleNumber(double number);

/// The nearest whole number, halves to the even one, clamped to 32 bits; 0 for a NaN.
std::int32_t WholeNumber(double number);

/// The written form: decimal with a leading "-" if negative, with up to 7 significant digits for a
/// float and 15 for a double, without trailing zeros. An exponent as in 1E+20 is used where the
/// plain form would need more digits than that, or begin with five zeros. An infinite number is
/// written as the largest finite one, a NaN and a negative zero as 0, a flag as 1 or 0.
std::string NumberText(bool flag);
std::string NumberText(std::int16_t number);
std::string NumberText(std::int32_t number);
std::string NumberText(float number);
std::string NumberText(double number);
