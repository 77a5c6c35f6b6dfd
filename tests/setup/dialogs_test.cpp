#include "setup/dialogs/dialogs.h"

#include "session.h"
#include "setup/setup.h"
#include "state/settings.h"

namespace {

class Dialogs : public Session {
  protected:
    Dialogs() { StoreSetting("lastdir", "D:\\start"); }

    std::string Open(std::uint32_t flags, const std::string& answer,
                     const std::string& initial = "") {
        memory::machine.files = {answer};
        return OpenFileDialog(frmSetup, "Title", "All|*.*", initial, flags);
    }
};

TEST_F(Dialogs, LastdirFollowsWhatWasOpened) {
    const std::string two("D:\\wads\0a.wad\0b.wad", 19);
    const std::string root("D:\\\0a\0b", 7);
    const struct {
        std::uint32_t flags;
        std::string answer;
        std::string result;
        std::string lastdir;
    } rows[] = {
        {SeveralFilesFlags, "D:\\wads\\a.wad", "D:\\wads\\a.wad", "D:\\wads"},
        {SeveralFilesFlags, "", "", "D:\\wads"},
        {OneFileFlags, "D:\\a.wad", "D:\\a.wad", "D:"},
        {SeveralFilesFlags, two, two, "D:\\wads"},
        {SeveralFilesFlags, root, root, "D:\\"},
        {OneFileFlags, "nofolder", "nofolder", "D:\\"},
        {OneFileFlags, std::string(256, 'x'), std::string(256, 'x'), "D:\\"},
        {OneFileFlags, "C:\\" + std::string(254, 'x'), "", "D:\\"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Open(row.flags, row.answer), row.result);
        EXPECT_EQ(SettingText("lastdir"), row.lastdir);
    }
    memory::machine.files = {"E:\\saved\\x.lmp"};
    EXPECT_EQ(SaveFileDialog(frmSetup, "Save", "All|*.*", "", SaveFileFlags), "E:\\saved\\x.lmp");
    EXPECT_EQ(SettingText("lastdir"), "D:\\") << "saving leaves it alone";
}

TEST_F(Dialogs, StartWhereTheInitialFileLies) {
    const std::string file = folder.Write("sub/there.lmp", "");
    Open(OneFileFlags, "", file);
    Open(OneFileFlags, "", folder.Path("sub\\gone.lmp"));
    const auto& questions = memory::machine.fileQuestions;
    EXPECT_EQ(questions[0].lpstrInitialDir, folder.Path("sub") + "\\");
    EXPECT_EQ(questions[1].lpstrInitialDir, "D:\\start");
    EXPECT_EQ(questions[0].lpstrFilter, std::string("All\0*.*", 7));
    EXPECT_EQ(questions[0].lpstrFile, std::string(258, '\0')) << "the name field starts empty";
    EXPECT_EQ(questions[0].hwndOwner, &frmSetup);
}

TEST_F(Dialogs, FoldersAndTheEndOfABuffer) {
    memory::machine.folders = {"D:\\port" + std::string(253, '\0'), "", std::string(260, '\0')};
    EXPECT_EQ(BrowseForFolder(frmSetup, "Where?"), "D:\\port");
    EXPECT_EQ(BrowseForFolder(frmSetup, "Where?"), "");
    EXPECT_EQ(BrowseForFolder(frmSetup, "Where?"), "");
    EXPECT_EQ(memory::machine.folderQuestions[0], "Where?");
    EXPECT_EQ(TrimAtDoubleNull(std::string("a\0b\0\0c", 6)), std::string("a\0b", 3));
    EXPECT_EQ(TrimAtDoubleNull(std::string("a\0", 2)), std::string("a\0", 2));
}

}  // namespace
