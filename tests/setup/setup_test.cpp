#include "setup/setup.h"

#include "dialogs/dialogs.h"
#include "launch/command_line.h"
#include "mainwindow/main_window.h"
#include "session.h"
#include "setup/engine_settings.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/ascii.h"
#include "wad_bytes.h"

namespace {

using Texts = std::vector<std::string>;

/// Three games a, b, c and two engines of 3 and 20 switches.
struct SetupCase : Session {
    SetupCase() {
        DefineEngine("Alpha", 3);
        DefineEngine("Beta", 20);
        WriteSettings("iwad = 2; iwads { 0 = \"a|C:\\\\A.wad\"; 1 = \"b|B\"; 2 = \"c|C\"; }");
        EXPECT_TRUE(Start());
    }
    static std::string Open(std::uint32_t flags, const std::string& answer,
                            const std::string& initial = "") {
        machine.files = {answer};
        return OpenFileDialog(frmSetup, "Title", "All|*.*", initial, flags);
    }
    /// Does the steps in the dialog and accepts.
    static void InSetup(const std::function<void()>& steps) {
        driver::InNextModal([=] {
            steps();
            driver::Click(frmSetup.cmdOK);
        });
        driver::Click(frmMain.cmdSetup);
    }
};

TEST_F(SetupCase, FileDialogsStartInTheLastFolderOrThatOfTheInitialFile) {
    const std::tuple<std::uint32_t, std::string, std::string> rows[] = {
        {OneFileFlags, "D:\\a.wad", "D:"},
        {SeveralFilesFlags, "D:\\wads\\a.wad", "D:\\wads"},
        {SeveralFilesFlags, std::string("D:\\\0a\0b", 7), "D:\\"},
        {OneFileFlags, std::string(256, 'x'), "D:\\"}};
    for (const auto& [flags, answer, lastdir] : rows) {
        EXPECT_EQ(Open(flags, answer), answer);
        EXPECT_EQ(SettingText("lastdir"), lastdir);
    }
    EXPECT_EQ(Open(OneFileFlags, "", folder.Write("sub/there.lmp", "")), "");
    EXPECT_EQ(machine.fileQuestions.back().lpstrInitialDir, folder.Path("sub") + "\\");
    EXPECT_EQ(machine.fileQuestions.back().lpstrFile, "") << "the name field starts empty";
    EXPECT_EQ(Open(OneFileFlags, "C:\\" + std::string(254, 'x'), "gone.lmp"), "") << "too long";
    EXPECT_EQ(machine.fileQuestions.back().lpstrInitialDir, "D:\\");
    EXPECT_EQ(SettingText("lastdir"), "D:\\") << "unchanged by what was not chosen";
}

TEST_F(SetupCase, RemovingKeepsTheRowNumberOrFallsBackToTheFirst) {
    InSetup([] {
        driver::Choose(frmSetup.lvwIWADs, 2);
        driver::Click(frmSetup.cmdRemove);
        EXPECT_EQ(driver::ShownItems(frmSetup.lvwIWADs), (Texts{"a|C:\\A.wad", "c|C"}));
        EXPECT_EQ(frmSetup.lvwIWADs.SelectedRow(), 2);
        driver::Click(frmSetup.cmdRemove);
        EXPECT_EQ(frmSetup.lvwIWADs.SelectedRow(), 1) << "the last row is gone";
    });
    EXPECT_EQ(SettingNumber("iwad"), 0) << "lowered to the last game that is left";
    EXPECT_EQ(frmMain.cmbIWADs.Text(), "a");
    InSetup([] {
        driver::Click(frmSetup.cmdRemove);
        driver::Click(frmSetup.cmdRemove);
        driver::Click(frmSetup.cmdRename);
    });
    EXPECT_EQ(SettingNumber("iwad"), -1);
    EXPECT_EQ(frmMain.cmbIWADs.ListCount(), 0);
}

TEST_F(SetupCase, AddsOnlyGameWadsAndRenamesThem) {
    ASSERT_TRUE(
        Autodetect.InputConfiguration("game.wad = \"Proposed\"; GAME2.wad = \"never\"; n = 5;"));
    const std::string game = folder.Write("Game.WAD", MapWad("IWAD", {"E1M1"}));
    InSetup([&] {
        const std::string patch = folder.Write("p.wad", WadOf({}, "PWAD"));
        for (const std::string& bad : {patch, folder.Write("t.wad", "text"), folder.Path()}) {
            machine.files = {bad};
            driver::Click(frmSetup.cmdAdd);
            EXPECT_EQ(TakeMessage(),
                      "Please select a game IWAD. The file you selected was a patch WAD.");
        }
        machine.files = {"", game, game};
        machine.texts = {"", "Mine", "", "New name"};
        for (int i = 0; i < 3; ++i) {
            driver::Click(frmSetup.cmdAdd);
        }
        driver::Choose(frmSetup.lvwIWADs, 1);
        driver::Click(frmSetup.cmdRename);
        driver::DoubleClick(frmSetup.lvwIWADs, 2);
    });
    EXPECT_EQ(driver::ShownItems(frmMain.cmbIWADs), (Texts{"a", "New name", "c", "Mine"}));
    EXPECT_EQ(GameWadAt(3).file, game) << "in its own case";
    const auto& questions = machine.textQuestions;
    EXPECT_EQ(questions[0].prompt,
              "Please enter the formal name of the game WAD " + LowerCase(game) + ".");
    EXPECT_EQ(questions[0].preset, "Proposed");
    EXPECT_EQ(questions[2].prompt, "Please enter the name of the game WAD C:\\A.WAD.");
    EXPECT_EQ(questions[3].preset, "b");
    EXPECT_EQ(ProposedName("D:\\GAME2.WAD"), "");
    EXPECT_EQ(ProposedName("game.wad\\x"), "");
    EXPECT_EQ(ProposedName("C:\\x\\N"), "5") << "a number counts with its text";
}

TEST_F(SetupCase, SetsTheFolderOfTheSelectedEngine) {
    driver::InNextModal([] {
        machine.folders = {"D:\\" + std::string(257, 'x'), "D:\\Beta"};
        driver::Click(frmSetup.cmdPath);
        driver::Choose(frmSetup.lvwEngines, 2);
        driver::Click(frmSetup.cmdPath);
        EXPECT_EQ(driver::ShownItems(frmSetup.lvwEngines), (Texts{"Alpha|\\", "Beta|D:\\Beta\\"}));
        driver::Close(frmSetup);
    });
    driver::Click(frmMain.cmdSetup);
    EXPECT_EQ(machine.folderQuestions[1], "Please select the folder in which beta.exe resides.");
    EXPECT_EQ(frmMain.cmbIWADs.Text(), "c") << "closing by the frame accepts";
}

TEST_F(SetupCase, OptionsShowAndFollowEachEngine) {
    auto& boxes = frmEngineSettings.chkOptions;
    driver::InNextModal([&] {
        EXPECT_TRUE(boxes[15].Visible());
        driver::Click(boxes[15]);
        driver::Click(boxes[1]);
        EXPECT_EQ(frmEngineSettings.lblParameters.Caption(), "-switch2 -switch16");
        driver::Press(frmEngineSettings, driver::Key::Escape);
    });
    driver::Choose(frmMain.cmbEngines, 1);
    driver::Click(frmMain.cmdSettings);
    InSetup([&] {
        driver::InNextModal([&] {
            EXPECT_TRUE(boxes[2].Visible() && !boxes[3].Visible());
            EXPECT_FALSE(boxes[1].Checked());
            EXPECT_EQ(boxes[1].Caption(), "Caption 2");
            EXPECT_EQ(frmEngineSettings.lblParameters.Caption(), "");
            driver::Close(frmEngineSettings);
        });
        driver::Click(frmSetup.cmdEngineSettings);
    });
    EXPECT_EQ(EngineParameterString(1), "-switch2 -switch16") << "as it was";
}

}  // namespace
