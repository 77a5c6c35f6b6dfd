#include "mainwindow/main_window.h"

#include "launch/demo_save.h"
#include "session.h"
#include "setup/credits.h"
#include "state/records.h"

namespace {

struct MainWindowCase : Session {
    MainWindowCase() { DefineEngine("Alpha"); }
    /// Comes up with the first engine and a game chosen.
    void StartWithGame() {
        ASSERT_TRUE(Start());
        EngineAt(0).path = folder.Path("ports");
        GameWads = {{"Game", folder.Write("game.wad", MapWad("IWAD", {"E1M1", "E1M2"}))}};
        frmMain.SetupLists();
        driver::Choose(frmMain.cmbEngines, 0);
        driver::Choose(frmMain.cmbIWADs, 0);
    }
    static std::string Pressed(toolkit::Button& button) {
        driver::Click(button);
        return TakeMessage();
    }
};

TEST_F(MainWindowCase, FirstRunIsEmptyAndSaysWhatIsMissing) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.lblVersion.Caption(), "Version 1.2 build 34");
    EXPECT_EQ(frmMain.cmbSkill.Text(), "Hurt me plenty. (3)");
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP01");
    EXPECT_EQ(Pressed(frmMain.cmdSettings), "");
    for (auto* button :
         {&frmMain.cmdLaunch, &frmMain.cmdRun, &frmMain.cmdDemo, &frmMain.cmdPlayBack}) {
        EXPECT_EQ(Pressed(*button), "Please select an engine to launch the game with.");
    }
    driver::Choose(frmMain.cmbEngines, 0);
    EXPECT_EQ(Pressed(frmMain.cmdLaunch),
              "Please select a game WAD to launch the game with.\r\nIf there are no game WADs "
              "available in the list, please specify them in the Setup dialog.");
}

TEST_F(MainWindowCase, EverythingIsBackInTheSecondRun) {
    StartWithGame();
    EngineAt(0).options[1] = true;
    machine.files = {folder.Write("patch.wad", MapWad("PWAD", {"E1M2"}))};
    driver::Click(frmMain.cmdAdd);
    driver::DoubleClick(frmMain.lstFiles, 0);
    driver::Choose(frmMain.cmbSkill, 4);
    driver::Type(frmMain.txtParameters, "-turbo \"1\"");
    driver::Click(frmMain.chkFastMonsters);
    driver::Click(frmMain.chkRespawnMonsters);
    driver::Click(frmMain.cmdLaunch);
    driver::Click(frmMain.cmdRun);
    EXPECT_TRUE(Ends([] { driver::Close(frmMain); })) << "it saves like Exit";
    const std::string saved = SettingsBytes();
    EXPECT_TRUE(saved.starts_with(
        "type = \"Zorvane Configuration file\";\r\nengine = 0;\r\niwad = 0;\r\nskill = 4;\r\n"
        "map = 1;\r\nfastmonsters = 1;\r\nnomonsters = 0;\r\nrespawnmonsters = 1;\r\n"
        "deathmatch = 0;\r\nparameters = \"-turbo \\\"1\\\"\";\r\nlastdir = \"" +
        Stored("") + "\";\r\n\r\niwads\r\n"))
        << saved;
    ASSERT_TRUE(Start());
    EXPECT_TRUE(frmMain.chkRespawnMonsters.Checked());
    driver::Click(frmMain.cmdRun);
    Exit();
    EXPECT_EQ(SettingsBytes(), saved);
    const std::string game = folder.Path("game.wad");
    const auto& started = machine.started;
    EXPECT_EQ(started.at(0).file, folder.Path("ports\\Alpha.exe"));
    EXPECT_EQ(started.at(0).show, 5);
    EXPECT_EQ(started.at(0).parameters, "-switch2 -iwad " + game);
    for (const auto& run : {started.at(1), started.at(2)}) {
        EXPECT_EQ(run.file, started.at(0).file);
        EXPECT_EQ(run.parameters, "-switch2 -file \"" + folder.Path("patch.wad") + "\"  -iwad \"" +
                                      game + "\" -skill 5 -fast -respawn -warp 1 2  -turbo \"1\"");
    }
}

TEST_F(MainWindowCase, StoredIndexesWithoutARowSelectNothingAndStay) {
    WriteSettings("engine = 9; iwad = 7; map = 40; skill = 11;");
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.cmbEngines.ListIndex(), -1);
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), -1);
    Exit();
    EXPECT_NE(SettingsBytes().find("engine = 9;\r\niwad = 7;\r\nmap = 40;\r\nskill = 11;"),
              std::string::npos);
    StartWithGame();
    EXPECT_EQ(Pressed(frmMain.cmdRun), "Please select a skill to launch the game with.");
}

TEST_F(MainWindowCase, SaysSoWhenTheEngineDoesNotStart) {
    StartWithGame();
    machine.accepts = false;
    machine.onEvents = [] { ADD_FAILURE() << "there is nothing to wait for"; };
    machine.rounds = 1;
    EXPECT_EQ(Pressed(frmMain.cmdLaunch),
              "Could not launch the game. Check your engine paths and game WAD settings.");
    for (auto* button : {&frmMain.cmdRun, &frmMain.cmdDemo}) {
        EXPECT_EQ(Pressed(*button),
                  "Could not run the game. Please make sure all of your engine, game WAD and Quick "
                  "Game settings are valid.");
    }
    EXPECT_TRUE(TakeMessage().starts_with("Could not find the temporary demo file."));
    machine.accepts = true;
    EXPECT_EQ(Pressed(frmMain.cmdRun), "") << "and only a recording is waited for";
}

TEST_F(MainWindowCase, RecordingLeavesTheWindowAlive) {
    StartWithGame();
    machine.program = [this](const auto&) { folder.Write("ports/temp.lmp", "demo"); };
    machine.rounds = 3;
    machine.onEvents = [] { frmMain.cmbSkill.SetListIndex(machine.rounds); };
    driver::InNextModal([] {
        EXPECT_EQ(machine.repaints, 1);
        driver::Press(frmDemoSave, driver::Key::Enter);
    });
    driver::Click(frmMain.cmdDemo);
    EXPECT_EQ(frmMain.cmbSkill.ListIndex(), 0) << "to the last round";
    EXPECT_EQ(folder.Read("demo.lmp"), "demo") << "the first text box proposes, Enter saves";
    machine.rounds = 1;
    machine.onEvents = [] { driver::Click(frmMain.cmdExit); };
    EXPECT_TRUE(Ends([] { driver::Click(frmMain.cmdDemo); })) << "Exit works while waiting";
}

TEST_F(MainWindowCase, ASecondRecordingLeavesTheFirstItsFile) {
    DefineEngine("Beta");
    StartWithGame();
    EngineAt(1).path = folder.Path("no demos");
    const std::string demo = folder.Write("ports/temp.lmp", "demo");
    machine.rounds = 1;
    machine.onEvents = [] {
        machine.onEvents = nullptr;
        driver::Choose(frmMain.cmbEngines, 1);
        EXPECT_TRUE(Pressed(frmMain.cmdDemo).starts_with("Could not find the temporary demo"));
    };
    driver::InNextModal([&] {
        EXPECT_EQ(frmDemoSave.DemoFileName, demo);
        driver::Press(frmDemoSave, driver::Key::Escape);
    });
    driver::Click(frmMain.cmdDemo);
}

TEST_F(MainWindowCase, PlaysADemoBackAndThenNoMore) {
    StartWithGame();
    machine.files = {"", folder.Path("run.lmp"), std::string("D:\\w\0b.lmp\0a.lmp", 16)};
    for (auto* button :
         {&frmMain.cmdPlayBack, &frmMain.cmdPlayBack, &frmMain.cmdPlayBack, &frmMain.cmdRun}) {
        driver::Click(*button);
    }
    const auto& started = machine.started;
    ASSERT_EQ(started.size(), 3U) << "a cancelled dialog starts nothing";
    EXPECT_TRUE(started[0].parameters.ends_with("-playdemo \"" + folder.Path("run.lmp") + "\" "));
    EXPECT_TRUE(started[1].parameters.ends_with("-playdemo \"D:\\w\\b.lmp\" "));
    EXPECT_TRUE(started[2].parameters.ends_with("-warp 1 1  "));
}

TEST_F(MainWindowCase, TipsFollowThePointer) {
    StartWithGame();
    const auto tip = [](toolkit::Control& control) {
        driver::PointAt(control);
        return frmMain.lblTip.Caption();
    };
    EXPECT_EQ(tip(frmMain.cmdAdd), "Add a file to the file list.");
    EXPECT_EQ(tip(frmMain.cmbMaps), "Add a file to the file list.") << "has none of its own";
    EXPECT_EQ(tip(frmMain.framQuickStart), "");
    EXPECT_EQ(tip(frmMain.cmdSettings), "Adjust Alpha's options.");
    driver::PointAt(frmMain);
    EXPECT_EQ(frmMain.lblTip.Caption(), "");
    machine.files = {std::string("D:\\w\0a.wad\0b.wad", 16)};
    driver::Click(frmMain.cmdAdd);
    for (const int row : {1, 5}) {
        driver::PointAt(frmMain.lstFiles, row);
        EXPECT_EQ(frmMain.lstFiles.ToolTip(), "D:\\w\\b.wad") << "also below the last row";
    }
}

TEST_F(MainWindowCase, LinksOpenAndEscapeIsExit) {
    ASSERT_TRUE(Start());
    machine.accepts = false;
    driver::InNextModal([] {
        driver::Click(frmCredits.lblLinkCoder);
        driver::Press(frmCredits, driver::Key::Enter);
    });
    driver::Click(frmMain.cmdAbout);
    EXPECT_EQ(machine.started.at(0).file, frmCredits.lblLinkCoder.Caption());
    EXPECT_EQ(machine.started[0].show, 3);
    EXPECT_TRUE(Ends([] { driver::Press(frmMain, driver::Key::Escape); }));
}

}  // namespace
