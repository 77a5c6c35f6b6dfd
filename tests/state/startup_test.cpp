#include "state/startup.h"

#include "mainwindow/main_window.h"
#include "session.h"
#include "state/records.h"

namespace {

class Startup : public Session {};

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
    EXPECT_TRUE(Start()) << "a file that is no engine is no reason to stop";
    EXPECT_EQ(EngineCount(), 0);
}

TEST_F(Startup, ClosingTheWindowSavesLikeExit) {
    DefineEngine("One");
    ASSERT_TRUE(Start());
    driver::Choose(frmMain.cmbSkill, 4);
    Exit();
    const std::string byExit = SettingsBytes();
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.cmbSkill.ListIndex(), 4);
    EXPECT_TRUE(Ends([] { driver::Close(frmMain); }));
    EXPECT_EQ(SettingsBytes(), byExit);
}

TEST_F(Startup, SaysSoWhenTheSettingsCannotBeWritten) {
    DefineEngine("One");
    ASSERT_TRUE(Start());
    const std::string before = SettingsBytes();
    SettingsFileName = folder.Path("missing") + "\\zorvane.cfg";
    Exit();
    EXPECT_TRUE(memory::TakeMessage().starts_with("The settings could not be saved to " +
                                                  SettingsFileName + "\r\n"));
    EXPECT_EQ(SettingsBytes(), before);
}

TEST_F(Startup, QuotedPathsOfTheCommandLineReplaceTheFileList) {
    DefineEngine("One");
    const struct {
        const char* line;
        std::vector<std::string> files;
    } rows[] = {
        {"", {"C:\\stored.wad"}},
        {"\"C:\\a b.wad\" skipped \"\"\"C:\\c.wad\" \"dropped", {"C:\\a b.wad", "", "C:\\c.wad"}},
        {"C:\\unquoted.wad", {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        WriteSettings("pwads { 0 = \"C:\\\\stored.wad\"; }");
        memory::machine.commandLine = row.line;
        ASSERT_TRUE(Start());
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), row.files);
        EXPECT_EQ(FileList.Count() + 1, frmMain.lstFiles.ListCount());
        EXPECT_EQ(frmMain.lstFiles.ListIndex(), row.files.empty() ? -1 : 0);
        Exit();
        memory::machine.commandLine = "";
        ASSERT_TRUE(Start());
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), row.files) << "and that is what is saved";
    }
}

}  // namespace
