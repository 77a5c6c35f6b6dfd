// The shipped engine definitions and the table of known games are free of typing errors, and the
// installed engines know the switches.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "config/config_map.h"
#include "config/reader.h"

namespace {

namespace fs = std::filesystem;
using Pairs = std::vector<std::pair<std::string, std::string>>;

const fs::path Shipped = ZORVANE_SHIPPED_DATA;

std::string Bytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The texts of a map and of the maps in it.
Pairs Texts(const ConfigMap& map) {
    Pairs pairs;
    for (const auto& [key, value] : map.Entries()) {
        const Pairs inner = value.AsMap() ? Texts(*value.AsMap()) : Pairs{{key, value.AsText()}};
        pairs.insert(pairs.end(), inner.begin(), inner.end());
    }
    return pairs;
}

ConfigMapRef Document(const fs::path& file) {
    const std::string text = Bytes(file);
    std::size_t position = 0;
    ConfigMapRef document = ParseBlock(position, text);
    // Counted without the reader, which drops part of a bad key.
    EXPECT_EQ(Texts(*document).size(), std::ranges::count(text, '=')) << "each entry is read";
    return document;
}

void ExpectMatch(const std::string& text, const char* pattern) {
    EXPECT_TRUE(std::regex_match(text, std::regex(pattern))) << '"' << text << "\" " << pattern;
}

}  // namespace

TEST(ShippedData, DefinesEnginesWithSwitchesThatTheInstalledOnesKnow) {
    std::set<std::string> seen;
    for (const auto& file : fs::directory_iterator(Shipped / "engines")) {
        SCOPED_TRACE(file.path());
        const ConfigMapRef definition = Document(file);
        const auto setting = [&](const char* key) { return definition->Item(key).AsText(); };
        EXPECT_EQ(setting("type"), "Zorvane engine file");
        ExpectMatch(setting("executable"), ".+\\.exe");
        ExpectMatch(setting("demoext"), "[a-z0-9]+");
        ExpectMatch(setting("realname"), "[^\t{}=;/]+");
        EXPECT_TRUE(seen.insert(setting("realname")).second) << "a duplicate";
        EXPECT_TRUE(seen.insert(setting("executable")).second) << "a duplicate";

        const std::string name = file.path().stem().string();
        const std::string program = Bytes("/usr/games/" + name);
        const Pairs switches = Texts(*definition->Item("parameters").AsMap());
        EXPECT_TRUE(!switches.empty() && switches.size() <= 16U) << switches.size();
        for (const auto& [key, caption] : switches) {
            ExpectMatch(key, "[-_a-z0-9]+");
            ExpectMatch(caption, ".{1,34}");
            // The distribution's release is older than this switch.
            const bool isNewer = name == "crispy-doom" && key == "coop_spawns";
            const bool isKnown = program.find("-" + key + '\0') != std::string::npos;
            EXPECT_TRUE(isKnown || isNewer || program.empty()) << key;
        }
        const Pairs types = Texts(*definition->Item("filetypes").AsMap());
        EXPECT_NE(types, Pairs());
        for (const auto& [extension, description] : types) {
            ExpectMatch(extension, "[a-z0-9]+");
            EXPECT_NE(description, "");
        }
    }
    EXPECT_FALSE(seen.empty());
}

TEST(ShippedData, NamesGamesByFileNameInLowerCase) {
    const Pairs table = Texts(*Document(Shipped / "autodetect.cfg"));
    EXPECT_GE(table.size(), 56U);
    for (const auto& [file, name] : table) {
        ExpectMatch(file, R"([._a-z0-9]+\.wad)");
        ExpectMatch(name, "[^|]+");  // a bar separates name and file in the settings
    }
}
