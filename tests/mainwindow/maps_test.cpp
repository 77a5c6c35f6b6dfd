#include "mainwindow/main_window.h"
#include "session.h"
#include "state/settings.h"
#include "text/ascii.h"

namespace {

using Texts = std::vector<std::string>;

class Maps : public Session {
  protected:
    Maps() {
        DefineEngine("Alpha");
        Add("many", MapWad("IWAD", NumberedMaps(36)));
        Add("few", MapWad("IWAD", {"MAP02", "MAP01", "map03"}));
        Add("none", "no WAD at all");
        std::filesystem::create_directory(folder.Native("folder"));
        stored += "3 = \"folder|" + Stored("folder") + "\";";
        WriteSettings("engine = 0; iwad = 0; map = 30; skill = 2; iwads {" + stored + "}");
    }
    void Add(const std::string& name, const std::string& bytes) {
        folder.Write(name + ".wad", bytes);
        stored += "x" + name + " = \"" + name + "|" + Stored(name + ".wad") + "\";";
    }
    /// Makes a patch WAD the selected additional file and asks for its first map.
    std::string UseFirstMapOf(const std::string& bytes) {
        memory::machine.files = {folder.Write("Patch.wad", bytes)};
        driver::Click(frmMain.cmdClear);
        driver::Click(frmMain.cmdAdd);
        driver::DoubleClick(frmMain.lstFiles, 0);
        return memory::TakeMessage();
    }
    std::string stored;
};

TEST_F(Maps, TheRowSurvivesAChangeOfGame) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP31");
    driver::Choose(frmMain.cmbIWADs, 1);
    EXPECT_EQ(driver::ShownItems(frmMain.cmbMaps), (Texts{"MAP02", "MAP01", "map03"}));
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), 0);
    EXPECT_EQ(SettingNumber("map"), 0);
    driver::Choose(frmMain.cmbMaps, 2);
    driver::Choose(frmMain.cmbIWADs, 0);
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP03") << "the row, not the name";
    driver::Type(frmMain.cmbMaps, "TITLEMAP");
    driver::Choose(frmMain.cmbIWADs, 0);
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP01") << "a typed text does not survive";
    for (const int empty : {2, 3}) {
        driver::Choose(frmMain.cmbIWADs, empty);
        EXPECT_EQ(frmMain.cmbMaps.ListCount(), 0);
        EXPECT_EQ(frmMain.cmbMaps.ListIndex(), -1);
        EXPECT_EQ(frmMain.cmbMaps.Text(), "");
    }
}

TEST_F(Maps, UseFirstMapMovesToTheLowest) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(UseFirstMapOf(MapWad("PWAD", {"MAP07", "MAP03"})), "");
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), 2);
    EXPECT_EQ(SettingNumber("map"), 2);
    const std::string path = LowerCase(folder.Path("patch.wad"));
    EXPECT_EQ(UseFirstMapOf(MapWad("PWAD", {"MAP01", "E1M1"})),
              "Warning: The map E1M1 does not appear in the game WAD.\r\nMake sure you have "
              "selected the game WAD matching the one needed for " +
                  path + ".");
    EXPECT_EQ(frmMain.cmbMaps.Text(), "E1M1");
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), -1);
    EXPECT_EQ(SettingNumber("map"), 2);
    for (const std::string& bytes : {WadBytes("PWAD", {"THINGS", "MAP01"}), std::string("text")}) {
        EXPECT_EQ(UseFirstMapOf(bytes), "There are no map lumps in " + path + ".");
    }
    EXPECT_EQ(frmMain.cmbMaps.Text(), "E1M1") << "nothing changed";
}

}  // namespace
