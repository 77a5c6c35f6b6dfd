#include "launch/demo_save.h"

#include "session.h"
#include "state/records.h"

namespace {

/// The dialog alone, with a recorded demo of the content "demo" in temp.lmp.
class DemoSave : public Session {
  protected:
    DemoSave() {
        frmDemoSave.Load();
        Settings.Root()->Add("lastdir", folder.Path("demos"));
        std::filesystem::create_directory(folder.Native("demos"));
        frmDemoSave.DemoFileName = folder.Write("temp.lmp", "demo");
        frmDemoSave.DemoExt = "lmp";
    }
    ~DemoSave() override { frmDemoSave.Unload(); }

    void Show(std::function<void()> steps) {
        driver::InNextModal(std::move(steps));
        frmDemoSave.ShowModal();
    }
    bool HasTemporary() const { return std::filesystem::exists(folder.Native("temp.lmp")); }
};

TEST_F(DemoSave, SavesUnderTheNameWithTheEnginesExtension) {
    const struct {
        const char* typed;
        const char* saved;
    } rows[] = {{"demos\\run1", "demos/run1.lmp"},
                {"demos\\run2.bak", "demos/run2.lmp"},
                {"demos\\run.3.lmp", "demos/run.3.lmp"}};
    for (const auto& row : rows) {
        folder.Write("temp.lmp", "demo");
        folder.Write(row.saved, "an older and longer one");
        Show([&] {
            EXPECT_EQ(frmDemoSave.txtDemoFile.Text(), folder.Path("demos\\demo.lmp"));
            driver::Type(frmDemoSave.txtDemoFile, folder.Path(row.typed));
            driver::Click(frmDemoSave.cmdSave);
        });
        EXPECT_EQ(folder.Read(row.saved), "demo");
        EXPECT_FALSE(HasTemporary());
    }
}

TEST_F(DemoSave, AFailedCopyKeepsDialogAndDemo) {
    std::filesystem::create_directory(folder.Native("folder.lmp"));
    for (const char* name : {"missing\\run", "temp.lmp", "TEMP.bak", "folder"}) {
        const std::string target = folder.Path(name);
        SCOPED_TRACE(target);
        Show([&] {
            driver::Type(frmDemoSave.txtDemoFile, target);
            driver::Click(frmDemoSave.cmdSave);
            EXPECT_TRUE(frmDemoSave.Visible());
            EXPECT_TRUE(memory::TakeMessage().starts_with("The demo could not be saved to "));
            driver::Close(frmDemoSave);
        });
        EXPECT_EQ(folder.Read("temp.lmp"), "demo") << "closing by the frame keeps it too";
    }
}

TEST_F(DemoSave, BrowsingReplacesTheNameAndCancelDoesNot) {
    Show([&] {
        memory::machine.files = {"", folder.Path("other.v2.wad")};
        driver::Click(frmDemoSave.cmdBrowse);
        EXPECT_EQ(frmDemoSave.txtDemoFile.Text(), folder.Path("demos\\demo.lmp"));
        driver::Click(frmDemoSave.cmdBrowse);
        EXPECT_EQ(frmDemoSave.txtDemoFile.Text(), folder.Path("other.v2.lmp"));
        const platform::OpenFileName& question = memory::machine.fileQuestions.back();
        EXPECT_EQ(question.lpstrTitle, "Please enter the path and filename of the demo");
        EXPECT_EQ(question.lpstrFilter,
                  std::string("Demo files (*.lmp)\0*.lmp\0All files (*.*)\0*.*", 44));
        EXPECT_EQ(question.Flags, 6U);
        driver::PressEscape(frmDemoSave);
    });
    EXPECT_FALSE(HasTemporary()) << "Escape is Discard";
}

TEST_F(DemoSave, SaysWhenTheTemporaryFileStays) {
    Show([&] {
        std::filesystem::remove(folder.Native("temp.lmp"));
        driver::Click(frmDemoSave.cmdDiscard);
    });
    EXPECT_TRUE(memory::TakeMessage().starts_with("The temporary demo file could not be deleted"));
}

}  // namespace
