// Numbers as configuration text spells them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The number that a text begins with, 0 when it begins with none. Blanks, TABs and LFs count as
/// not there. "&H" or "&O" (either case) begins a hexadecimal or octal whole number; anything else
/// is an optional sign, digits with at most one point, and an exponent after e, E, d or D. What is
/// too large for the width gives the largest finite number of that sign.
double NumberValue(std::string_view text);

/// The number in the width of 32 bits, held within what that can be.
float SingleNumber(double number);

/// The nearest whole number, halves to the even one, held within 32 bits; 0 for a NaN.
std::int32_t WholeNumber(double number);

/// The written form: decimal with a leading "-" if negative, as many significant digits as the
/// width carries (7 for float, 15 for double) without trailing zeros, and an exponent as in 1E+20
/// where the plain form would be longer than that or begin with five zeros. An infinite number is
/// written as the largest finite one, a NaN and a negative zero as 0, a flag as 1 or 0.
std::string NumberText(bool flag);
std::string NumberText(std::int16_t number);
std::string NumberText(std::int32_t number);
std::string NumberText(float number);
std::string NumberText(double number);
