// The shipped engine definitions and the table of known game WADs: what a slip of the hand in them
// would break, and whether the installed engines know the switches.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "config/configuration.h"

namespace {

namespace fs = std::filesystem;
using Pairs = std::vector<std::pair<std::string, std::string>>;

const fs::path kShipped = ZORVANE_SHIPPED_DATA;

std::string Bytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

Pairs Entries(const ConfigValue& structure) {
    Pairs pairs;
    if (structure.IsMap()) {
        for (const ConfigEntry& entry : structure.AsMap()->Entries()) {
            pairs.emplace_back(entry.key, entry.value.AsText());
        }
    }
    return pairs;
}

// Every `key = "text";` as it is written, without the reader, which drops what no key can hold.
Pairs Written(const std::string& text) {
    static const std::regex kLine(R"rx((?:^|\n)[ \t]*([^/\n][^=\n]*?)[ \t]*=[ \t]*"([^"\n]*)";)rx");
    Pairs pairs;
    for (std::sregex_iterator at(text.begin(), text.end(), kLine), end; at != end; ++at) {
        pairs.emplace_back((*at)[1], (*at)[2]);
    }
    return pairs;
}

std::vector<std::string> DefinitionNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kShipped / "engines")) {
        names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool IsAll(const std::string& text, const char* pattern) {
    return std::regex_match(text, std::regex(pattern));
}

class Definition : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        text_ = Bytes(kShipped / "engines" / (GetParam() + ".cfg"));
        config_.InputConfiguration(text_);
        switches_ = Entries(config_.ReadSetting("parameters"));
        types_ = Entries(config_.ReadSetting("filetypes"));
    }

    std::string Setting(const char* key) const { return config_.ReadSetting(key).AsText(); }

    std::string text_;
    clsConfiguration config_;
    Pairs switches_;
    Pairs types_;
};

TEST_P(Definition, KeepsToTheSchema) {
    EXPECT_EQ(Setting("type"), "Zorvane engine file");
    EXPECT_TRUE(Setting("executable").ends_with(".exe"));
    EXPECT_TRUE(IsAll(Setting("demoext"), "[a-z0-9]+"));
    EXPECT_FALSE(types_.empty());
    EXPECT_FALSE(switches_.empty());
    EXPECT_LE(switches_.size(), 16U);
    for (const auto& [key, caption] : switches_) {
        EXPECT_TRUE(IsAll(key, "[-_a-z0-9]+")) << key;
        EXPECT_FALSE(caption.empty() || caption.size() > 34) << caption;
    }
    for (const auto& [extension, description] : types_) {
        EXPECT_TRUE(IsAll(extension, "[a-z0-9]+")) << extension;
        EXPECT_FALSE(description.empty()) << extension;
    }
}

TEST_P(Definition, IsReadAsItIsWritten) {
    Pairs read;
    for (const char* key : {"type", "executable", "realname", "demoext"}) {
        read.emplace_back(key, Setting(key));
    }
    read.insert(read.end(), switches_.begin(), switches_.end());
    read.insert(read.end(), types_.begin(), types_.end());
    EXPECT_EQ(read, Written(text_));
}

// A packaged release may be older than a switch: those that it does not know, and why they stand.
const std::set<std::string> kNewerThanThePackage = {"crispy-doom -coop_spawns"};  // since 7.0

bool Names(const std::string& manual, const std::string& option) {
    return std::regex_search(manual, std::regex("(^|[^-\\w])" + option + "([^-\\w]|$)"));
}

fs::path Program(const std::string& name) {
    return "/usr/games/" + name;
}

fs::path ManualPage(const std::string& name) {
    return "/usr/share/man/man6/" + name + ".6.gz";
}

std::vector<std::string> InstalledNames() {
    std::vector<std::string> names = DefinitionNames();
    std::erase_if(names, [](const std::string& name) {
        return !fs::exists(Program(name)) || !fs::exists(ManualPage(name));
    });
    return names;
}

class Installed : public Definition {};

TEST_P(Installed, ProgramKnowsEverySwitch) {
    const fs::path plain = fs::path(testing::TempDir()) / (GetParam() + ".6");
    const std::string unpack = "gzip -dc " + ManualPage(GetParam()).string();
    if (std::system((unpack + " > " + plain.string()).c_str()) != 0) {
        GTEST_SKIP() << "no gzip to read the manual page with";
    }
    const std::string manual =
        std::regex_replace(Bytes(plain), std::regex(R"(\\f.|\\)"), std::string());
    const std::string binary = Bytes(Program(GetParam()));
    fs::remove(plain);
    for (const auto& [key, caption] : switches_) {
        const std::string option = "-" + key;
        EXPECT_TRUE(Names(manual, option) || binary.find(option + '\0') != std::string::npos ||
                    kNewerThanThePackage.contains(GetParam() + " " + option))
            << option;
    }
}

std::string CaseName(const testing::TestParamInfo<std::string>& test) {
    std::string name = test.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Shipped, Definition, testing::ValuesIn(DefinitionNames()), CaseName);
INSTANTIATE_TEST_SUITE_P(Shipped, Installed, testing::ValuesIn(InstalledNames()), CaseName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Installed);

TEST(Definitions, ShareNoNameAndNoProgram) {
    std::set<std::string> seen;
    for (const std::string& name : DefinitionNames()) {
        clsConfiguration config;
        config.InputConfiguration(Bytes(kShipped / "engines" / (name + ".cfg")));
        for (const char* key : {"realname", "executable"}) {
            const std::string value = config.ReadSetting(key).AsText();
            EXPECT_FALSE(value.empty()) << name;
            EXPECT_TRUE(seen.insert(key + value).second) << name << ": " << value;
        }
    }
}

TEST(Autodetection, TableIsReadAsItIsWrittenAndFitsTheLookup) {
    const std::string text = Bytes(kShipped / "autodetect.cfg");
    clsConfiguration config;
    config.InputConfiguration(text);
    const Pairs table = Entries(config.Root());
    EXPECT_EQ(table, Written(text));
    EXPECT_GE(table.size(), 56U);
    for (const auto& [file, name] : table) {
        EXPECT_TRUE(IsAll(file, R"([._a-z0-9]+\.wad)")) << file;
        // A "|" divides name and file in the settings.
        EXPECT_TRUE(!name.empty() && name.find('|') == std::string::npos) << file;
    }
}

}  // namespace
