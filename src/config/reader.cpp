#include "config/reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "config/config_map.h"
#include "config/number.h"

namespace {

enum Class : unsigned char { Blank = 1, StopsKey = 2, StopsString = 4, BeginsValue = 8 };

constexpr auto classes = [] {
    std::array<unsigned char, 256> table{};
    const auto enter = [&](std::string_view characters, Class in) {
        for (const char character : characters) {
            table[static_cast<unsigned char>(character)] |= in;
        }
    };
    enter(" \n\r\t", Blank);
    enter(" \n\r\t{}=;/", StopsKey);
    enter("\r\t\"\\;", StopsString);
    enter("\"0123456789&-.eE", BeginsValue);
    return table;
}();

bool Is(char character, Class in) {
    return (classes[static_cast<unsigned char>(character)] & in) != 0;
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
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
    bool PassBlanks();
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
    void TakeRun(Class stop, std::string& target);
    const char* NextPresent(const char* from) const;
    void Store(ConfigValue value);

    const char* at_;
    const char* end_;
    std::string key_;
    std::string value_;
    std::vector<Level> levels_;
    std::vector<ConfigEntry> entries_;
};

/// So that the entries of a large text need not move as they become more: without structures, how
/// many there will be shows at its beginning.
void Reader::ReserveEntries() {
    constexpr std::size_t sampleSize = 1 << 16;
    constexpr std::size_t usualEntry = 16;  // characters; strings may hold many a ";"
    const std::string_view text(at_, static_cast<std::size_t>(end_ - at_));
    const std::string_view sample = text.substr(0, sampleSize);
    if (text.size() > sampleSize && sample.find('{') == std::string_view::npos) {
        const auto ends = static_cast<std::size_t>(std::ranges::count(sample, ';'));
        entries_.reserve((text.size() / sampleSize + 1) * std::min(ends, sampleSize / usualEntry));
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

/// Blanks and line ends may stand anywhere, inside a key too. Gives whether text is left.
bool Reader::PassBlanks() {
    while (at_ != end_ && Is(*at_, Blank)) {
        ++at_;
    }
    return at_ != end_;
}

void Reader::ReadEntries() {
    while (PassBlanks()) {
        if (!Is(*at_, StopsKey)) {
            TakeRun(StopsKey, key_);
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
            default:
                break;
        }
    }
}

/// Behind a key's "=", everything up to the beginning of a string or a number is passed over.
void Reader::ReadValue() {
    at_ = std::find_if(at_, end_, [](char character) { return Is(character, BeginsValue); });
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
    std::string_view digits(start, at_++);
    std::string present;
    if (hasReturns) {
        present = digits;
        std::erase(present, '\r');
        digits = present;
    }
    const double number = NumberValue(digits);
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
void Reader::TakeRun(Class stop, std::string& target) {
    const char* at = at_;
    while (at != end_ && !Is(*at, stop)) {
        ++at;
    }
    target.append(at_, static_cast<std::size_t>(at - at_));
    at_ = at;
}

const char* Reader::NextPresent(const char* from) const {
    return std::find_if_not(from, end_, CountsAsAbsent);
}

void Reader::Store(ConfigValue value) {
    ConfigEntry& entry = entries_.emplace_back();
    entry.key.swap(key_);
    entry.value = std::move(value);
}

}  // namespace

ConfigMapRef ParseBlock(std::size_t& position, std::string_view text) {
    Reader reader(text, position);
    ConfigMapRef map = reader.Read();
    position = static_cast<std::size_t>(reader.At() - text.data());
    return map;
}
