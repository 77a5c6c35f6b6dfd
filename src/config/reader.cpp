#include "config/reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "config/config_map.h"
#include "config/number.h"

namespace {

/// Character classes. They are kept in a table because every character of a document is tested.
enum CharacterClass : unsigned char { Space = 1, EndsKey = 2, EndsPlainText = 4, StartsValue = 8 };

constexpr auto ClassesOf = [] {
    std::array<unsigned char, 256> table{};
    const auto enter = [&](std::string_view characters, CharacterClass in) {
        for (const char character : characters) {
            table[static_cast<unsigned char>(character)] |= in;
        }
    };
    enter(" \n\r\t", Space);
    enter(" \n\r\t{}=;/", EndsKey);
    enter("\r\t\"\\;", EndsPlainText);
    enter("\"0123456789&-.eE", StartsValue);
    return table;
}();

bool IsIn(CharacterClass wanted, char character) {
    return (ClassesOf[static_cast<unsigned char>(character)] & wanted) != 0;
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsIgnored(char character) {
    return character == '\r' || character == '\t';
}

/// The character for which a letter stands after a backslash.
char Unescaped(char letter) {
    switch (letter) {
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        default:
            return letter;
    }
}

/// The character of a numeric escape: the low eight bits of the code.
char CharacterOf(std::string_view code) {
    return static_cast<char>(static_cast<unsigned char>(std::llrint(NumberValue(code)) & 0xFF));
}

/// Reads without recursion. The entries of all open structures are in one vector, those of an inner
/// structure after those of the outer ones, and move to a map when their structure ends: so a map
/// is made once, in its final size.
class Reader {
  public:
    Reader(std::string_view text, std::size_t position)
        : at_(text.data() + std::min(position, text.size())), end_(text.data() + text.size()) {}

    ConfigMapRef Read();
    const char* At() const { return at_; }
    bool IsComplete() const { return complete_; }

  private:
    struct Structure {
        std::string key;
        std::size_t firstEntry;
    };

    bool SkipSpaces();
    void ReadEntries();
    void ReadValue();
    void ReadNumber();
    void ReadString();
    void ReadEscape();
    void SkipComment();
    void SkipBlockComment();
    void OpenStructure();
    void CloseStructure();

    void AppendUntil(CharacterClass stop, std::string& target);
    const char* SkipIgnored(const char* from) const;
    void Store(ConfigValue value);
    ConfigMapRef TakeEntries(std::size_t first);

    const char* at_;
    const char* end_;
    std::string key_;
    std::string value_;
    std::vector<Structure> open_;
    std::vector<ConfigEntry> entries_;
    bool complete_ = true;
};

ConfigMapRef Reader::Read() {
    ReadEntries();
    complete_ = complete_ && open_.empty();
    while (!open_.empty()) {
        CloseStructure();
    }
    return TakeEntries(0);
}

/// Spaces and line ends may be anywhere, also inside a key. Returns whether text is left.
bool Reader::SkipSpaces() {
    while (at_ != end_ && IsIn(Space, *at_)) {
        ++at_;
    }
    return at_ != end_;
}

void Reader::ReadEntries() {
    while (SkipSpaces()) {
        if (!IsIn(EndsKey, *at_)) {
            AppendUntil(EndsKey, key_);
            continue;
        }
        switch (*at_++) {
            case '=':
                ReadValue();
                break;
            case ';':
                Store(0.0);
                break;
            case '{':
                OpenStructure();
                break;
            case '}':
                if (open_.empty()) {
                    return;
                }
                CloseStructure();
                break;
            case '/':
                SkipComment();
                break;
            default:
                break;
        }
    }
}

/// After "=", everything up to the start of a string or a number is skipped.
void Reader::ReadValue() {
    at_ = std::find_if(at_, end_, [](char character) { return IsIn(StartsValue, character); });
    if (at_ == end_) {
        return;
    }
    if (*at_ == '"') {
        ++at_;
        ReadString();
    } else {
        ReadNumber();
    }
}

/// A number's text ends only at ";"; NumberValue decides how much of it counts.
void Reader::ReadNumber() {
    const char* const start = at_;
    at_ = std::find(at_, end_, ';');
    if (at_ == end_) {
        return;
    }
    std::string digits(start, at_++);
    std::erase(digits, '\r');
    const bool single = digits.find('.') != std::string::npos;
    const double number = NumberValue(digits);
    Store(single ? ConfigValue(SingleNumber(number)) : ConfigValue(number));
}

/// The closing quote stores the value and clears the key. Reading continues up to the next ";";
/// each further quote stores the text since the last one under the empty key. So a ";" ends the
/// string only when the key is empty.
void Reader::ReadString() {
    complete_ = false;
    while (at_ != end_) {
        AppendUntil(EndsPlainText, value_);
        if (at_ == end_) {
            return;
        }
        switch (*at_++) {
            case '"':
                Store(std::move(value_));
                value_.clear();
                complete_ = true;
                break;
            case '\\':
                ReadEscape();
                break;
            case ';':
                if (key_.empty()) {
                    value_.clear();
                    return;
                }
                value_ += ';';
                break;
            default:  // ignored
                break;
        }
    }
}

/// After a backslash: n, r and t are LF, CR and TAB; three characters starting with a digit are a
/// character code; any other character stands for itself.
void Reader::ReadEscape() {
    at_ = SkipIgnored(at_);
    if (at_ == end_) {
        return;
    }
    if (!IsDigit(*at_)) {
        value_ += Unescaped(*at_++);
        return;
    }
    std::string code;
    while (at_ != end_ && code.size() < 3) {
        code += *at_;
        at_ = SkipIgnored(at_ + 1);
    }
    value_ += CharacterOf(code);
}

/// Called after a "/" where a key could begin. A lone one is skipped.
void Reader::SkipComment() {
    const char* const second = SkipIgnored(at_);
    if (second == end_) {
        return;
    }
    if (*second == '/') {
        at_ = std::find(second, end_, '\n');
    } else if (*second == '*') {
        at_ = second;
        SkipBlockComment();
    }
}

/// Called at the "*" that opens the comment. The same "*" may close it: "/*/" is a whole comment.
void Reader::SkipBlockComment() {
    complete_ = false;
    while ((at_ = std::find(at_, end_, '*')) != end_) {
        at_ = SkipIgnored(at_ + 1);
        if (at_ != end_ && *at_ == '/') {
            ++at_;
            complete_ = true;
            return;
        }
    }
}

void Reader::OpenStructure() {
    open_.push_back({std::move(key_), entries_.size()});
    key_.clear();
}

void Reader::CloseStructure() {
    ConfigMapRef map = TakeEntries(open_.back().firstEntry);
    key_ = std::move(open_.back().key);
    open_.pop_back();
    Store(std::move(map));
}

/// Appends the characters up to the next one of that class, and moves to it.
void Reader::AppendUntil(CharacterClass stop, std::string& target) {
    const char* const start = at_;
    while (at_ != end_ && !IsIn(stop, *at_)) {
        ++at_;
    }
    target.append(start, static_cast<std::size_t>(at_ - start));
}

const char* Reader::SkipIgnored(const char* from) const {
    return std::find_if_not(from, end_, IsIgnored);
}

void Reader::Store(ConfigValue value) {
    ConfigEntry& entry = entries_.emplace_back();
    entry.key.swap(key_);
    entry.value = std::move(value);
}

ConfigMapRef Reader::TakeEntries(std::size_t first) {
    auto map = std::make_shared<ConfigMap>(std::span(entries_).subspan(first));
    entries_.resize(first);
    return map;
}

}  // namespace

ConfigMapRef ParseBlock(std::size_t& position, std::string_view text, bool* complete) {
    Reader reader(text, position);
    ConfigMapRef map = reader.Read();
    position = static_cast<std::size_t>(reader.At() - text.data());
    if (complete != nullptr) {
        *complete = reader.IsComplete();
    }
    return map;
}
