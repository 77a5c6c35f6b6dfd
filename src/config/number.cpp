#include "config/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr double Largest = std::numeric_limits<double>::max();
constexpr int SingleDigits = 7;
constexpr int DoubleDigits = 15;

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

std::size_t EndOfDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

/// Returns the end of the exponent that begins at `at`, or `at` itself if none does.
std::size_t EndOfExponent(std::string_view text, std::size_t at) {
    constexpr std::string_view Letters = "eEdD";
    if (at >= text.size() || Letters.find(text[at]) == std::string_view::npos) {
        return at;
    }
    const std::string_view sign = text.substr(at + 1, 1);
    const std::size_t digits = at + (sign == "+" || sign == "-" ? 2 : 1);
    const std::size_t end = EndOfDigits(text, digits);
    return end > digits ? end : at;
}

int DigitValue(char character) {
    if (IsDigit(character)) {
        return character - '0';
    }
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

double BasedValue(std::string_view digits, int base) {
    double value = 0;
    for (const char digit : digits) {
        if (DigitValue(digit) >= base) {
            break;
        }
        value = value * base + DigitValue(digit);
    }
    return std::min(value, Largest);
}

/// Whether a number out of a double's range is too large and not too small, which std::from_chars
/// does not say. `exponent` is empty or begins with its letter.
bool IsTooLarge(std::string_view mantissa, std::string_view exponent) {
    constexpr std::int64_t FarAway = std::numeric_limits<std::int64_t>::max() / 2;
    exponent.remove_prefix(std::min(exponent.find_first_of("+-0123456789"), exponent.size()));
    exponent.remove_prefix(exponent.starts_with('+') ? 1 : 0);
    std::int64_t shift = 0;
    if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), shift).ec ==
        std::errc::result_out_of_range) {
        shift = exponent.starts_with('-') ? -FarAway : FarAway;
    }
    const auto dot = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_not_of("0."));
    return dot - first + shift > 0;
}

/// The text contains no spaces. The letter of its exponent is replaced by the e that
/// std::from_chars expects.
double DecimalValue(std::string& text) {
    const bool negative = text.starts_with('-');
    const std::size_t start = negative || text.starts_with('+') ? 1 : 0;
    std::size_t mantissa = EndOfDigits(text, start);
    std::size_t digits = mantissa - start;
    if (text.compare(mantissa, 1, ".") == 0) {
        const std::size_t fraction = mantissa + 1;
        mantissa = EndOfDigits(text, fraction);
        digits += mantissa - fraction;
    }
    if (digits == 0) {
        return 0;
    }
    const std::size_t end = EndOfExponent(text, mantissa);
    if (end > mantissa) {
        text[mantissa] = 'e';
    }
    double value = 0;
    if (std::from_chars(text.data() + start, text.data() + end, value).ec ==
        std::errc::result_out_of_range) {
        const std::string_view all = text;
        const bool tooLarge =
            IsTooLarge(all.substr(start, mantissa - start), all.substr(mantissa, end - mantissa));
        value = tooLarge ? Largest : 0;
    }
    return negative ? -value : value;
}

template <class Number>
std::string RealText(Number number, int digits) {
    constexpr Number Limit = std::numeric_limits<Number>::max();
    constexpr Number AlwaysPlain = 1e6F;
    if (std::isnan(number)) {
        return "0";
    }
    if (std::abs(number) < AlwaysPlain && number == std::trunc(number)) {
        return std::to_string(static_cast<std::int32_t>(number));
    }
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                      std::clamp(number, -Limit, Limit), std::chars_format::general, digits);
    std::replace(buffer.data(), end.ptr, 'e', 'E');
    return {buffer.data(), end.ptr};
}

}  // namespace

double NumberValue(std::string_view text) {
    // The fast path for most numbers: up to nine digits fit in 32 bits.
    if (!text.empty() && text.size() <= 9 && EndOfDigits(text, 0) == text.size()) {
        std::int32_t whole = 0;
        std::from_chars(text.data(), text.data() + text.size(), whole);
        return whole;
    }
    std::string packed(text);
    std::erase_if(packed, [](char character) {
        return character == ' ' || character == '\t' || character == '\n';
    });
    const std::string_view digits =
        std::string_view(packed).substr(std::min<std::size_t>(packed.size(), 2));
    if (packed.starts_with("&H") || packed.starts_with("&h")) {
        return BasedValue(digits, 16);
    }
    if (packed.starts_with("&O") || packed.starts_with("&o")) {
        return BasedValue(digits, 8);
    }
    return DecimalValue(packed);
}

float SingleNumber(double number) {
    constexpr double Limit = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(number, -Limit, Limit));
}

std::int32_t WholeNumber(double number) {
    constexpr double Lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double Highest = std::numeric_limits<std::int32_t>::max();
    if (std::isnan(number)) {
        return 0;
    }
    return static_cast<std::int32_t>(std::clamp(std::nearbyint(number), Lowest, Highest));
}

std::string NumberText(bool flag) {
    return flag ? "1" : "0";
}

std::string NumberText(std::int16_t number) {
    return std::to_string(number);
}

std::string NumberText(std::int32_t number) {
    return std::to_string(number);
}

std::string NumberText(float number) {
    return RealText(number, SingleDigits);
}

std::string NumberText(double number) {
    return RealText(number, DoubleDigits);
}
