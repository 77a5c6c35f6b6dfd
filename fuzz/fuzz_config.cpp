// Any text is read as a tree, and its written form as the same tree again.
#include <algorithm>

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

/// Makes of each number what it comes back as: one with a point keeps what 32 bits carry.
/// Returns whether all of the tree is read back, which fails only for a ";" under the empty key.
bool Settle(ConfigMap& map) {
    bool survives = true;
    for (const std::string& key : map.Keys()) {
        ConfigValue& value = map.Item(key);
        const std::string text = value.AsText();
        if (const ConfigMapRef nested = value.AsMap()) {
            survives = Settle(*nested) && survives;
        } else if (value.IsText()) {
            survives = survives && !(key.empty() && text.find(';') != std::string::npos);
        } else {
            value = Read("a=" + text + ";")->Item("a");
        }
    }
    return survives;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    const std::string text(bytes, size);
    const bool whitespace = std::ranges::count(text, '{') < 100;  // indents grow with the depth
    const auto written = [&](const ConfigMapRef& map) {
        return OutputBlock(*map, 0, "\r\n", whitespace);
    };
    const ConfigMapRef tree = Read(text);
    const std::string first = written(tree);
    std::string stripped = text;
    std::erase_if(stripped, [](char byte) { return byte == '\r' || byte == '\t'; });
    Require(written(Read(stripped)) == first, "CR and TAB count as not there");
    Require(written(CopyBlock(*tree)) == first, "a copy is equal");
    if (Settle(*tree)) {
        Require(written(Read(first)) == written(tree), "what is written is read again");
    }
    return 0;
}
