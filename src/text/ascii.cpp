#include "text/ascii.h"

#include <algorithm>

char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                                : character;
}

char UpperCase(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - ('a' - 'A'))
                                                : character;
}

std::string LowerCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char letter) { return LowerCase(letter); });
    return result;
}

std::string UpperCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char letter) { return UpperCase(letter); });
    return result;
}

std::string_view TrimSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right,
                              [](char a, char b) { return LowerCase(a) == LowerCase(b); });
}

bool EndsWithIgnoringCase(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() &&
           EqualIgnoringCase(text.substr(text.size() - ending.size()), ending);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos;
         at = text.find(from, start)) {
        result.append(text, start, at - start).append(to);
        start = at + from.size();
    }
    return result.append(text, start);
}
