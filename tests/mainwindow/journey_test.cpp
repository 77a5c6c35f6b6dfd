// A new player sets everything up from nothing, plays, records and comes back.
#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "session.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"

namespace {

struct Journey : Session {};

TEST_F(Journey, FromNothingToTheSecondRun) {
    DefineEngine("Sample Engine");
    folder.Write("autodetect.cfg", "known.wad = \"A Known Game\";");
    ASSERT_TRUE(Start());
    driver::InNextModal([&] {
        memory::machine.files = {folder.Write("Known.WAD", MapWad("IWAD", {"E1M1", "E1M2"}))};
        memory::machine.texts = {"My Game"};
        driver::Click(frmSetup.cmdAdd);
        EXPECT_EQ(memory::machine.textQuestions[0].preset, "A Known Game");
        memory::machine.folders = {folder.Path("ports")};
        driver::Click(frmSetup.cmdPath);
        driver::InNextModal([] {
            driver::Click(frmEngineSettings.chkOptions[1]);
            driver::PressEnter(frmEngineSettings);
        });
        driver::DoubleClick(frmSetup.lvwEngines, 1);
        driver::Click(frmSetup.cmdOK);
    });
    driver::Click(frmMain.cmdSetup);

    driver::Choose(frmMain.cmbEngines, 0);
    driver::Choose(frmMain.cmbIWADs, 0);
    memory::machine.files = {folder.Write("patch.wad", MapWad("PWAD", {"E1M2"}))};
    driver::Click(frmMain.cmdAdd);
    driver::DoubleClick(frmMain.lstFiles, 0);
    driver::Choose(frmMain.cmbSkill, 4);
    driver::Type(frmMain.txtParameters, "-turbo \"1\"");
    driver::Click(frmMain.chkFastMonsters);
    driver::Click(frmMain.chkRespawnMonsters);
    driver::Click(frmMain.cmdLaunch);
    driver::Click(frmMain.cmdRun);
    folder.Write("ports/temp.lmp", "demo");
    driver::InNextModal([] { driver::Click(frmDemoSave.cmdDiscard); });
    driver::Click(frmMain.cmdDemo);
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
    const std::string game = folder.Path("Known.WAD");
    const std::string head = "-switch2 -file \"" + folder.Path("patch.wad") + "\"  -iwad \"" +
                             game + "\" -skill 5 -fast -respawn -warp 1 2 ";
    const std::string record = "-record \"" + folder.Path("ports\\temp") + "\"";
    const auto& started = memory::machine.started;
    EXPECT_EQ(started.at(0).file, folder.Path("ports\\Sample Engine.exe"));
    EXPECT_EQ(started.at(0).show, 5);
    EXPECT_EQ(started.at(0).parameters, "-switch2 -iwad " + game);
    EXPECT_EQ(started.at(1).parameters, head + " -turbo \"1\"");
    EXPECT_EQ(started.at(2).parameters, head + record + " -turbo \"1\"");
    EXPECT_EQ(started.at(3).parameters, started.at(1).parameters) << "everything is back";
    EXPECT_EQ(started.at(3).file, started.at(1).file);
}

}  // namespace
