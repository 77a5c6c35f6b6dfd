#include "mainwindow/main_window.h"
#include "session.h"
#include "state/records.h"

namespace {

using Texts = std::vector<std::string>;

class FileListCase : public Session {
  protected:
    FileListCase() {
        DefineEngine("Alpha");
        folder.Write("a.wad", MapWad("PWAD", {"MAP07", "MAP03"}));
        folder.Write("A.TXT", "about it");
    }
    /// Starts with these files in the list.
    void StartWith(const Texts& files) {
        ASSERT_TRUE(Start());
        driver::Click(frmMain.cmdClear);
        for (const std::string& file : files) {
            memory::machine.files.push_back(file);
            driver::Click(frmMain.cmdAdd);
        }
    }
    /// Which of the four controls that follow the selection are enabled.
    static std::string Enabled() {
        return std::string(frmMain.cmdGetMapLump.Enabled() ? "map " : "") +
               (frmMain.itmUseFirstMap.Enabled() ? "item " : "") +
               (frmMain.cmdShowTextFile.Enabled() ? "text " : "") +
               (frmMain.itmViewText.Enabled() ? "item" : "");
    }
};

TEST_F(FileListCase, AddsOneOrSeveralInTheOrderOfTheDialog) {
    StartWith({"", "D:\\one.wad", std::string("D:\\w\0b.wad\0a.deh\0c", 18),
               std::string("D:\\\0x\0y", 7), "D:\\one.wad"});
    const Texts expected = {"D:\\one.wad", "D:\\w\\b.wad", "D:\\w\\a.deh", "D:\\w\\c",
                            "D:\\\\x",     "D:\\\\y",      "D:\\one.wad"};
    EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), expected);
    EXPECT_EQ(FileList.Count(), 6);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), -1);
    const platform::OpenFileName& question = memory::machine.fileQuestions.back();
    EXPECT_EQ(question.lpstrTitle, "Please select the WAD file you want to add");
    EXPECT_EQ(question.Flags, 528900U);
    EXPECT_EQ(question.lpstrFile.size(), 258U);
    memory::machine.files = {std::string(257, 'x')};
    driver::Click(frmMain.cmdAdd);
    EXPECT_EQ(FileList.Count(), 6) << "too long for the dialog's buffer";
}

TEST_F(FileListCase, OddNamesSurviveARestart) {
    const Texts names = {"D:\\a  b.wad",     "D:\\q\"uote;{}.wad",   "D:\\h\xc3\xbc.wad",
                         "D:\\\xff\xfe.wad", "D:\\new\r\nline\ttab", "D:\\|bar|.wad"};
    StartWith(names);
    Exit();
    ASSERT_TRUE(Start());
    EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), names);
    driver::Choose(frmMain.cmbEngines, 0);
    GameWads.push_back({"g", "D:\\g.wad"});
    frmMain.SetupLists();
    driver::Choose(frmMain.cmbIWADs, 0);
    driver::Click(frmMain.cmdRun);
    for (const std::string& name : names) {
        EXPECT_NE(memory::machine.started.at(0).parameters.find("\"" + name + "\" "),
                  std::string::npos);
    }
}

TEST_F(FileListCase, FiltersByTheSelectedEngine) {
    StartWith({});
    EXPECT_EQ(FileFilter(-1), "WAD files (*.wad)|*.wad|All files (*.*)|*.*");
    EXPECT_EQ(FileFilter(0),
              "All supported files|*.wad;*.deh;|WAD files (*.wad)|*.wad|Patches (*.deh)|*.deh|"
              "All files (*.*)|*.*");
    EngineAt(0).filetypes.clear();
    EXPECT_EQ(FileFilter(0), "All files (*.*)|*.*");
}

TEST_F(FileListCase, RemovingSelectsTheRowBefore) {
    StartWith({"a", "b", "c"});
    driver::Click(frmMain.cmdRemove);
    EXPECT_EQ(FileList.Count(), 2) << "no selection, nothing happens";
    const struct {
        int remove;
        int selected;
        Texts left;
    } rows[] = {{2, 1, {"a", "b"}}, {0, 0, {"b"}}, {0, -1, {}}};
    for (const auto& row : rows) {
        driver::Choose(frmMain.lstFiles, row.remove);
        driver::Click(frmMain.cmdRemove);
        EXPECT_EQ(driver::ShownItems(frmMain.lstFiles), row.left);
        EXPECT_EQ(frmMain.lstFiles.ListIndex(), row.selected);
        EXPECT_EQ(FileList.Count() + 1, frmMain.lstFiles.ListCount());
    }
    EXPECT_EQ(Enabled(), "");
}

TEST_F(FileListCase, FourControlsFollowTheSelection) {
    const std::string before = folder.Path().find('.') == std::string::npos ? "text item" : "";
    StartWith({folder.Path("a.wad"), folder.Path("A.V2.WAD"), folder.Path("a.txt"), "D:\\b.deh",
               "D:\\nopoint"});
    const Texts expected = {"map item " + before, "map item " + before, before, "", ""};
    for (int row = 0; row < 5; ++row) {
        driver::Choose(frmMain.lstFiles, row);
        EXPECT_EQ(Enabled(), expected[static_cast<std::size_t>(row)]) << row;
    }
    driver::Choose(frmMain.lstFiles, 0);
    driver::Click(frmMain.cmdShowTextFile);
    ASSERT_EQ(memory::machine.started.size(), 1U);
    EXPECT_TRUE(memory::machine.started[0].file.ends_with("\\a.txt"));
    EXPECT_EQ(memory::machine.started[0].show, 7);
    std::filesystem::remove(folder.Native("A.TXT"));
    memory::machine.accepts = false;
    driver::Click(frmMain.cmdShowTextFile);
    EXPECT_EQ(memory::TakeMessage(), "") << "a file that went since fails silently";
    driver::Click(frmMain.cmdClear);
    EXPECT_EQ(Enabled(), "");
}

TEST_F(FileListCase, TheMenuNeedsASelectedRow) {
    StartWith({folder.Path("a.wad"), "D:\\b.deh"});
    driver::RightClick(frmMain.lstFiles, 0);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), -1) << "and no menu came up";
    driver::Choose(frmMain.lstFiles, 1);
    driver::RightClick(frmMain.lstFiles, 7);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), 1) << "below the last row";
    driver::AtNextMenu(1);
    driver::RightClick(frmMain.lstFiles, 0);
    EXPECT_EQ(frmMain.lstFiles.ListIndex(), 0);
    EXPECT_EQ(driver::Focused(frmMain), "lstFiles");
    EXPECT_EQ(memory::machine.started.size(), 1U) << "the text file was opened";
}

}  // namespace
