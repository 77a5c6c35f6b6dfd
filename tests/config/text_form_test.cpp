#include <gtest/gtest.h>

#include "config/configuration.h"
#include "config/reader.h"
#include "config/writer.h"

using namespace std::string_literals;

namespace {

/// Reads a text and writes its tree, by default on one line.
std::string Rewritten(std::string_view text, std::string_view newLine = "",
                      bool whitespace = false) {
    clsConfiguration document;
    EXPECT_TRUE(document.InputConfiguration(text));
    return document.OutputConfiguration(newLine, whitespace);
}

}  // namespace

TEST(Reader, ReadsAnyTextIntoATree) {
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"whole document",
         "// a comment\nname = \"C:\\\\games\";   /* another */\nskill = 2;\nratio = 0.5;\n"
         "files\n{\n    wad = \"WAD files\";\n}\n",
         "name=\"C:\\\\games\";skill=2;ratio=0.5;files{wad=\"WAD files\";}"},

        {"spaces in a key", " a\r b\t\nc = 1;", "abc=1;"},
        {"lone slash", "a/b/ /c=1;/", "abc=1;"},
        {"any byte in a key", "\"\0\xFF\\\x01=1;"s, "\"\0\xFF\\\x01=1;"s},
        {"repeated keys", "a=1;b{c=1;d;c=2;}a{e;}a=\"x\";", "a=\"x\";b{c=2;d=0;}"},
        {"key without end", "a=1;b", "a=1;"},

        {"nested", "a{b{c=1;}d{}dropped}e;", "a{b{c=1;}d{}}e=0;"},
        {"never closed", "a{b=1;c{d=\"x", "a{b=1;c{}}"},
        {"no name", "{}a{};", "=0;a{}"},

        {"comment without end", "a=1;// b=2;", "a=1;"},
        {"no line ends at CR", "/\r/ x\ra=1;\nb=2;", "b=2;"},
        {"block", "a/* b=1; \n */c=2;", "ac=2;"},
        {"one star opens and closes", "/*/ x */;", "x*=0;"},
        {"tabs in the ends of a block", "/\t* * \t/ a=1;*\t/b;", "b=0;"},
        {"nothing but stars", "/**/a;/***\r**\t/b;", "a=0;b=0;"},
        {"block without end", "a{b;/* c;}", "a{b=0;}"},
        {"none in a value", "a=\"//x/*\";b=/*none*/5;c;", "a=\"//x/*\";b=0;c=0;"},

        {"semicolon", "a=\"\";b=\"semi;colon\";c;", "a=\"\";b=\"semi;colon\";c=0;"},
        {"letters and others", R"(a="\n\r\t\"\\\q\;";)", R"(a="\n\r\t\"\\q;";)"},
        {"code takes the quote", R"(a="\065\9";)", ""},
        {"code takes three", R"(a="\065\66;\7x1";)", "a=\"AB\a\";"},
        {"code is a number", R"(a="\1e1\1.5\6 5";)", "a=\"\\n\2A\";"},
        {"code in 8 bits", R"(a="\255\256\321\9e9";)", "a=\"\xFF\0A\0\";"s},
        {"code across lines", "a=\"\\\r0\t6\r\n5\";", "a=\"\6\x35\";"},
        {"letter across lines", "a=\"\\\r\tn\\\r\";\"", R"(a="\n\";";)"},
        {"CR and TAB", "a=\"x\r\n\ty\";", R"(a="x\ny";)"},
        {"text without end", "a=\"x;b=1;", ""},
        {"ignored after a text", "a=\"x\" b \\\" c;d=1;", "a=\"x\";d=1;"},
        {"text after a text", "a=\"x\"\nb=\"y\";c;", "a=\"x\";=\"y\";c=0;"},
        {"semicolon under an empty key", "=\"a;b\"=1;", "b\"=1;"},
        {"escaped one", "=\"a\\;b\";", "=\"a;b\";"},

        {"widths", "a=-1;b=1e3;c=.1234567891;d=&H10;e=123456789;",
         "a=-1;b=1000;c=0.1234568;d=16;e=123456789;"},
        {"dot anywhere", "a=123456789 x.;b=&H75BCD15.;", "a=1.234568E+08;b=1.234568E+08;"},
        {"braces in a number", "a{b=1 } c=2;}", "a{b=1;}"},
        {"lines in a number", "a=1\r2\t3\n4;", "a=1234;"},
        {"words", "a=true;b=false;c=xyz\"t\";", "a=0;b=0;c=\"t\";"},
        {"no value", "a = b; c = 1;", "a=1;"},
        {"before a number", "a=+7;b=\0\x37;"s, "a=7;b=7;"},
        {"number without end", "a=1;b=2", "a=1;"},
        {"too large", "a=1e999;b=-1.5e99;", "a=1.79769313486232E+308;b=-3.402823E+38;"},
    };
    for (const auto& [name, text, tree] : rows) {
        EXPECT_EQ(Rewritten(text), tree) << name;
    }
}

TEST(Reader, ReportsATextThatWasCutOff) {
    clsConfiguration document;
    for (const char* text : {"", "a=\"x\"", "a{b=\"/*\";}b=1", "/* */ // c", "/*/", "}a{"}) {
        ASSERT_TRUE(document.InputConfiguration(text));
        EXPECT_TRUE(document.TextWasComplete()) << text;
    }
    for (const char* text :
         {"{", "a{b{}", "a=\"x", "a=\"x\\\"", "a=\"x;", "/*", "a;/**", "{/**/"}) {
        ASSERT_TRUE(document.InputConfiguration(text));
        EXPECT_FALSE(document.TextWasComplete()) << text;
    }
    document.NewConfiguration();
    EXPECT_TRUE(document.TextWasComplete());
}

TEST(Writer, WritesBothForms) {
    const std::string_view sample =
        "type = \"Sample\";\r\nengine = -1;\r\n\r\niwads\r\n{\r\n"
        "\t0 = \"Sample|C:\\\\sample.wad\";\r\n}\r\n\r\nlastdir = \"C:\\\\Games\";\r\n";
    EXPECT_EQ(Rewritten(sample, "\r\n", true), sample);
    EXPECT_EQ(
        Rewritten(sample, "\r\n", false),
        "type=\"Sample\";\r\nengine=-1;\r\niwads\r\n{\r\n0=\"Sample|C:\\\\sample.wad\";\r\n}\r\n"
        "lastdir=\"C:\\\\Games\";\r\n");

    EXPECT_EQ(Rewritten("a{b{c=1;}d{}}", "\n", true),
              "\na\n{\n\t\n\tb\n\t{\n\t\tc = 1;\n\t}\n\t\n\t\n\td\n\t{\n\t}\n\t\n}\n\n");
    ConfigMap map;
    map.Add("a", std::make_shared<ConfigMap>());
    EXPECT_EQ(OutputBlock(map, 2, "|", true), "\t\t|\t\ta|\t\t{|\t\t}|\t\t|");
}

TEST(Writer, EscapesFiveCharacters) {
    EXPECT_EQ(EscapeText("\\n\n\r\t\"\0\x1F\xFF;'"s), "\\\\n\\n\\r\\t\\\"\0\x1F\xFF;'"s);
}

TEST(Writer, KnowsTheKeysThatCanBeReadBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        for (const std::string& key : {byte, "a" + byte + "b", ""s}) {
            ConfigMap map;
            map.Add(key, 1);
            map.Add("next", 2);
            std::size_t position = 0;
            const ConfigMapRef read = ParseBlock(position, OutputBlock(map, 0, "\n", true));
            EXPECT_EQ(KeyCanBeReadBack(key), read->Keys() == map.Keys()) << key;
        }
    }
}
