#include "mainwindow/main_window.h"
#include "session.h"
#include "state/settings.h"
#include "text/ascii.h"

namespace {

struct Maps : Session {
    Maps() {
        DefineEngine("Alpha");
        folder.Write("many.wad", MapWad("IWAD", NumberedMaps(36)));
        folder.Write("few.wad", MapWad("IWAD", {"MAP02", "MAP01", "map03"}));
        WriteSettings("iwad = 0; map = 30; iwads { a = \"|" + Stored("many.wad") + "\"; b = \"|" +
                      Stored("few.wad") + "\"; c = \"|no such file\"; }");
        EXPECT_TRUE(Start());
    }
    /// Makes a patch WAD the selected additional file and asks for its first map.
    std::string UseFirstMapOf(const std::string& bytes) {
        memory::machine.files = {folder.Write("Patch.wad", bytes)};
        driver::Click(frmMain.cmdClear);
        driver::Click(frmMain.cmdAdd);
        driver::DoubleClick(frmMain.lstFiles, 0);
        return memory::TakeMessage();
    }
};

TEST_F(Maps, TheRowSurvivesAChangeOfGame) {
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP31");
    driver::Choose(frmMain.cmbIWADs, 1);
    EXPECT_EQ(driver::ShownItems(frmMain.cmbMaps),
              (std::vector<std::string>{"MAP02", "MAP01", "map03"}));
    EXPECT_EQ(SettingNumber("map"), 0);
    driver::Choose(frmMain.cmbMaps, 2);
    driver::Choose(frmMain.cmbIWADs, 0);
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP03") << "the row, not the name";
    driver::Type(frmMain.cmbMaps, "TITLEMAP");
    EXPECT_EQ(SettingNumber("map"), 2) << "only a row is stored";
    driver::Choose(frmMain.cmbIWADs, 0);
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP01") << "a typed text does not survive";
    driver::Choose(frmMain.cmbIWADs, 2);
    EXPECT_EQ(frmMain.cmbMaps.ListCount(), 0);
}

TEST_F(Maps, UseFirstMapMovesToTheLowest) {
    EXPECT_EQ(UseFirstMapOf(MapWad("PWAD", {"MAP07", "MAP03"})), "");
    EXPECT_EQ(SettingNumber("map"), 2);
    const std::string path = LowerCase(folder.Path("patch.wad"));
    EXPECT_EQ(UseFirstMapOf(MapWad("PWAD", {"MAP01", "E1M1"})),
              "Warning: The map E1M1 does not appear in the game WAD.\r\nMake sure you have "
              "selected the game WAD matching the one needed for " +
                  path + ".");
    EXPECT_EQ(UseFirstMapOf("no WAD at all"), "There are no map lumps in " + path + ".");
    EXPECT_EQ(frmMain.cmbMaps.Text(), "E1M1") << "of the one before";
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), -1);
}

}  // namespace
