#include "config/reader.h"

#include <gtest/gtest.h>

#include "config/config_map.h"

using namespace std::string_literals;

namespace {

/// The tree on one line: texts in <>, a 32-bit real with a trailing f, maps in ().
std::string Shown(const ConfigMap& map) {
    std::string shown;
    for (const auto& [key, value] : map.Entries()) {
        shown.append(shown.empty() ? "" : " ").append(key);
        if (const ConfigMapRef nested = value.AsMap()) {
            shown.append("(").append(Shown(*nested)).append(")");
        } else if (value.IsText()) {
            shown.append("<").append(value.AsText()).append(">");
        } else {
            shown.append("=").append(value.AsText());
            shown += std::holds_alternative<float>(value.Held()) ? "f" : "";
        }
    }
    return shown;
}

std::string Read(std::string_view text) {
    std::size_t position = 0;
    return Shown(*ParseBlock(position, text));
}

}  // namespace

TEST(Reader, UnderstandsAWholeDocument) {
    EXPECT_EQ(Read("// a comment\n"
                   "name = \"C:\\\\games\";   /* another */\n"
                   "skill = 2;\n"
                   "ratio = 0.5;\n"
                   "files\n"
                   "{\n"
                   "    wad = \"WAD files\";\n"
                   "}\n"),
              "name<C:\\games> skill=2 ratio=0.5f files(wad<WAD files>)");
}

struct Row {
    const char* name;
    std::string text;
    std::string tree;
};

class ReaderRows : public ::testing::TestWithParam<Row> {};

TEST_P(ReaderRows, Reads) {
    EXPECT_EQ(Read(GetParam().text), GetParam().tree);
}

const Row keyRows[] = {
    {"Nothing", " \n\r\t", ""},
    {"BlanksVanish", " a b\nc = 1;", "abc=1"},
    {"LoneSlash", "a/b/", ""},
    {"SlashInKey", "a/b=1;/", "ab=1"},
    {"BareKey", "a;", "a=0"},
    {"EmptyKey", ";=2;", "=2"},
    {"QuotesInKey", "\"a\\\"=1;", "\"a\\\"=1"},
    {"AnyByteInKey", "\0\xFF\x01=1;"s, "\0\xFF\x01=1"s},
    {"CaseCounts", "a;A;", "a=0 A=0"},
    {"RepeatedKey", "a=1;b=2;a{c;}a=\"x\";", "a<x> b=2"},
    {"KeyWithoutEnd", "a=1;b", "a=1"},
};
const Row structureRows[] = {
    {"Nested", "a{b{c=1;}d{}}e;", "a(b(c=1) d()) e=0"},
    {"NeverClosed", "a{b=1;c{d=\"x", "a(b=1 c())"},
    {"ClosedTooOften", "a=1;}b=2;", "a=1"},
    {"NamelessOnes", "{}a{};", "=0 a()"},
    {"KeyBeforeClosing", "a{b}c=1;", "a() c=1"},
    {"RepeatedInside", "a{b=1;c;b=2;}", "a(b=2 c=0)"},
};
const Row commentRows[] = {
    {"LineWithoutEnd", "a=1;// b=2;", "a=1"},
    {"EndedByLineFeedOnly", "// x\ra=1;\nb=2;", "b=2"},
    {"ReturnBetweenSlashes", "/\r/ a=1;\nb=2;", "b=2"},
    {"BlankBetweenSlashes", "/ / a=1;", "a=1"},
    {"Block", "a/* b=1; \n */c=2;", "ac=2"},
    {"ShortestBlock", "/**/a;", "a=0"},
    {"StarEndsItself", "/*/ x */;", "x*=0"},
    {"TabsInBlockEnds", "/\t* * \t/ a=1;*\t/b;", "b=0"},
    {"ManyStars", "/***\r**\t/a;", "a=0"},
    {"BlockWithoutEnd", "a{b;/* c;}", "a(b=0)"},
    {"InStringNone", "a=\"//x/*\";", "a<//x/*>"},
    {"BehindEquals", "a=/*none*/5;b;", "a=0 b=0"},
};
const Row stringRows[] = {
    {"Empty", "a=\"\";", "a<>"},
    {"Semicolon", "a=\"semi;colon\";b;", "a<semi;colon> b=0"},
    {"LettersAndOthers", R"(a="\"\\\q\;";)", "a<\"\\q;>"},
    {"Controls", R"(a="\n\r\t";)", "a<\n\r\t>"},
    {"CodeTakesTheQuote", R"(a="\065\9";)", ""},
    {"CodeTakesThree", R"(a="\065\66;\7x1";)", "a<AB\a>"},
    {"CodeIsANumber", R"(a="\1e1\1.5\6 5";)",
     "a<\n\x02"
     "A>"},
    {"HighAndLowBits", R"(a="\255\256\321\9e9";)", "a<\xFF\0A\0>"s},
    {"CodeAcrossLines", "a=\"\\\r0\t6\r\n5\";",
     "a<\x06"
     "5>"},
    {"EscapeAcrossLines", "a=\"\\\r\tn\\\r\";\"", "a<\n\";>"},
    {"RawReturnsAndTabs", "a=\"x\r\n\ty\";", "a<x\ny>"},
    {"Unsigned", "a=\"\x80\xFF\";", "a<\x80\xFF>"},
    {"NeverClosed", "a=\"x;b=1;", ""},
    {"CodeAtTheEnd", "a=\"\\1", ""},
    {"BackslashAtTheEnd", "a=\"\\", ""},
    {"DroppedBehindIt", "a=\"x\" b \\\" c;d=1;", "a<x> d=1"},
    {"NextOneBehindIt", "a=\"x\"\nb=\"y\";c;", "a<x> <y> c=0"},
    {"EmptyKeyBreaksAtSemicolon", "=\"a;b\"=1;", "b\"=1"},
    {"EmptyKeyEscaped", "=\"a\\;b\";", "<a;b>"},
};
const Row numberRows[] = {
    {"Widths", "a=-1;b=1e3;c=.5;d=&H10;e=2.;", "a=-1 b=1000 c=0.5f d=16 e=2f"},
    {"PointAnywhere", "a=1 x.;b=&HF.;", "a=1f b=15f"},
    {"SwallowsBraces", "a{b=1 } c=2;}", "a(b=1)"},
    {"Returns", "a=1\r2\t3\n4;", "a=1234"},
    {"Words", "a=true;b=false;c=xyz\"t\";", "a=0 b=0 c<t>"},
    {"NoValue", "a = b; c = 1;", "a=1"},
    {"PlusBeginsNone", "a=+7;", "a=7"},
    {"NulBeginsNone",
     "a=\0"
     "7;"s,
     "a=7"},
    {"NoEnd", "a=1;b=2", "a=1"},
    {"TooLarge", "a=1e999;b=-1.5e99;", "a=1.79769313486232E+308 b=-3.402823E+38f"},
};

const auto rowName = [](const auto& row) { return row.param.name; };
INSTANTIATE_TEST_SUITE_P(Keys, ReaderRows, ::testing::ValuesIn(keyRows), rowName);
INSTANTIATE_TEST_SUITE_P(Structures, ReaderRows, ::testing::ValuesIn(structureRows), rowName);
INSTANTIATE_TEST_SUITE_P(Comments, ReaderRows, ::testing::ValuesIn(commentRows), rowName);
INSTANTIATE_TEST_SUITE_P(Strings, ReaderRows, ::testing::ValuesIn(stringRows), rowName);
INSTANTIATE_TEST_SUITE_P(Numbers, ReaderRows, ::testing::ValuesIn(numberRows), rowName);

TEST(Reader, GoesOnFromAPositionAndSaysWhereItStopped) {
    const std::string text = "a=1;}b=2;}";
    std::size_t position = 0;
    ParseBlock(position, text);
    EXPECT_EQ(position, 5U);
    EXPECT_EQ(Shown(*ParseBlock(position, text)), "b=2");
    EXPECT_EQ(position, text.size());
}
