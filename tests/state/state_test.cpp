// Engine files, the settings file, start and end of the program.
#include "mainwindow/main_window.h"
#include "session.h"
#include "state/engine_files.h"
#include "state/records.h"
#include "state/settings.h"

using namespace std::string_literals;

namespace {

const std::string EngineFile = "type = \"Zorvane engine file\"; realname = ";

struct State : Session {
    State() { DefineEngine("Sample Engine"); }
    void ExpectWritten(std::string_view part) const {
        EXPECT_NE(SettingsBytes().find(part), std::string::npos) << SettingsBytes();
    }
    static void ExpectCritical(const std::string& start) {
        const std::string message = TakeMessage(desktop::MessageIcon::Critical);
        EXPECT_EQ(message.substr(0, start.size()), start);
    }
};

TEST_F(State, StartsOnceThereIsAnEngineFile) {
    std::filesystem::remove(folder.Native("engines/Sample Engine.cfg"));
    WriteSettings("precious = 1;");
    const std::string before = SettingsBytes();
    EXPECT_FALSE(Start());
    ExpectCritical("No engine configuration files were found. Please check if you installed ");
    EXPECT_EQ(SettingsBytes(), before);
    EXPECT_FALSE(frmMain.Visible());
    folder.Write("engines/other.cfg", "type = \"something else\";");
    EXPECT_TRUE(Start()) << "even if it defines no engine";
    EXPECT_EQ(EngineCount(), 0);
}

TEST_F(State, ReadsEngineFilesInTheOrderOfTheirNames) {
    folder.Write("engines/b.cfg", EngineFile + "\"Same Name\"; executable = \"second\";");
    folder.Write("engines/A.cfg", EngineFile +
                                      "\"Same Name\"; executable { a = 1; } demoext = 7;"
                                      "parameters = \"x\"; filetypes = 1;");
    folder.Write("engines/c.CFG", EngineFile + "\"Other\";");
    folder.Write("engines/d.txt", EngineFile + "\"No definition\";");
    folder.Write("engines/e.cfg", "realname = \"E\"; type = \"ZORVANE ENGINE FILE\";");
    folder.Write("engines/f.cfg", "\xff\x01{{{\"\\9");
    ASSERT_TRUE(ScanEngineFiles(folder.Path("engines")));
    ASSERT_EQ(EngineCount(), 3);
    EXPECT_EQ(EngineAt(0).realname, "Same Name");
    EXPECT_EQ(EngineAt(0).executable, "") << "a structure counts as no text";
    EXPECT_EQ(EngineAt(0).demoext, "7");
    EXPECT_TRUE(EngineAt(0).parameters.empty());
    EXPECT_TRUE(EngineAt(0).filetypes.empty());
    EXPECT_EQ(EngineAt(1).realname, "Other");
    EXPECT_EQ(EngineKey("Two  spaces"), "Two\1\1spaces");
}

TEST_F(State, FirstRunWritesTheDefaultsByteForByte) {
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
    ExpectCritical("The settings could not be saved to " + SettingsFileName + "\r\n");
    EXPECT_EQ(SettingsBytes(), expected);
}

TEST_F(State, ReadsTheListsAndWritesThemAnew) {
    folder.Write("engines/A.cfg", EngineFile + "\"No } key = {\";");
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
    EXPECT_EQ(folder.Count(), 3) << "the engines, the settings, the known games";

    const std::string file = SettingsBytes();
    ASSERT_TRUE(Start());
    folder.Write("zorvane.cfg", "written by another run");
    Exit();
    EXPECT_EQ(SettingsBytes(), file) << "unchanged";
    EXPECT_EQ(folder.Read("zorvane.cfg.old"), "written by another run");
}

TEST_F(State, KeepsAFileThatItCannotUseAndStops) {
    const std::string bad[] = {"", "type = \"zorvane configuration file\";", "engine = 1;",
                               "\xff\xfe\0{{{{"s, "type { a = \"Zorvane Configuration file\"; }"};
    for (const std::string& bytes : bad) {
        folder.Write("zorvane.cfg", bytes);
        EXPECT_FALSE(Start());
        ExpectCritical("The configuration file was corrupted.");
        EXPECT_EQ(SettingsBytes(), bytes);
    }
    std::filesystem::remove(folder.Native("zorvane.cfg"));
    folder.Write("zorvane.cfg/file", "in a folder of that name");
    EXPECT_FALSE(Start());
    ExpectCritical("The settings could not be read from " + SettingsFileName + "\r\n");
}

TEST_F(State, KeepsTheFirstDamagedFileAndUsesWhatIsLeft) {
    ASSERT_TRUE(Start());
    Exit();
    EXPECT_EQ(folder.Count(), 3) << "a good file is not kept";
    const std::string whole = SettingsBytes();
    const std::pair<std::string, bool> rows[] = {
        {whole.substr(0, whole.find("pwads")), false},
        {whole.substr(0, whole.find("{") + 1), true},
        {whole.substr(0, whole.find("lastdir = \"") + 11), true},
        {whole + "/* unfinished", true},
    };
    for (const auto& [bytes, isIncomplete] : rows) {
        SCOPED_TRACE(bytes);
        folder.Write("zorvane.cfg", bytes);
        ASSERT_TRUE(Start());
        EXPECT_EQ(TakeMessage().ends_with("zorvane.cfg.damaged"), isIncomplete);
        EXPECT_EQ(SettingsBytes(), bytes);
        Exit();
        EXPECT_EQ(folder.Read("zorvane.cfg.damaged"), rows[0].first);
        ASSERT_TRUE(Start()) << "the file is whole again";
    }
}

TEST_F(State, ConvertsValuesOfOtherTypes) {
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

TEST_F(State, QuotedPathsOfTheCommandLineReplaceTheFileList) {
    const std::pair<const char*, std::vector<std::string>> rows[] = {
        {"\"C:\\a b.wad\" skipped \"\"\"C:\\c.wad\" \"dropped", {"C:\\a b.wad", "", "C:\\c.wad"}},
        {"C:\\unquoted.wad", {}},
    };
    for (const auto& [line, files] : rows) {
        WriteSettings("iwads {} engines {} pwads { 0 = \"C:\\\\stored.wad\"; }");
        machine.commandLine = line;
        ASSERT_TRUE(Start());
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), files);
        EXPECT_EQ(frmMain.lstFiles.ListIndex(), files.empty() ? -1 : 0);
        Exit();
        machine.commandLine = "";
        ASSERT_TRUE(Start());
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), files) << "as saved";
    }
    machine.refusalReasons = {"reason"};
    ASSERT_TRUE(Start());
    EXPECT_EQ(TakeMessage(), "reason");
}

}  // namespace
