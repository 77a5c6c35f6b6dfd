// The lists of files and maps.
#include "mainwindow/main_window.h"
#include "session.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/ascii.h"

namespace {

using Texts = std::vector<std::string>;

struct Lists : Session {
    Lists() {
        DefineEngine("Alpha");
        folder.Write("many.wad", MapWad("IWAD", NumberedMaps(36)));
        folder.Write("few.wad", MapWad("IWAD", {"MAP02", "MAP01", "map03"}));
        WriteSettings("iwad = 0; map = 30; iwads { a = \"|" + Stored("many.wad") + "\"; b = \"|" +
                      Stored("few.wad") + "\"; c = \"|no such file\"; }");
        EXPECT_TRUE(Start());
    }
    /// Adds each of these results of the file dialog.
    static void Add(const Texts& chosen) {
        for (const std::string& choice : chosen) {
            machine.files = {choice};
            driver::Click(frmMain.cmdAdd);
        }
    }
    /// Makes a patch WAD the selected file and asks for its first map.
    std::string UseFirstMapOf(const std::string& bytes,
                              desktop::MessageIcon icon = desktop::MessageIcon::Exclamation) {
        driver::Click(frmMain.cmdClear);
        Add({folder.Write("Patch.wad", bytes)});
        driver::DoubleClick(frmMain.lstFiles, 0);
        return TakeMessage(icon);
    }
    /// Which of the four controls that follow the selection are enabled.
    static std::string Enabled() {
        return std::string(frmMain.cmdGetMapLump.Enabled() ? "map " : "") +
               (frmMain.itmUseFirstMap.Enabled() ? "item " : "") +
               (frmMain.cmdShowTextFile.Enabled() ? "text " : "") +
               (frmMain.itmViewText.Enabled() ? "item" : "");
    }
};

TEST_F(Lists, AddFilesOneOrSeveralOfAnyNameAndKeepThem) {
    Add({"", "D:\\q\"uote;{}.wad", std::string("D:\\w\0b.wad\0a  a.deh\0c", 21),
         std::string("D:\\\0\xff\xfe\0|", 8), "D:\\new\r\nline\ttab", std::string(257, 'x'),
         "D:\\q\"uote;{}.wad"});
    const Texts expected = {
        "D:\\q\"uote;{}.wad", "D:\\w\\b.wad", "D:\\w\\a  a.deh",      "D:\\w\\c",
        "D:\\\\\xff\xfe",     "D:\\\\|",      "D:\\new\r\nline\ttab", "D:\\q\"uote;{}.wad"};
    EXPECT_EQ(machine.fileQuestions.back().Flags, 528900U);
    Exit();
    ASSERT_TRUE(Start());
    EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), expected);
}

TEST_F(Lists, FilterByTheSelectedEngineAndRemoveFiles) {
    EXPECT_EQ(FileFilter(-1), "WAD files (*.wad)|*.wad|All files (*.*)|*.*");
    EXPECT_EQ(FileFilter(0),
              "All supported files|*.wad;*.deh;|WAD files (*.wad)|*.wad|Patches (*.deh)|*.deh|"
              "All files (*.*)|*.*");
    EngineAt(0).filetypes.clear();
    EXPECT_EQ(FileFilter(0), "All files (*.*)|*.*");

    Add({"a", "b", "c"});
    driver::Click(frmMain.cmdRemove);
    EXPECT_EQ(FileList.Count(), 2) << "no selection, nothing happens";
    const std::tuple<int, int, Texts> rows[] = {{2, 1, {"a", "b"}}, {0, 0, {"b"}}, {0, -1, {}}};
    for (const auto& [row, selected, left] : rows) {
        driver::Choose(frmMain.lstFiles, row);
        driver::Click(frmMain.cmdRemove);
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), left);
        EXPECT_EQ(frmMain.lstFiles.ListIndex(), selected);
        EXPECT_EQ(FileList.Count() + 1, frmMain.lstFiles.ListCount());
    }
}

TEST_F(Lists, FourControlsFollowTheSelection) {
    folder.Write("A.TXT", "about it");
    const std::pair<std::string, const char*> rows[] = {
        {folder.Path("A.V2.WAD"), "map item text item"},
        {folder.Path("a.txt"), "text item"},
        {"D:\\b.deh", ""},
        {"D:\\b.wad", "map item "},
        {"D:\\nopoint", ""}};
    for (const auto& [file, enabled] : rows) {
        driver::Click(frmMain.cmdClear);
        EXPECT_EQ(Enabled(), "");
        Add({file});
        driver::Choose(frmMain.lstFiles, 0);
        EXPECT_EQ(Enabled(), enabled) << file;
    }
}

TEST_F(Lists, TheMenuOfFilesNeedsASelectedRow) {
    Add({folder.Path("a.wad"), "D:\\b.deh"});
    folder.Write("A.TXT", "about it");
    driver::RightClick(frmMain.lstFiles, 0);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), -1) << "and no menu came up";
    driver::Choose(frmMain.lstFiles, 1);
    driver::RightClick(frmMain.lstFiles, 7);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), 1) << "below the last row";
    driver::AtNextMenu(1);
    driver::RightClick(frmMain.lstFiles, 0);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), 0);
    EXPECT_EQ(driver::Focused(frmMain), &frmMain.lstFiles);
    EXPECT_TRUE(machine.started.at(0).file.ends_with("\\a.txt"));
    EXPECT_EQ(machine.started[0].show, 7);
    machine.accepts = false;
    driver::Click(frmMain.cmdShowTextFile);
    EXPECT_EQ(machine.started.size(), 2U) << "a file that went since fails silently";
}

TEST_F(Lists, TheRowOfTheMapSurvivesAChangeOfGame) {
    EXPECT_EQ(frmMain.cmbMaps.Text(), "MAP31");
    driver::Choose(frmMain.cmbIWADs, 1);
    EXPECT_EQ(driver::ShownItems(frmMain.cmbMaps), (Texts{"MAP02", "MAP01", "map03"}));
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

TEST_F(Lists, UseFirstMapMovesToTheLowest) {
    EXPECT_EQ(UseFirstMapOf(MapWad("PWAD", {"MAP07", "MAP03"})), "");
    EXPECT_EQ(SettingNumber("map"), 2);
    const std::string path = LowerCase(folder.Path("patch.wad"));
    EXPECT_EQ(UseFirstMapOf(MapWad("PWAD", {"MAP01", "E1M1"})),
              "Warning: The map E1M1 does not appear in the game WAD.\r\nMake sure you have "
              "selected the game WAD matching the one needed for " +
                  path + ".");
    EXPECT_TRUE(UseFirstMapOf(MapWad("PWAD", {"E1M1", ""})).starts_with("Warning: The map  does"));
    EXPECT_EQ(frmMain.cmbMaps.Text(), "") << "a map without a name is the lowest";
    EXPECT_EQ(UseFirstMapOf("no WAD at all", desktop::MessageIcon::Information),
              "There are no map lumps in " + path + ".");
    EXPECT_EQ(frmMain.cmbMaps.ListIndex(), -1);
}

}  // namespace
