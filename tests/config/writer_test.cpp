#include "config/writer.h"

#include <gtest/gtest.h>

#include "config/configuration.h"
#include "config/reader.h"

using namespace std::string_literals;

namespace {

constexpr std::string_view sample =
    "type = \"Sample\";\r\n"
    "engine = -1;\r\n"
    "\r\n"
    "iwads\r\n"
    "{\r\n"
    "\t0 = \"Sample|C:\\\\sample.wad\";\r\n"
    "}\r\n"
    "\r\n"
    "lastdir = \"C:\\\\Games\";\r\n";

std::string Rewritten(std::string_view text, std::string_view newLine, bool whitespace) {
    clsConfiguration document;
    document.InputConfiguration(text);
    return document.OutputConfiguration(newLine, whitespace);
}

}  // namespace

TEST(Writer, LaysBothFormsOutByteForByte) {
    EXPECT_EQ(Rewritten(sample, "\r\n", true), sample);
    EXPECT_EQ(Rewritten(sample, "\r\n", false),
              "type=\"Sample\";\r\n"
              "engine=-1;\r\n"
              "iwads\r\n"
              "{\r\n"
              "0=\"Sample|C:\\\\sample.wad\";\r\n"
              "}\r\n"
              "lastdir=\"C:\\\\Games\";\r\n");
}

TEST(Writer, IndentsStructuresInStructures) {
    EXPECT_EQ(Rewritten("a{b{c=1;}d{}}", "\n", true),
              "\na\n{\n\t\n\tb\n\t{\n\t\tc = 1;\n\t}\n\t\n\t\n\td\n\t{\n\t}\n\t\n}\n\n");
    std::size_t position = 0;
    EXPECT_EQ(OutputBlock(*ParseBlock(position, "a{b;}"), 2, "|", true),
              "\t\t|\t\ta|\t\t{|\t\t\tb = 0;|\t\t}|\t\t|");
}

TEST(Writer, EscapesFiveCharacters) {
    EXPECT_EQ(EscapeText("\\n\n\r\t\"\0\x1F\xFF;'"s), "\\\\n\\n\\r\\t\\\"\0\x1F\xFF;'"s);
}

TEST(Writer, WhatItWritesComesBack) {
    clsConfiguration document;
    document.InputConfiguration(sample);
    std::string everyByte;
    for (int code = 0; code < 256; ++code) {
        everyByte += static_cast<char>(code);
    }
    document.WriteSetting("bytes", everyByte + "\r\n\"\\;}");
    document.WriteSetting("half", 0.5);
    document.Root()->Item("nothing");
    document.ReadSetting("iwads", {}, true).AsMap()->Add("inner", std::make_shared<ConfigMap>());
    const std::string text = document.OutputConfiguration();
    for (const auto& [newLine, whitespace] : {std::pair("", false), {"\n", true}}) {
        const std::string written = document.OutputConfiguration(newLine, whitespace);
        EXPECT_EQ(Rewritten(written, "\r\n", true), text);
    }
}
