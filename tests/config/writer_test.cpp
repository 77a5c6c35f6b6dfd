#include "config/writer.h"

#include <gtest/gtest.h>

#include "config/configuration.h"
#include "config/reader.h"

using namespace std::string_literals;

namespace {

void FillSample(clsConfiguration& document) {
    auto iwads = std::make_shared<ConfigMap>();
    iwads->Add("0", "Sample|C:\\sample.wad");
    document.WriteSetting("type", "Sample");
    document.WriteSetting("engine", -1);
    document.WriteSetting("iwads", iwads);
    document.WriteSetting("lastdir", "C:\\Games");
}

std::string Rewritten(std::string_view text, std::string_view newLine, bool whitespace) {
    clsConfiguration document;
    document.InputConfiguration(text);
    return document.OutputConfiguration(newLine, whitespace);
}

}  // namespace

TEST(Writer, LaysBothFormsOutByteForByte) {
    clsConfiguration document;
    EXPECT_EQ(document.OutputConfiguration(), "");
    FillSample(document);
    EXPECT_EQ(document.OutputConfiguration(),
              "type = \"Sample\";\r\n"
              "engine = -1;\r\n"
              "\r\n"
              "iwads\r\n"
              "{\r\n"
              "\t0 = \"Sample|C:\\\\sample.wad\";\r\n"
              "}\r\n"
              "\r\n"
              "lastdir = \"C:\\\\Games\";\r\n");
    EXPECT_EQ(document.OutputConfiguration("\r\n", false),
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
    EXPECT_EQ(EscapeText("\\\n\r\t\""), R"(\\\n\r\t\")");
    EXPECT_EQ(EscapeText("\\n\0\x1F\xFF;'"s), "\\\\n\0\x1F\xFF;'"s);
}

TEST(Writer, WhatItWritesComesBack) {
    clsConfiguration document;
    FillSample(document);
    std::string everyByte;
    for (int code = 0; code < 256; ++code) {
        everyByte += static_cast<char>(code);
    }
    document.WriteSetting("bytes", everyByte + "\r\n\"\\;}");
    document.WriteSetting("half", 0.5);
    document.WriteSetting("flag", true);
    document.Root()->Item("nothing");
    document.ReadSetting("iwads", {}, true).AsMap()->Add("inner", std::make_shared<ConfigMap>());
    const std::string text = document.OutputConfiguration();
    for (const std::string_view newLine : {"\r\n", "\n", ""}) {
        for (const bool whitespace : {false, true}) {
            EXPECT_EQ(Rewritten(document.OutputConfiguration(newLine, whitespace), "\r\n", true),
                      text);
        }
    }
}

TEST(Writer, AMillionOpenBracesGoThroughEverything) {
    constexpr std::size_t depth = 1'000'000;
    clsConfiguration document;
    document.InputConfiguration(std::string(depth, '{'));
    const ConfigMapRef copy = document.Root(false);
    document.NewConfiguration();
    EXPECT_EQ(OutputBlock(*copy, 0, "", false), std::string(depth, '{') + std::string(depth, '}'));
}
