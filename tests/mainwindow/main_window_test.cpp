#include "mainwindow/main_window.h"

#include "launch/demo_save.h"
#include "session.h"
#include "setup/credits.h"
#include "state/records.h"
#include "state/settings.h"

namespace {

/// Two engines with a folder each, two games of 32 and 3 maps.
class MainWindowCase : public Session {
  protected:
    MainWindowCase() {
        DefineEngine("Alpha");
        DefineEngine("Beta");
        folder.Write("big.wad", MapWad("IWAD", NumberedMaps(32)));
        folder.Write("small.wad", MapWad("IWAD", {"E1M1", "E1M2", "E1M3"}));
        folder.Write("ports/Alpha.exe", "");
    }

    void StartWithGames() {
        WriteSettings(
            "engine = -1; iwad = -1; map = -1; skill = 2; parameters = \"\";"
            "iwads { 0 = \"Big|" +
            Stored("big.wad") + "\"; 1 = \"Small|" + Stored("small.wad") +
            "\"; } engines { Alpha { path = \"" + Stored("ports") +
            "\"; options = \"01\"; } } pwads {}");
        ASSERT_TRUE(Start());
    }
    static std::string Pressed(toolkit::Button& button) {
        driver::Click(button);
        return memory::TakeMessage();
    }
};

TEST_F(MainWindowCase, FirstRunIsEmptyAndSaysWhatIsMissing) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.Caption(), "Zorvane");
    EXPECT_EQ(frmMain.lblTitle.Caption(), "Zorvane");
    EXPECT_EQ(frmMain.lblVersion.Caption(), "Version 1.0 build 61");
    EXPECT_EQ(driver::ShownItems(frmMain.cmbEngines), (std::vector<std::string>{"Alpha", "Beta"}));
    EXPECT_EQ(frmMain.cmbEngines.ListIndex(), -1);
    EXPECT_EQ(frmMain.cmbIWADs.ListCount() + frmMain.cmbMaps.ListCount(), 0);
    EXPECT_EQ(frmMain.cmbSkill.Text(), "Hurt me plenty. (3)");
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP01");
    driver::Click(frmMain.cmdSettings);
    const std::string noEngine = "Please select an engine to launch the game with.";
    for (toolkit::Button* button :
         {&frmMain.cmdLaunch, &frmMain.cmdRun, &frmMain.cmdDemo, &frmMain.cmdPlayBack}) {
        EXPECT_EQ(Pressed(*button), noEngine);
    }
    driver::Choose(frmMain.cmbEngines, 0);
    EXPECT_EQ(Pressed(frmMain.cmdLaunch),
              "Please select a game WAD to launch the game with.\r\nIf there are no game WADs "
              "available in the list, please specify them in the Setup dialog.");
    EXPECT_TRUE(memory::machine.started.empty());
}

TEST_F(MainWindowCase, EveryControlWritesItsKeyAndComesBack) {
    StartWithGames();
    const struct {
        toolkit::CheckBox& box;
        const char* key;
    } boxes[] = {{frmMain.chkNoMonsters, "nomonsters"},
                 {frmMain.chkFastMonsters, "fastmonsters"},
                 {frmMain.chkRespawnMonsters, "respawnmonsters"},
                 {frmMain.chkDeathmatch, "deathmatch"}};
    for (const auto& row : boxes) {
        driver::Click(row.box);
        EXPECT_EQ(SettingNumber(row.key), 1) << row.key;
    }
    driver::Choose(frmMain.cmbEngines, 1);
    driver::Choose(frmMain.cmbIWADs, 0);
    driver::Choose(frmMain.cmbMaps, 17);
    driver::Choose(frmMain.cmbSkill, 4);
    driver::Type(frmMain.txtParameters, "-turbo 120 \"x\"");
    Exit();
    const std::string saved = SettingsBytes();
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.cmbEngines.Text(), "Beta");
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP18") << "not the map that filling the list chose";
    EXPECT_EQ(frmMain.cmbSkill.ListIndex(), 4);
    EXPECT_EQ(frmMain.txtParameters.Text(), "-turbo 120 \"x\"");
    EXPECT_TRUE(frmMain.chkDeathmatch.Checked() && frmMain.chkNoMonsters.Checked());
    driver::Type(frmMain.cmbMaps, "E1M1");
    EXPECT_EQ(SettingNumber("map"), 17) << "a typed name is not stored";
    Exit();
    EXPECT_EQ(SettingsBytes(), saved);
}

TEST_F(MainWindowCase, StoredIndexesWithoutARowSelectNothingAndStay) {
    WriteSettings("engine = 9; iwad = 7; map = 40; skill = 11; iwads {} engines {} pwads {}");
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.cmbEngines.ListIndex() + frmMain.cmbSkill.ListIndex(), -2);
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), -1);
    driver::Choose(frmMain.cmbEngines, 0);
    EXPECT_NE(Pressed(frmMain.cmdRun).find("select a game WAD"), std::string::npos);
    Exit();
    EXPECT_NE(SettingsBytes().find("iwad = 7;\r\nmap = 40;\r\nskill = 11;"), std::string::npos);
}

TEST_F(MainWindowCase, LaunchAndRunStartTheEngine) {
    StartWithGames();
    driver::Choose(frmMain.cmbEngines, 0);
    driver::Choose(frmMain.cmbIWADs, 0);
    driver::Choose(frmMain.cmbMaps, 6);
    FileList.Add("C:\\a b.wad");
    EXPECT_EQ(Pressed(frmMain.cmdLaunch), "");
    EXPECT_EQ(Pressed(frmMain.cmdRun), "");
    ASSERT_EQ(memory::machine.started.size(), 2U);
    const auto& launch = memory::machine.started[0];
    EXPECT_EQ(launch.file, folder.Path("ports\\Alpha.exe"));
    EXPECT_EQ(launch.directory, folder.Path("ports") + "\\");
    EXPECT_EQ(launch.parameters, "-switch2 -iwad " + folder.Path("big.wad"));
    EXPECT_EQ(launch.show, 5);
    EXPECT_EQ(memory::machine.started[1].parameters, "-switch2 -file \"C:\\a b.wad\"  -iwad \"" +
                                                         folder.Path("big.wad") +
                                                         "\" -skill 3 -warp 7  ");
    driver::Type(frmMain.cmbMaps, "e1m1");
    driver::Click(frmMain.cmdRun);
    EXPECT_TRUE(memory::machine.started[2].parameters.ends_with("-skill 3 -warp 1 1  "));
    memory::machine.accepts = false;
    EXPECT_EQ(Pressed(frmMain.cmdLaunch),
              "Could not launch the game. Check your engine paths and game WAD settings.");
    EXPECT_EQ(Pressed(frmMain.cmdRun),
              "Could not run the game. Please make sure all of your engine, game WAD and Quick "
              "Game settings are valid.");
}

TEST_F(MainWindowCase, RecordsWaitsAndSaves) {
    StartWithGames();
    driver::Choose(frmMain.cmbEngines, 0);
    driver::Choose(frmMain.cmbIWADs, 0);
    EXPECT_TRUE(Pressed(frmMain.cmdDemo).starts_with("Could not find the temporary demo file."));
    memory::machine.program = [this](const auto& program) {
        EXPECT_NE(program.parameters.find("-record \"" + folder.Path("ports\\temp") + "\" "),
                  std::string::npos);
        folder.Write("ports/temp.lmp", "demo");
    };
    int rounds = 0;
    memory::machine.rounds = 3;
    memory::machine.onEvents = [&] {
        ++rounds;
        driver::Choose(frmMain.cmbSkill, 1);  // the window is alive meanwhile
    };
    Settings.Root()->Item("lastdir") = folder.Path();
    driver::InNextModal([] { driver::PressEnter(frmDemoSave); });
    driver::InNextModal([&] {
        driver::Type(frmDemoSave.txtDemoFile, folder.Path("kept"));
        driver::Click(frmDemoSave.cmdSave);
    });
    driver::Click(frmMain.cmdDemo);
    EXPECT_EQ(rounds, 3);
    EXPECT_EQ(folder.Read("demo.lmp"), "demo") << "the first text box proposes, Enter saves";
    driver::Click(frmMain.cmdDemo);
    EXPECT_EQ(folder.Read("kept.lmp"), "demo");
    memory::machine.program = nullptr;
    memory::machine.onEvents = [] { driver::Click(frmMain.cmdExit); };
    memory::machine.rounds = 1;
    EXPECT_TRUE(Ends([] { driver::Click(frmMain.cmdDemo); })) << "Exit works while waiting";
}

TEST_F(MainWindowCase, PlaysADemoBackAndThenNoMore) {
    StartWithGames();
    driver::Choose(frmMain.cmbEngines, 0);
    driver::Choose(frmMain.cmbIWADs, 1);
    memory::machine.files = {"", folder.Path("run.lmp"),
                             folder.Path() + std::string("\0b.lmp\0a.lmp", 12)};
    for (int i = 0; i < 3; ++i) {
        driver::Click(frmMain.cmdPlayBack);
    }
    EXPECT_EQ(memory::machine.fileQuestions[0].lpstrTitle, "Select demo");
    ASSERT_EQ(memory::machine.started.size(), 2U) << "a cancelled dialog starts nothing";
    EXPECT_TRUE(memory::machine.started[0].parameters.ends_with("-warp 1 1 -playdemo \"" +
                                                                folder.Path("run.lmp") + "\" "));
    EXPECT_TRUE(memory::machine.started[1].parameters.ends_with("-playdemo \"" +
                                                                folder.Path("b.lmp") + "\" "));
    EXPECT_EQ(SettingText("lastdir"), folder.Path());
    driver::Click(frmMain.cmdRun);
    EXPECT_EQ(memory::machine.started[2].parameters.find("-playdemo"), std::string::npos);
}

TEST_F(MainWindowCase, TipsFollowThePointer) {
    StartWithGames();
    driver::PointAt(frmMain.cmdAdd);
    EXPECT_EQ(frmMain.lblTip.Caption(), "Add a file to the file list.");
    driver::PointAt(frmMain.cmbMaps);
    EXPECT_EQ(frmMain.lblTip.Caption(), "Add a file to the file list.") << "no tip of its own";
    driver::PointAt(frmMain.framQuickStart);
    EXPECT_EQ(frmMain.lblTip.Caption(), "");
    driver::PointAt(frmMain.cmdSettings);
    EXPECT_EQ(frmMain.lblTip.Caption(), "Adjust 's options.");
    driver::Choose(frmMain.cmbEngines, 1);
    driver::PointAt(frmMain.cmdSettings);
    EXPECT_EQ(frmMain.lblTip.Caption(), "Adjust Beta's options.");
    memory::machine.files = {folder.Path() + std::string("\0a.wad\0b.wad", 12)};
    driver::Click(frmMain.cmdAdd);
    driver::PointAt(frmMain.lstFiles, 1);
    EXPECT_EQ(frmMain.lstFiles.ToolTip(), folder.Path("b.wad"));
    driver::PointAt(frmMain.lstFiles, 5);
    EXPECT_EQ(frmMain.lstFiles.ToolTip(), folder.Path("b.wad")) << "below the last row";
    driver::PointAt(frmMain);
    EXPECT_EQ(frmMain.lblTip.Caption(), "");
}

TEST_F(MainWindowCase, TabOrderAndKeys) {
    ASSERT_TRUE(Start());
    std::string order;
    for (int i = 0; i < 21; ++i) {
        order += driver::Focused(frmMain) + " ";
        driver::PressTab(frmMain);
    }
    EXPECT_EQ(
        order,
        "cmbEngines cmdSettings cmbIWADs cmdLaunch cmdSetup cmdAbout cmdExit lstFiles cmdClear "
        "cmdRemove cmdAdd txtParameters cmbMaps cmbSkill chkNoMonsters chkFastMonsters "
        "chkRespawnMonsters cmdDemo cmdPlayBack cmdRun chkDeathmatch ");
    frmMain.cmbSkill.SetFocus();
    driver::PressEnter(frmMain);
    EXPECT_NE(memory::TakeMessage(), "") << "Enter is Run";
    memory::machine.accepts = false;
    driver::InNextModal([] {
        driver::Click(frmCredits.lblLinkCoder);
        driver::PressEnter(frmCredits);
    });
    driver::Click(frmMain.cmdAbout);
    EXPECT_EQ(memory::machine.started.at(0).file, frmCredits.lblLinkCoder.Caption());
    EXPECT_EQ(memory::machine.started.at(0).show, 3);
    EXPECT_TRUE(Ends([] { driver::PressEscape(frmMain); })) << "Escape is Exit";
}

}  // namespace
