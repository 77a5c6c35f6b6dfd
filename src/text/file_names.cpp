#include "text/file_names.h"

#include "text/ascii.h"

std::string JoinPath(std::string_view directory, std::string_view name) {
    return std::string(directory).append(1, '\\').append(name);
}

std::vector<std::string> QuotedPaths(std::string_view commandLine) {
    std::vector<std::string> paths;
    std::size_t open = commandLine.find('"');
    while (open != std::string_view::npos) {
        const std::size_t close = commandLine.find('"', open + 1);
        if (close == std::string_view::npos) {
            break;
        }
        paths.emplace_back(commandLine.substr(open + 1, close - open - 1));
        open = commandLine.find('"', close + 1);
    }
    return paths;
}

bool IsUrl(std::string_view text) {
    constexpr std::string_view SchemeCharacters = "abcdefghijklmnopqrstuvwxyz0123456789+-.";
    const std::size_t colon = text.find(':');
    const std::string scheme = LowerCase(text.substr(0, colon));
    return colon != std::string_view::npos && scheme.size() >= 2 && scheme[0] >= 'a' &&
           scheme[0] <= 'z' && scheme.find_first_not_of(SchemeCharacters) == std::string::npos;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    // On a mismatch, the last `*` takes one more character and matching resumes after it. Earlier
    // ones need no second try, so the time is at most the product of both lengths.
    std::size_t at = 0;
    std::size_t inPattern = 0;
    std::size_t star = std::string_view::npos;
    std::size_t afterStar = 0;
    while (at < name.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == '*') {
            star = inPattern++;
            afterStar = at;
        } else if (inPattern < pattern.size() &&
                   (pattern[inPattern] == '?' ||
                    LowerCase(pattern[inPattern]) == LowerCase(name[at]))) {
            ++inPattern;
            ++at;
        } else if (star != std::string_view::npos) {
            inPattern = star + 1;
            at = ++afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == std::string_view::npos;
}

bool ListedBefore(const std::string& left, const std::string& right) {
    // Windows compares capitals: `_` comes after the letters.
    const int order = UpperCase(left).compare(UpperCase(right));
    return order != 0 ? order < 0 : left < right;
}
