#include "config/writer.h"

#include <gtest/gtest.h>

#include "config/configuration.h"
#include "config/reader.h"

using namespace std::string_literals;

namespace {

std::string Rewritten(std::string_view text, std::string_view newLine, bool whitespace) {
    clsConfiguration document;
    document.InputConfiguration(text);
    return document.OutputConfiguration(newLine, whitespace);
}

}  // namespace

TEST(Writer, LaysBothFormsOutByteForByte) {
    const std::string_view sample =
        "type = \"Sample\";\r\n"
        "engine = -1;\r\n"
        "\r\n"
        "iwads\r\n"
        "{\r\n"
        "\t0 = \"Sample|C:\\\\sample.wad\";\r\n"
        "}\r\n"
        "\r\n"
        "lastdir = \"C:\\\\Games\";\r\n";
    EXPECT_EQ(Rewritten(sample, "\r\n", true), sample);
    EXPECT_EQ(
        Rewritten(sample, "\r\n", false),
        "type=\"Sample\";\r\nengine=-1;\r\niwads\r\n{\r\n0=\"Sample|C:\\\\sample.wad\";\r\n}\r\n"
        "lastdir=\"C:\\\\Games\";\r\n");
}

TEST(Writer, IndentsStructuresInStructures) {
    EXPECT_EQ(Rewritten("a{b{c=1;}d{}}", "\n", true),
              "\na\n{\n\t\n\tb\n\t{\n\t\tc = 1;\n\t}\n\t\n\t\n\td\n\t{\n\t}\n\t\n}\n\n");
    std::size_t position = 0;
    EXPECT_EQ(OutputBlock(*ParseBlock(position, "a{b;}"), 2, "|", true),
              "\t\t|\t\ta|\t\t{|\t\t\tb = 0;|\t\t}|\t\t|");
}

TEST(Writer, EscapesFiveCharactersAndEveryTextComesBack) {
    EXPECT_EQ(EscapeText("\\n\n\r\t\"\0\x1F\xFF;'"s), "\\\\n\\n\\r\\t\\\"\0\x1F\xFF;'"s);
    std::string text = "\r\n\"\\;}";
    for (int code = 0; code < 256; ++code) {
        text += static_cast<char>(code);
    }
    clsConfiguration document;
    document.InputConfiguration("a=\"" + EscapeText(text) + "\";");
    EXPECT_EQ(document.ReadSetting("a").AsText(), text);
}
