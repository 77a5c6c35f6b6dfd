#include "launch/demo_save.h"

#include "session.h"
#include "state/records.h"
#include "state/settings.h"

namespace {

/// The dialog alone, with a recorded demo of the content "demo" in temp.lmp.
struct DemoSave : Session {
    DemoSave() {
        frmDemoSave.Load();
        Settings.Root()->Add("lastdir", folder.Path("demos"));
        frmDemoSave.DemoFileName = folder.Write("temp.lmp", "demo");
        frmDemoSave.DemoExt = "lmp";
    }
    void TearDown() override { frmDemoSave.Unload(); }
    static void Show(std::function<void()> steps) {
        driver::InNextModal(std::move(steps));
        frmDemoSave.ShowModal();
    }
    void SaveAs(const std::string& name) const {
        driver::Type(frmDemoSave.txtDemoFile, folder.Path(name));
        driver::Click(frmDemoSave.cmdSave);
    }
    bool HasTemporary() const { return std::filesystem::exists(folder.Native("temp.lmp")); }
};

TEST_F(DemoSave, SavesUnderTheNameWithTheEnginesExtension) {
    const std::pair<const char*, const char*> names[] = {
        {"run1", "run1.lmp"}, {"run2.bak", "run2.lmp"}, {"my.demos\\run", "my.lmp"}};
    for (const auto& row : names) {
        folder.Write("temp.lmp", "demo");
        folder.Write(row.second, "an older and longer one");
        Show([&] { SaveAs(row.first); });
        EXPECT_EQ(folder.Read(row.second), "demo");
        EXPECT_FALSE(HasTemporary());
    }
    frmDemoSave.DemoFileName = folder.Write("demos/temp.lmp", "demo");
    Show([&] {
        driver::Type(frmDemoSave.txtDemoFile, "bare");
        driver::Click(frmDemoSave.cmdSave);
    });
    EXPECT_EQ(folder.Read("demos/bare.lmp"), "demo") << "in the proposed folder";
}

TEST_F(DemoSave, AFailedCopyKeepsDialogAndDemo) {
    std::filesystem::create_directory(folder.Native("folder.lmp"));
    for (const char* name : {"missing\\run", "temp.lmp", "TEMP.bak", "folder"}) {
        Show([&] {
            SaveAs(name);
            EXPECT_TRUE(frmDemoSave.Visible());
            EXPECT_TRUE(TakeMessage().starts_with("The demo could not be saved to "));
            driver::Close(frmDemoSave);
        });
        EXPECT_EQ(folder.Read("temp.lmp"), "demo") << name << ", closed by the frame";
    }
}

TEST_F(DemoSave, BrowsingReplacesTheNameAndEscapeDiscards) {
    Show([&] {
        machine.files = {"", folder.Path("other.v2.wad")};
        driver::Click(frmDemoSave.cmdBrowse);
        EXPECT_EQ(frmDemoSave.txtDemoFile.Text(), folder.Path("demos\\demo.lmp")) << "cancelled";
        driver::Click(frmDemoSave.cmdBrowse);
        EXPECT_EQ(frmDemoSave.txtDemoFile.Text(), folder.Path("other.v2.lmp"));
        EXPECT_EQ(SettingText("lastdir"), folder.Path("demos")) << "only opening moves it";
        EXPECT_EQ(machine.fileQuestions[0].lpstrFilter,
                  std::string("Demo files (*.lmp)\0*.lmp\0All files (*.*)\0*.*", 44));
        EXPECT_EQ(machine.fileQuestions[0].Flags, 6U);
        driver::Press(frmDemoSave, driver::Key::Escape);
    });
    EXPECT_FALSE(HasTemporary());
    Show([] { driver::Click(frmDemoSave.cmdDiscard); });
    EXPECT_TRUE(TakeMessage().starts_with("The temporary demo file could not be deleted"));
}

}  // namespace
