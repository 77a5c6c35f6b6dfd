// The shipped engine definitions and the table of known game WADs: what a slip of the hand in them
// would break, and whether the installed engines know the switches.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "config/config_map.h"
#include "config/reader.h"
#include "config/writer.h"

namespace {

namespace fs = std::filesystem;
using Pairs = std::vector<std::pair<std::string, std::string>>;

const fs::path shipped = ZORVANE_SHIPPED_DATA;

std::string Bytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Every `key = "text";` as it is written, without the reader, which drops what no key can hold.
Pairs Written(const std::string& text) {
    static const std::regex line(R"rx((?:^|\n)[ \t]*([^/\n][^=\n]*?)[ \t]*=[ \t]*"([^"\n]*)";)rx");
    Pairs pairs;
    for (std::sregex_iterator at(text.begin(), text.end(), line), end; at != end; ++at) {
        pairs.emplace_back((*at)[1], (*at)[2]);
    }
    return pairs;
}

// The texts of a structure and of those in it.
Pairs Texts(const ConfigMapRef& map) {
    return map ? Written(OutputBlock(*map, 0, "\n", true)) : Pairs();
}

bool IsAll(const std::string& text, const char* pattern) {
    return std::regex_match(text, std::regex(pattern));
}

ConfigMapRef Document(const fs::path& file) {
    const std::string text = Bytes(file);
    std::size_t position = 0;
    ConfigMapRef document = ParseBlock(position, text);
    EXPECT_EQ(Texts(document), Written(text));
    return document;
}

}  // namespace

TEST(Definitions, AreReadAsWrittenAndKeepToTheSchema) {
    std::set<std::string> seen;
    for (const auto& file : fs::directory_iterator(shipped / "engines")) {
        SCOPED_TRACE(file.path());
        const ConfigMapRef definition = Document(file);
        const auto setting = [&](const char* key) { return definition->Item(key).AsText(); };
        EXPECT_EQ(setting("type"), "Zorvane engine file");
        EXPECT_TRUE(IsAll(setting("executable"), ".+\\.exe"));
        EXPECT_TRUE(IsAll(setting("demoext"), "[a-z0-9]+"));
        EXPECT_NE(setting("realname"), "");
        EXPECT_TRUE(seen.insert(setting("realname")).second) << "a name that another one has";
        EXPECT_TRUE(seen.insert(setting("executable")).second) << "a program that another one has";
        const Pairs switches = Texts(definition->Item("parameters").AsMap());
        EXPECT_TRUE(!switches.empty() && switches.size() <= 16U) << switches.size();
        for (const auto& [key, caption] : switches) {
            EXPECT_TRUE(IsAll(key, "[-_a-z0-9]+") && IsAll(caption, ".{1,34}")) << key;
        }
        const Pairs types = Texts(definition->Item("filetypes").AsMap());
        EXPECT_NE(types, Pairs());
        for (const auto& [extension, description] : types) {
            EXPECT_TRUE(IsAll(extension, "[a-z0-9]+") && !description.empty()) << extension;
        }
    }
}

TEST(Definitions, HoldSwitchesThatTheInstalledProgramsKnow) {
    bool installed = false;
    for (const auto& file : fs::directory_iterator(shipped / "engines")) {
        const std::string name = file.path().stem().string();
        const std::string program = Bytes("/usr/games/" + name);
        installed = installed || !program.empty();
        for (const auto& [key, caption] : Texts(Document(file)->Item("parameters").AsMap())) {
            // A packaged release may be older than a switch: this one came with 7.0.
            const bool newer = name == "crispy-doom" && key == "coop_spawns";
            const bool known = program.find("-" + key + '\0') != std::string::npos;
            EXPECT_TRUE(known || newer || program.empty()) << name << " -" << key;
        }
    }
    if (!installed) {
        GTEST_SKIP() << "no engine is installed";
    }
}

TEST(Autodetection, TableIsReadAsWrittenAndFitsTheLookup) {
    const Pairs table = Texts(Document(shipped / "autodetect.cfg"));
    EXPECT_GE(table.size(), 56U);
    for (const auto& [file, name] : table) {
        EXPECT_TRUE(IsAll(file, R"([._a-z0-9]+\.wad)")) << file;
        EXPECT_TRUE(IsAll(name, "[^|]+")) << name;  // a bar divides name and file in the settings
    }
}
