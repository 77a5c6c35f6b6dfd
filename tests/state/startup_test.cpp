#include "state/startup.h"

#include "mainwindow/main_window.h"
#include "session.h"
#include "state/engine_files.h"
#include "state/records.h"

namespace {

struct Startup : Session {};

TEST_F(Startup, StopsWithoutAnEngineDefinitionAndLeavesTheSettingsAlone) {
    WriteSettings("precious = 1;");
    const std::string before = SettingsBytes();
    EXPECT_FALSE(Start());
    EXPECT_EQ(memory::TakeMessage(),
              "No engine configuration files were found. Please check if you installed Zorvane "
              "properly.");
    EXPECT_EQ(SettingsBytes(), before);
    EXPECT_FALSE(frmMain.Visible());
    folder.Write("engines/other.cfg", "type = \"something else\";");
    EXPECT_TRUE(Start()) << "a file that is no engine does not stop the start";
    EXPECT_EQ(EngineCount(), 0);
}

TEST_F(Startup, SkipsFilesThatDefineNoEngine) {
    for (const char* text : {"type = \"ZORVANE ENGINE FILE\";", "type = 1;", "\xff\x01{{{\"\\9"}) {
        ReadEngineFile(folder.Write("one.cfg", text));
        EXPECT_EQ(EngineCount(), 0) << text;
    }
    ReadEngineFile(folder.Write("one.cfg",
                                "type = \"Zorvane engine file\"; executable { a = 1; } demoext = 7;"
                                "parameters = \"x\"; filetypes = 1;"));
    ASSERT_EQ(EngineCount(), 1);
    const EngineRecord& engine = EngineAt(0);
    EXPECT_EQ(engine.executable, "") << "a structure";
    EXPECT_EQ(engine.realname, "") << "missing";
    EXPECT_EQ(engine.demoext, "7");
    EXPECT_TRUE(engine.parameters.empty());
    EXPECT_TRUE(engine.filetypes.empty());
}

TEST_F(Startup, ListsEnginesByFileNameAndKeepsTheFirstOfTwoEqualOnes) {
    const std::string text = "type = \"Zorvane engine file\"; realname = \"";
    folder.Write("engines/b.cfg", text + "Same Name\"; executable = \"second\";");
    folder.Write("engines/A.cfg", text + "Same Name\"; executable = \"first\";");
    folder.Write("engines/c.CFG", text + "Other\";");
    folder.Write("engines/d.txt", text + "No definition\";");
    ASSERT_TRUE(ScanEngineFiles(folder.Path("engines")));
    ASSERT_EQ(EngineCount(), 2);
    EXPECT_EQ(EngineAt(0).executable, "first");
    EXPECT_EQ(EngineAt(1).realname, "Other");
    EXPECT_EQ(EngineKey("Two  spaces"), "Two\1\1spaces");
}

TEST_F(Startup, QuotedPathsOfTheCommandLineReplaceTheFileList) {
    DefineEngine("One");
    const std::pair<const char*, std::vector<std::string>> rows[] = {
        {"\"C:\\a b.wad\" skipped \"\"\"C:\\c.wad\" \"dropped", {"C:\\a b.wad", "", "C:\\c.wad"}},
        {"C:\\unquoted.wad", {}},
    };
    for (const auto& [line, files] : rows) {
        WriteSettings("pwads { 0 = \"C:\\\\stored.wad\"; }");
        memory::machine.commandLine = line;
        ASSERT_TRUE(Start());
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), files);
        EXPECT_EQ(frmMain.lstFiles.ListIndex(), files.empty() ? -1 : 0);
        Exit();
        memory::machine.commandLine = "";
        ASSERT_TRUE(Start());
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), files) << "as saved";
    }
    memory::machine.refusedArguments = {"no\"name.wad"};
    ASSERT_TRUE(Start());
    EXPECT_TRUE(memory::TakeMessage().starts_with("This file cannot be used: no\"name.wad\r\n"));
}

}  // namespace
