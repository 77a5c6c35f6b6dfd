#include "config/reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "config/config_map.h"
#include "config/number.h"

namespace {

enum Stop : unsigned char { StopsKey = 1, StopsString = 2 };

constexpr auto stops = [] {
    std::array<unsigned char, 256> table{};
    for (const char character : std::string_view(" \n\r\t{}=;/")) {
        table[static_cast<unsigned char>(character)] |= StopsKey;
    }
    for (const char character : std::string_view("\r\t\"\\;")) {
        table[static_cast<unsigned char>(character)] |= StopsString;
    }
    return table;
}();

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool BeginsNumber(char character) {
    constexpr std::string_view others = "&-.eE";
    return IsDigit(character) || others.find(character) != std::string_view::npos;
}

bool CountsAsAbsent(char character) {
    return character == '\r' || character == '\t';
}

/// The character of a numeric escape: the low eight bits of the code.
char CharacterOf(std::string_view code) {
    return static_cast<char>(static_cast<unsigned char>(std::llrint(NumberValue(code)) & 0xFF));
}

/// The entries of all levels that are open stand in one vector, an inner level's behind those of
/// the levels around it, and leave it for a map when their level closes.
class Reader {
  public:
    Reader(std::string_view text, std::size_t position)
        : at_(text.data() + std::min(position, text.size())), end_(text.data() + text.size()) {
        ReserveEntries();
    }

    ConfigMapRef Read();
    const char* At() const { return at_; }

  private:
    struct Level {
        std::string key;
        std::size_t firstEntry;
    };

    void ReserveEntries();
    void ReadEntries();
    void ReadValue();
    void ReadNumber();
    void ReadString();
    void ReadEscape();
    void PassComment();
    void PassBlockComment();
    void Open();
    void Close();

    std::vector<ConfigEntry> TakeEntries(std::size_t place);
    void TakeRun(Stop stop, std::string& target);
    const char* NextPresent(const char* from) const;
    void Store(ConfigValue value);

    const char* at_;
    const char* end_;
    std::string key_;
    std::string value_;
    std::vector<Level> levels_;
    std::vector<ConfigEntry> entries_;
};

/// So that the entries of a large text need not move as they become more.
void Reader::ReserveEntries() {
    constexpr std::size_t largeText = 1 << 20;
    constexpr std::size_t usualEntry = 16;  // characters; strings may hold many a ";"
    const auto size = static_cast<std::size_t>(end_ - at_);
    if (size > largeText) {
        const auto ends = static_cast<std::size_t>(std::count(at_, end_, ';'));
        entries_.reserve(std::min(ends, size / usualEntry));
    }
}

ConfigMapRef Reader::Read() {
    ReadEntries();
    while (!levels_.empty()) {
        Close();
    }
    const bool fits = entries_.size() >= entries_.capacity() / 2;
    return std::make_shared<ConfigMap>(fits ? std::move(entries_) : TakeEntries(0));
}

void Reader::ReadEntries() {
    while (at_ != end_) {
        TakeRun(StopsKey, key_);
        if (at_ == end_) {
            return;
        }
        switch (*at_++) {
            case '=':
                ReadValue();
                break;
            case ';':
                Store(0.0);
                break;
            case '{':
                Open();
                break;
            case '}':
                if (levels_.empty()) {
                    return;
                }
                Close();
                break;
            case '/':
                PassComment();
                break;
            default:  // a blank or a line's end, which may stand anywhere
                break;
        }
    }
}

/// Behind a key's "=", everything up to the beginning of a string or a number is passed over.
void Reader::ReadValue() {
    while (at_ != end_) {
        if (*at_ == '"') {
            ++at_;
            ReadString();
            return;
        }
        if (BeginsNumber(*at_)) {
            ReadNumber();
            return;
        }
        ++at_;
    }
}

void Reader::ReadNumber() {
    const char* const start = at_;
    bool single = false;
    bool hasReturns = false;
    for (; at_ != end_ && *at_ != ';'; ++at_) {
        single = single || *at_ == '.';
        hasReturns = hasReturns || *at_ == '\r';
    }
    if (at_ == end_) {
        return;
    }
    value_.assign(start, at_++);
    if (hasReturns) {
        std::erase(value_, '\r');
    }
    const double number = NumberValue(value_);
    value_.clear();
    Store(single ? ConfigValue(SingleNumber(number)) : ConfigValue(number));
}

/// A closing quote stores the text and takes the key; the string lasts on, up to the ";" that then
/// meets no key.
void Reader::ReadString() {
    while (at_ != end_) {
        TakeRun(StopsString, value_);
        if (at_ == end_) {
            return;
        }
        switch (*at_++) {
            case '"':
                Store(std::move(value_));
                value_.clear();
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
            default:  // CR and TAB
                break;
        }
    }
}

void Reader::ReadEscape() {
    at_ = NextPresent(at_);
    if (at_ == end_) {
        return;
    }
    if (!IsDigit(*at_)) {
        constexpr std::string_view letters = "nrt";
        constexpr std::string_view controls = "\n\r\t";
        const std::size_t letter = letters.find(*at_);
        value_ += letter == std::string_view::npos ? *at_ : controls[letter];
        ++at_;
        return;
    }
    std::string code;
    while (at_ != end_ && code.size() < 3) {
        code += *at_;
        at_ = NextPresent(at_ + 1);
    }
    value_ += CharacterOf(code);
}

/// Called behind a "/" that stands where a key could begin. A lone one is passed over.
void Reader::PassComment() {
    const char* const second = NextPresent(at_);
    if (second == end_) {
        return;
    }
    if (*second == '/') {
        const char* const line = std::find(second, end_, '\n');
        at_ = line == end_ ? end_ : line + 1;
    } else if (*second == '*') {
        at_ = second;
        PassBlockComment();
    }
}

/// Called on the "*" that opens the comment, which may be the one that closes it as well.
void Reader::PassBlockComment() {
    while ((at_ = std::find(at_, end_, '*')) != end_) {
        at_ = NextPresent(at_ + 1);
        if (at_ != end_ && *at_ == '/') {
            ++at_;
            return;
        }
    }
}

void Reader::Open() {
    levels_.push_back({std::move(key_), entries_.size()});
    key_.clear();
}

void Reader::Close() {
    std::vector<ConfigEntry> entries = TakeEntries(levels_.back().firstEntry);
    key_ = std::move(levels_.back().key);
    levels_.pop_back();
    Store(std::make_shared<ConfigMap>(std::move(entries)));
}

/// The entries from that place on, in no more memory than they need.
std::vector<ConfigEntry> Reader::TakeEntries(std::size_t place) {
    const auto first = entries_.begin() + static_cast<std::ptrdiff_t>(place);
    std::vector<ConfigEntry> taken(std::make_move_iterator(first),
                                   std::make_move_iterator(entries_.end()));
    entries_.erase(first, entries_.end());
    return taken;
}

/// Appends the plain characters from here up to the next one that means something.
void Reader::TakeRun(Stop stop, std::string& target) {
    const char* at = at_;
    while (at != end_ && !(stops[static_cast<unsigned char>(*at)] & stop)) {
        ++at;
    }
    target.append(at_, static_cast<std::size_t>(at - at_));
    at_ = at;
}

const char* Reader::NextPresent(const char* from) const {
    return std::find_if_not(from, end_, CountsAsAbsent);
}

void Reader::Store(ConfigValue value) {
    entries_.push_back({std::move(key_), std::move(value)});
    key_.clear();
}

}  // namespace

ConfigMapRef ParseBlock(std::size_t& position, std::string_view text) {
    Reader reader(text, position);
    ConfigMapRef map = reader.Read();
    position = static_cast<std::size_t>(reader.At() - text.data());
    return map;
}
