#include "setup/dialogs/dialogs.h"

#include "session.h"
#include "setup/setup.h"
#include "state/settings.h"

namespace {

struct Dialogs : Session {
    Dialogs() { StoreSetting("lastdir", "D:\\start"); }
    static std::string Open(std::uint32_t flags, const std::string& answer,
                            const std::string& initial = "") {
        memory::machine.files = {answer};
        return OpenFileDialog(frmSetup, "Title", "All|*.*", initial, flags);
    }
};

TEST_F(Dialogs, LastdirFollowsWhatWasOpened) {
    const std::tuple<std::uint32_t, std::string, std::string> rows[] = {
        {SeveralFilesFlags, "D:\\wads\\a.wad", "D:\\wads"},
        {OneFileFlags, "D:\\a.wad", "D:"},
        {SeveralFilesFlags, std::string("D:\\wads\0a.wad\0b.wad", 19), "D:\\wads"},
        {SeveralFilesFlags, std::string("D:\\\0a\0b", 7), "D:\\"},
        {OneFileFlags, std::string(256, 'x'), "D:\\"},
    };
    for (const auto& [flags, answer, lastdir] : rows) {
        EXPECT_EQ(Open(flags, answer), answer);
        EXPECT_EQ(SettingText("lastdir"), lastdir);
    }
    EXPECT_EQ(Open(OneFileFlags, "") + Open(OneFileFlags, "C:\\" + std::string(254, 'x')), "");
    memory::machine.files = {"E:\\saved\\x.lmp"};
    EXPECT_EQ(SaveFileDialog(frmSetup, "Save", "All|*.*", "", SaveFileFlags), "E:\\saved\\x.lmp");
    EXPECT_EQ(SettingText("lastdir"), "D:\\") << "nothing chosen, or saved, leaves it alone";
}

TEST_F(Dialogs, StartWhereTheInitialFileLies) {
    Open(OneFileFlags, "", folder.Write("sub/there.lmp", ""));
    Open(OneFileFlags, "", folder.Path("sub\\gone.lmp"));
    const auto& questions = memory::machine.fileQuestions;
    EXPECT_EQ(questions[0].lpstrInitialDir, folder.Path("sub") + "\\");
    EXPECT_EQ(questions[1].lpstrInitialDir, "D:\\start");
    EXPECT_EQ(questions[0].lpstrFile, std::string(258, '\0')) << "the name field starts empty";
    EXPECT_EQ(questions[0].hwndOwner, &frmSetup);
}

}  // namespace
