// Any text gives a tree; its written form gives that tree again.
#include <algorithm>
#include <functional>

#include "config/number.h"
#include "config/reader.h"
#include "config/writer.h"
#include "require.h"

namespace {

ConfigMapRef Read(std::string_view text) {
    std::size_t position = 0;
    ConfigMapRef map = ParseBlock(position, text);
    Require(position <= text.size(), "the reader stops within the text");
    return map;
}

/// The text of what a value comes back as: a number written with a point keeps what 32 bits carry.
std::string ReadAgain(const ConfigValue& value) {
    std::string text = value.AsText();
    if (!value.IsNumber()) {
        return text;
    }
    const double number = NumberValue(text);
    return text.find('.') != std::string::npos ? NumberText(SingleNumber(number))
                                               : NumberText(number);
}

template <class Form>
bool Same(const ConfigMap& left, const ConfigMap& right, Form form) {
    return std::ranges::equal(left.Entries(), right.Entries(), [&](const auto& a, const auto& b) {
        const ConfigMapRef map = a.value.AsMap();
        if (a.key != b.key || a.value.IsText() != b.value.IsText() || b.value.IsMap() != !!map) {
            return false;
        }
        return map ? Same(*map, *b.value.AsMap(), form) : form(a.value) == b.value.AsText();
    });
}

/// A text with a ";" under the empty key is the one thing read that does not survive writing.
bool Survives(const ConfigMap& map) {
    return std::ranges::all_of(map.Entries(), [](const ConfigEntry& entry) {
        const ConfigMapRef nested = entry.value.AsMap();
        return nested ? Survives(*nested)
                      : !entry.key.empty() || !entry.value.IsText() ||
                            entry.value.AsText().find(';') == std::string::npos;
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    const std::string text(bytes, size);
    const ConfigMapRef tree = Read(text);
    std::string stripped = text;
    std::erase_if(stripped, [](char character) { return character == '\r' || character == '\t'; });
    Require(Same(*tree, *Read(stripped), std::mem_fn(&ConfigValue::AsText)),
            "CR and TAB count as not there");
    Require(Same(*tree, *CopyBlock(*tree), std::mem_fn(&ConfigValue::AsText)), "a copy is equal");

    const bool whitespace = std::ranges::count(text, '{') < 100;  // indents grow with the depth
    const auto written = [&](const ConfigMap& map) {
        return OutputBlock(map, 0, "\r\n", whitespace);
    };
    if (Survives(*tree)) {
        const ConfigMapRef again = Read(written(*tree));
        Require(Same(*tree, *again, ReadAgain), "what is written is read again");
        // A number may lose its point with its last digits, and gains 64 bits again by that.
        const std::string settled = written(*Read(written(*again)));
        Require(written(*Read(settled)) == settled, "the written form is stable");
    }
    return 0;
}
