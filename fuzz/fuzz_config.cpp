// Any text is read as a tree, and its written form as the same tree again.
#include <algorithm>

#include "config/number.h"
#include "config/reader.h"
#include "config/writer.h"
#include "require.h"

namespace {

ConfigMapRef Read(std::string_view text, bool* complete = nullptr) {
    std::size_t position = 0;
    ConfigMapRef map = ParseBlock(position, text, complete);
    Require(position <= text.size(), "the reader stops within the text");
    return map;
}

/// Replaces each number by what is read back: one with a dot keeps the digits of a float. Returns
/// whether all else is read back, too: a text with a ";" under an empty key is not.
bool RoundNumbers(ConfigMap& map) {
    bool survives = true;
    for (const std::string& key : map.Keys()) {
        ConfigValue& value = map.Item(key);
        if (const ConfigMapRef nested = value.AsMap()) {
            survives = RoundNumbers(*nested) && survives;
        } else if (value.IsNumber()) {
            const std::string text = value.AsText();
            const double number = NumberValue(text);
            const bool single = text.find('.') != std::string::npos;
            value = single ? ConfigValue(SingleNumber(number)) : ConfigValue(number);
        } else if (key.empty() && value.AsText().find(';') != std::string::npos) {
            survives = false;
        }
    }
    return survives;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    const std::string_view text(bytes, size);
    const bool whitespace = std::ranges::count(text, '{') < 100;  // indents grow with the depth
    const auto written = [&](const ConfigMapRef& map) {
        return OutputBlock(*map, 0, "\r\n", whitespace);
    };
    const ConfigMapRef tree = Read(text);
    const ConfigMapRef copy = CopyBlock(*tree);
    const bool survives = RoundNumbers(*copy);
    const std::string first = written(tree);
    if (survives) {
        bool complete = false;
        Require(written(Read(first, &complete)) == written(copy), "a written tree is read back");
        Require(complete, "a written text is complete");
    }
    std::string stripped(text);
    if (std::erase_if(stripped, [](char byte) { return byte == '\r' || byte == '\t'; }) > 0) {
        Require(written(Read(stripped)) == first, "CR and TAB are ignored");
    }
    return 0;
}
