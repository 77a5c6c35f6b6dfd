#include "state/settings.h"

#include "session.h"
#include "state/records.h"

using namespace std::string_literals;

namespace {

struct SettingsCase : Session {
    SettingsCase() { DefineEngine("Sample Engine"); }
    void ExpectWritten(std::string_view part) const {
        EXPECT_NE(SettingsBytes().find(part), std::string::npos) << SettingsBytes();
    }
};

TEST_F(SettingsCase, FirstRunWritesTheDefaultsByteForByte) {
    ASSERT_TRUE(Start());
    const std::string expected =
        "type = \"Zorvane Configuration file\";\r\nengine = -1;\r\niwad = -1;\r\nskill = 2;\r\n"
        "map = -1;\r\nfastmonsters = 0;\r\nnomonsters = 0;\r\nrespawnmonsters = 0;\r\n"
        "deathmatch = 0;\r\nparameters = \"\";\r\nlastdir = \"" +
        Stored("") +
        "\";\r\n\r\niwads\r\n{\r\n}\r\n\r\n\r\nengines\r\n{\r\n}\r\n\r\n\r\npwads\r\n{\r\n}\r\n"
        "\r\n";
    EXPECT_EQ(SettingsBytes(), expected);
    EXPECT_EQ(std::filesystem::file_size(folder.Native("autodetect.cfg")), 0U);
    SettingsFileName = folder.Path("missing\\zorvane.cfg");
    Exit();
    EXPECT_TRUE(memory::TakeMessage().starts_with("The settings could not be saved to " +
                                                  folder.Path("missing\\zorvane.cfg\r\n")));
    EXPECT_EQ(SettingsBytes(), expected);
}

TEST_F(SettingsCase, ReadsTheListsAndWritesThemAnew) {
    WriteSettings(
        "unknown = \"kept\"; engine = 0; iwad = 0; skill = 2; map = -1;"
        "iwads { 7 = \"A \\\"game\\\"|C:\\\\a|b.wad\"; 3 = \"no bar\"; }"
        "engines { Gone { path = \"x\"; } Sample\1Engine {"
        "path = \"C:\\\\Sample\"; options = \"1x100000000000011\"; extra = 1; } }"
        "pwads { b = \"C:\\\\x.wad\"; a = 7; }");
    ASSERT_TRUE(Start());
    ASSERT_EQ(GameWadCount(), 2);
    EXPECT_EQ(GameWadAt(0).name, "A \"game\"");
    EXPECT_EQ(GameWadAt(0).file, "C:\\a|b.wad");
    Exit();
    ExpectWritten("unknown = \"kept\";\r\nengine = 0;");
    ExpectWritten("\t1 = \"no bar|no bar\";\r\n}");
    ExpectWritten(
        "engines\r\n{\r\n\t\r\n\tSample\1Engine\r\n\t{\r\n"
        "\t\tpath = \"C:\\\\Sample\";\r\n\t\toptions = \"1010000000000001\";\r\n"
        "\t}\r\n\t\r\n}\r\n");
    ExpectWritten("pwads\r\n{\r\n\t0 = \"C:\\\\x.wad\";\r\n\t1 = \"7\";\r\n}");
    const std::string file = SettingsBytes();
    ASSERT_TRUE(Start());
    Exit();
    EXPECT_EQ(SettingsBytes(), file) << "unchanged";
}

TEST_F(SettingsCase, KeepsAFileOfAnotherTypeAndStops) {
    const std::string bad[] = {"", "type = \"zorvane configuration file\";", "engine = 1;",
                               "\xff\xfe\0{{{{"s, "type { a = \"Zorvane Configuration file\"; }"};
    for (const std::string& bytes : bad) {
        folder.Write("zorvane.cfg", bytes);
        EXPECT_FALSE(Start());
        EXPECT_EQ(memory::TakeMessage(), "The configuration file was corrupted.");
        EXPECT_EQ(SettingsBytes(), bytes);
    }
    std::filesystem::remove(folder.Native("zorvane.cfg"));
    folder.Write("zorvane.cfg/file", "in a folder of that name");
    EXPECT_FALSE(Start());
    EXPECT_TRUE(memory::TakeMessage().starts_with("The settings could not be read from " +
                                                  folder.Path("zorvane.cfg\r\n")));
}

TEST_F(SettingsCase, KeepsTheFileThatAnotherRunWrote) {
    ASSERT_TRUE(Start());
    Exit();
    EXPECT_FALSE(exists(folder.Native("zorvane.cfg.old")));
    ASSERT_TRUE(Start());
    const std::string other = SettingsBytes() + "other = 1;";
    folder.Write("zorvane.cfg", other);
    Exit();
    EXPECT_EQ(folder.Read("zorvane.cfg.old"), other);
    EXPECT_EQ(SettingsBytes().find("other"), std::string::npos);
}

TEST_F(SettingsCase, StartsWithWhatIsLeftOfAFileAndKeepsTheFirstOne) {
    ASSERT_TRUE(Start());
    const std::string whole = SettingsBytes();
    const std::pair<std::string, bool> rows[] = {
        {whole.substr(0, whole.find("pwads")), false},
        {whole.substr(0, whole.find("{")), false},
        {whole.substr(0, whole.find("{") + 1), true},
        {whole.substr(0, whole.find("lastdir = \"") + 11), true},
        {whole + "/* unfinished", true},
    };
    const std::string incomplete =
        "The configuration file is incomplete: only a part of the settings could be read.\r\n"
        "The first such file is kept as " +
        folder.Path("zorvane.cfg.damaged");
    for (const auto& [bytes, isIncomplete] : rows) {
        SCOPED_TRACE(bytes);
        folder.Write("zorvane.cfg", bytes);
        ASSERT_TRUE(Start());
        EXPECT_EQ(memory::TakeMessage(), isIncomplete ? incomplete : "");
        EXPECT_EQ(SettingsBytes(), bytes);
        Exit();
        EXPECT_EQ(folder.Read("zorvane.cfg.damaged"), rows[0].first) << "never overwritten";
        ASSERT_TRUE(Start()) << "the file is whole again";
        Exit();
    }
    std::filesystem::remove(folder.Native("zorvane.cfg.damaged"));
    ASSERT_TRUE(Start());
    Exit();
    EXPECT_FALSE(exists(folder.Native("zorvane.cfg.damaged"))) << "only a damaged file is kept";
}

TEST_F(SettingsCase, StoresNoEngineWhoseKeyCouldNotBeReadBack) {
    DefineEngine("Last");
    folder.Write("engines/A.cfg", "type = \"Zorvane engine file\"; realname = \"A } b = {\";");
    ASSERT_TRUE(Start());
    for (int engine = 0; engine < EngineCount(); ++engine) {
        EngineAt(engine).path = "C:\\" + std::to_string(engine);
    }
    FileList.Add("C:\\kept.wad");
    Exit();
    ASSERT_TRUE(Start());
    ASSERT_EQ(EngineAt(0).realname, "A } b = {");
    EXPECT_EQ(EngineAt(0).path, "");
    EXPECT_EQ(EngineAt(1).path, "C:\\1");
    EXPECT_EQ(EngineAt(2).path, "C:\\2");
    EXPECT_EQ(FileList.Item(0), "C:\\kept.wad");
}

TEST_F(SettingsCase, ConvertsValuesOfOtherTypes) {
    WriteSettings(
        "iwads = 5; engines = \"x\"; pwads = 1; engine = \"\"; deathmatch = \"1\"; map {}"
        "skill = 2.6; nomonsters = 1e99;");
    ASSERT_TRUE(Start());
    EXPECT_EQ(SettingNumber("engine"), 0);
    EXPECT_EQ(SettingNumber("deathmatch"), 1) << "a text counts as its number";
    EXPECT_EQ(SettingNumber("absent"), 0);
    EXPECT_EQ(SettingText("another"), "");
    Exit();
    ExpectWritten("skill = 3;");
    ExpectWritten("absent = \"\";\r\nanother = \"\";");
    ExpectWritten("iwads\r\n{\r\n}\r\n");
}

}  // namespace
