// A new player sets everything up from nothing, plays, records and comes back.
#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "session.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"

namespace {

class Journey : public Session {};

TEST_F(Journey, FromNothingToTheSecondRun) {
    DefineEngine("Sample Engine");
    folder.Write("ports/Sample Engine.exe", "");
    folder.Write("autodetect.cfg", "known.wad = \"A Known Game\";");
    folder.Write("Known.WAD", MapWad("IWAD", {"E1M1", "E1M2"}));
    folder.Write("other.wad", MapWad("IWAD", {"MAP01"}));
    folder.Write("patch.wad", MapWad("PWAD", {"E1M2"}));
    ASSERT_TRUE(Start());

    driver::InNextModal([&] {
        memory::machine.files = {folder.Path("Known.WAD"), folder.Path("patch.wad"),
                                 folder.Path("other.wad")};
        memory::machine.texts = {"A Known Game", "The Other"};
        for (int i = 0; i < 3; ++i) {
            driver::Click(frmSetup.cmdAdd);
        }
        EXPECT_EQ(memory::TakeMessage(),
                  "Please select a game IWAD. The file you selected was a patch WAD.");
        EXPECT_EQ(memory::machine.textQuestions[0].preset, "A Known Game");
        EXPECT_EQ(memory::machine.textQuestions[1].preset, "");
        memory::machine.folders = {folder.Path("ports")};
        driver::Click(frmSetup.cmdPath);
        driver::InNextModal([] {
            driver::Click(*frmEngineSettings.chkOptions[1]);
            driver::PressEnter(frmEngineSettings);
        });
        driver::DoubleClick(frmSetup.lvwEngines, 1);
        driver::Click(frmSetup.cmdOK);
    });
    driver::Click(frmMain.cmdSetup);

    driver::Choose(frmMain.cmbEngines, 0);
    driver::Choose(frmMain.cmbIWADs, 0);
    memory::machine.files = {folder.Path("patch.wad")};
    driver::Click(frmMain.cmdAdd);
    driver::DoubleClick(frmMain.lstFiles, 0);
    EXPECT_EQ(frmMain.cmbMaps.Text(), "E1M2");
    driver::Click(frmMain.chkFastMonsters);
    driver::Click(frmMain.cmdRun);
    ASSERT_EQ(memory::machine.started.size(), 1U);
    EXPECT_EQ(memory::machine.started[0].file, folder.Path("ports\\Sample Engine.exe"));
    EXPECT_EQ(memory::machine.started[0].parameters,
              "-switch2 -file \"" + folder.Path("patch.wad") + "\"  -iwad \"" +
                  folder.Path("Known.WAD") + "\" -skill 3 -fast -warp 1 2  ");

    memory::machine.program = [&](const auto&) { folder.Write("ports/temp.lmp", "demo"); };
    driver::InNextModal([] { driver::Click(frmDemoSave.cmdDiscard); });
    driver::Click(frmMain.cmdDemo);
    EXPECT_FALSE(std::filesystem::exists(folder.Native("ports/temp.lmp")));
    Exit();

    const std::string expected =
        "type = \"Zorvane Configuration file\";\r\nengine = 0;\r\niwad = 0;\r\nskill = 2;\r\n"
        "map = 1;\r\nfastmonsters = 1;\r\nnomonsters = 0;\r\nrespawnmonsters = 0;\r\n"
        "deathmatch = 0;\r\nparameters = \"\";\r\nlastdir = \"" +
        Stored("") + "\";\r\n\r\niwads\r\n{\r\n\t0 = \"A Known Game|" + Stored("Known.WAD") +
        "\";\r\n\t1 = \"The Other|" + Stored("other.wad") +
        "\";\r\n}\r\n\r\n\r\nengines\r\n{\r\n\t\r\n\tSample\x01"
        "Engine\r\n\t{\r\n\t\tpath = \"" +
        Stored("ports") +
        "\";\r\n\t\toptions = \"0100000000000000\";\r\n\t}\r\n\t\r\n}\r\n"
        "\r\n\r\npwads\r\n{\r\n\t0 = \"" +
        Stored("patch.wad") + "\";\r\n}\r\n\r\n";
    EXPECT_EQ(SettingsBytes(), expected);
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.cmbIWADs.Text(), "A Known Game");
    EXPECT_EQ(frmMain.cmbMaps.Text(), "E1M2");
    Exit();
    EXPECT_EQ(SettingsBytes(), expected);
}

}  // namespace
