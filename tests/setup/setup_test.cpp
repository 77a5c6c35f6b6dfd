#include "setup/setup.h"

#include "mainwindow/main_window.h"
#include "session.h"
#include "setup/engine_settings.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/ascii.h"

namespace {

using Texts = std::vector<std::string>;

/// Three games a, b, c and two engines of 3 and 20 switches.
class SetupCase : public Session {
  protected:
    SetupCase() {
        DefineEngine("Alpha", 3);
        DefineEngine("Beta", 20);
        WriteSettings("iwad = 2; iwads { 0 = \"a|C:\\\\A.wad\"; 1 = \"b|B\"; 2 = \"c|C\"; }");
    }
    /// Does the steps in the dialog and accepts.
    void InSetup(const std::function<void()>& steps) {
        driver::InNextModal([=] {
            steps();
            driver::Click(frmSetup.cmdOK);
        });
        driver::Click(frmMain.cmdSetup);
    }
    static std::string Names() {
        std::string names;
        for (const GameWadRecord& gameWad : GameWads) {
            names += gameWad.name + " ";
        }
        return names;
    }
};

TEST_F(SetupCase, RemovingKeepsTheRowNumberOrFallsBackToTheFirst) {
    ASSERT_TRUE(Start());
    InSetup([] {
        EXPECT_EQ(driver::ShownItems(frmSetup.lvwIWADs), (Texts{"a|C:\\A.wad", "b|B", "c|C"}));
        EXPECT_EQ(driver::ShownItems(frmSetup.lvwEngines), (Texts{"Alpha|\\", "Beta|\\"}));
        EXPECT_EQ(frmSetup.lvwIWADs.SelectedRow(), 1);
        driver::Choose(frmSetup.lvwIWADs, 2);
        driver::Click(frmSetup.cmdRemove);
        EXPECT_EQ(Names(), "a c ");
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

TEST_F(SetupCase, RenamesAndKeepsTheNameOnCancel) {
    ASSERT_TRUE(Start());
    InSetup([] {
        memory::machine.texts = {"", "New name"};
        driver::Click(frmSetup.cmdRename);
        EXPECT_EQ(GameWadAt(0).name, "a");
        driver::DoubleClick(frmSetup.lvwIWADs, 2);
    });
    EXPECT_EQ(Names(), "a New name c ");
    EXPECT_EQ(memory::machine.textQuestions[0].prompt,
              "Please enter the name of the game WAD C:\\A.WAD.");
    EXPECT_EQ(memory::machine.textQuestions[1].preset, "b");
    EXPECT_EQ(frmMain.cmbIWADs.List(1), "New name");
}

TEST_F(SetupCase, AddsOnlyGameWads) {
    ASSERT_TRUE(Start());
    Autodetect.InputConfiguration("game.wad = \"Proposed\"; GAME2.wad = \"never\"; n = 5;");
    const std::string game = folder.Write("Game.WAD", MapWad("IWAD", {"E1M1"}));
    std::filesystem::create_directory(folder.Native("folder.wad"));
    InSetup([&] {
        for (const std::string& bad :
             {folder.Write("p.wad", WadBytes("PWAD", {})), folder.Write("t.wad", "text"),
              folder.Write("l.wad", WadBytes("iwad", {})), folder.Path("folder.wad"),
              folder.Path("absent.wad")}) {
            memory::machine.files = {bad};
            driver::Click(frmSetup.cmdAdd);
            EXPECT_TRUE(memory::TakeMessage().starts_with("Please select a game IWAD."));
        }
        memory::machine.files = {"", game, game};
        memory::machine.texts = {"", "Mine"};
        for (int i = 0; i < 3; ++i) {
            driver::Click(frmSetup.cmdAdd);
        }
    });
    EXPECT_EQ(Names(), "a b c Mine ");
    EXPECT_EQ(GameWadAt(3).file, game) << "in its own case";
    const auto& question = memory::machine.textQuestions[0];
    EXPECT_EQ(question.title, "Enter a name");
    EXPECT_EQ(question.prompt,
              "Please enter the formal name of the game WAD " + LowerCase(game) + ".");
    EXPECT_EQ(question.preset, "Proposed");
    EXPECT_EQ(ProposedName("D:\\GAME2.WAD") + ProposedName("game.wad\\x"), "");
    EXPECT_EQ(ProposedName("C:\\x\\N"), "5");
}

TEST_F(SetupCase, SetsTheFolderOfTheSelectedEngine) {
    ASSERT_TRUE(Start());
    InSetup([] {
        memory::machine.folders = {"", "D:\\Ports\\Beta"};
        driver::Click(frmSetup.cmdPath);
        driver::Choose(frmSetup.lvwEngines, 2);
        driver::Click(frmSetup.cmdPath);
        EXPECT_EQ(driver::ShownItems(frmSetup.lvwEngines),
                  (Texts{"Alpha|\\", "Beta|D:\\Ports\\Beta\\"}));
    });
    EXPECT_EQ(memory::machine.folderQuestions[1],
              "Please select the folder in which beta.exe resides.");
    EXPECT_EQ(EngineAt(0).path + EngineAt(1).path, "D:\\Ports\\Beta");
    driver::InNextModal([] { driver::Close(frmSetup); });
    driver::Click(frmMain.cmdSetup);
    EXPECT_EQ(frmMain.cmbIWADs.Text(), "c") << "closing by the frame accepts";
}

TEST_F(SetupCase, OptionsShowAndFollowEachEngine) {
    ASSERT_TRUE(Start());
    const auto visible = [] {
        int boxes = 0;
        for (const auto& box : frmEngineSettings.chkOptions) {
            boxes += box->Visible() ? 1 : 0;
        }
        return boxes;
    };
    driver::InNextModal([&] {
        EXPECT_EQ(frmEngineSettings.Caption(), "Engine settings of Beta");
        EXPECT_EQ(visible(), 16);
        EXPECT_EQ(frmEngineSettings.lblParameters.Caption(), "");
        driver::Click(*frmEngineSettings.chkOptions[15]);
        driver::Click(*frmEngineSettings.chkOptions[1]);
        EXPECT_EQ(frmEngineSettings.lblParameters.Caption(), "-switch2 -switch16");
        driver::PressEscape(frmEngineSettings);
    });
    driver::Choose(frmMain.cmbEngines, 1);
    driver::Click(frmMain.cmdSettings);
    driver::Choose(frmMain.cmbEngines, 0);
    driver::InNextModal([&] {
        EXPECT_EQ(visible(), 3);
        EXPECT_FALSE(frmEngineSettings.chkOptions[1]->Checked());
        EXPECT_EQ(frmEngineSettings.chkOptions[1]->Caption(), "Caption 2");
        driver::Click(frmEngineSettings.cmdAccept);
    });
    driver::Click(frmMain.cmdSettings);
    EXPECT_EQ(OptionsToString(EngineAt(0).options), "0000000000000000");
    EXPECT_EQ(OptionsToString(EngineAt(1).options), "0100000000000001");
    InSetup([&] {
        driver::InNextModal([] {
            EXPECT_TRUE(frmEngineSettings.chkOptions[15]->Checked());
            driver::Close(frmEngineSettings);
        });
        driver::Choose(frmSetup.lvwEngines, 2);
        driver::Click(frmSetup.cmdEngineSettings);
    });
}

}  // namespace
