// The dialogs on Linux, driven by the keys that a person would press.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

#include "driver.h"
#include "temp_folder.h"
#include "toolkit/dialogs.h"
#include "toolkit/qt/picked_files.h"

namespace {

using namespace std::string_literals;

QWidget* Dialog() {
    return QApplication::activeModalWidget();
}

QLineEdit* Field() {
    return Dialog()->findChild<QLineEdit*>();
}

/// Types over what the field proposes, as an input method does, and presses Enter; no text is
/// Cancel.
void Answer(const std::string& text) {
    if (text.empty()) {
        QTest::keyClick(Dialog(), Qt::Key_Escape);
        return;
    }
    Field()->selectAll();
    QInputMethodEvent typed;
    typed.setCommitString(text.c_str());
    QApplication::sendEvent(Field(), &typed);
    QTest::keyClick(Field(), Qt::Key_Return);
}

TEST(Dialogs, FillTheRecordWithTheFilesPicked) {
    const TempFolder folder;
    for (const char* name : {"a.wad", "B.WAD", "notes.txt", "sub/c.wad"}) {
        folder.Write(name, "");
    }
    constexpr std::uint32_t One = desktop::OfnFileMustExist;
    constexpr std::uint32_t Several = One | desktop::OfnAllowMultiSelect;
    constexpr std::uint32_t Prompt = desktop::OfnOverwritePrompt;
    const struct {
        bool (*show)(desktop::OpenFileName&);
        std::uint32_t flags;
        std::string typed;
        std::string picked;
    } rows[] = {
        {desktop::GetOpenFileNameA, One, "a.wad", folder.Path("a.wad")},
        {desktop::GetOpenFileNameA, One, "", ""},
        {desktop::GetOpenFileNameA, Several, R"("a.wad" "B.WAD")",
         folder.Path() + "\0a.wad\0B.WAD"s},
        {desktop::GetOpenFileNameA, Several, "sub/c.wad", folder.Path("sub\\c.wad")},
        {desktop::GetOpenFileNameA, 0, "new.wad", folder.Path("new.wad")},
        {desktop::GetSaveFileNameA, 0, "a.wad", folder.Path("a.wad")},
        {desktop::GetSaveFileNameA, Prompt, "a.wad", folder.Path("a.wad")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        desktop::OpenFileName record = {
            .lpstrFilter = "WAD files (*.wad)\0*.wad\0All files (*.*)\0*.*"s,
            .lpstrInitialDir = folder.Path(),
            .lpstrTitle = "Pick",
            .Flags = row.flags};
        driver::InNextModal([&] {
            EXPECT_EQ(Dialog()->windowTitle(), "Pick");
            EXPECT_EQ(Field()->text(), "") << "the name field starts empty";
            const auto* dialog = qobject_cast<QFileDialog*>(Dialog());
            EXPECT_TRUE(dialog->selectedNameFilter().startsWith("WAD files ("));
            Answer(row.typed);
        });
        bool wasAsked = false;
        if (row.flags == Prompt) {
            driver::InNextModal([&] {
                wasAsked = true;
                qobject_cast<QMessageBox*>(Dialog())->button(QMessageBox::Yes)->click();
            });
        }
        EXPECT_EQ(row.show(record), !row.picked.empty());
        EXPECT_EQ(record.lpstrFile, row.picked);
        EXPECT_EQ(wasAsked, row.flags == Prompt);
    }
}

TEST(Dialogs, RefuseNamesThatCannotBeUsed) {
    const TempFolder folder;
    folder.Write("a\\b.wad", "");
    desktop::OpenFileName record;
    record.lpstrInitialDir = folder.Path();
    for (const char* typed : {"a\\b.wad", "", ""}) {  // the message and the dialog are cancelled
        driver::InNextModal([typed] { Answer(typed); });
    }
    EXPECT_FALSE(desktop::GetOpenFileNameA(record));
}

TEST(Dialogs, ChooseFolders) {
    const TempFolder folder;
    for (const std::string& typed : {folder.Native().string(), ""s}) {
        driver::InNextModal([&] {
            const auto labels = Dialog()->findChildren<QLabel*>();
            EXPECT_TRUE(std::ranges::any_of(labels, [](auto* l) { return l->text() == "Where?"; }));
            Answer(typed);
        });
        EXPECT_EQ(desktop::BrowseForFolderPath({nullptr, "Where?"}),
                  typed.empty() ? "" : folder.Path());
    }
}

TEST(Messages, ShowTheirExactText) {
    driver::InNextModal([] {
        EXPECT_EQ(qobject_cast<QMessageBox*>(Dialog())->text(), "One <b>\n/two");
        EXPECT_EQ(Dialog()->windowTitle(), "Zorvane");
        Answer("");
    });
    desktop::ShowMessage("One <b>\r\nZ:\\two", "Zorvane", desktop::MessageIcon::Critical);
}

TEST(Messages, AskForALine) {
    for (const char* typed : {"d\xC3\xB6", ""}) {
        driver::InNextModal([&] {
            EXPECT_EQ(Field()->selectedText(), "Doom") << "typing replaces it";
            Answer(typed);
        });
        EXPECT_EQ(desktop::AskForText("Name?", "Enter a name", "Doom"), typed);
    }
    driver::InNextModal([] { QTest::keyClick(Field(), Qt::Key_Return); });
    EXPECT_EQ(desktop::AskForText("Name?", "Enter a name", "caf\xE9"), "caf\xE9")
        << "what was not touched keeps its bytes";
}

TEST(PickedFiles, AreOneText) {
    EXPECT_EQ(desktop::PickedFiles({"Z:\\a.wad", "Z:\\b.wad"}), "Z:\\\0a.wad\0b.wad"s);
    EXPECT_EQ(desktop::PickedFiles({"Z:\\v\\a.wad", "Z:\\w\\b.wad"}), "");
}

TEST(PickedFiles, FiltersPassOverCase) {
    const QStringList filters = desktop::NameFilters("Demos\0*.lmp;*.Cdm\0All\0*.*"s);
    EXPECT_EQ(filters.join('|'), "Demos (*.lmp *.Cdm *.LMP *.CDM)|All (*)");
}

}  // namespace
