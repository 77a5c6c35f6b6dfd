// The dialogs on Linux, driven by the keys that a person would press.
#include <gtest/gtest.h>

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

TEST(Dialogs, ReturnChosenFilesAndRefuseUnusableNames) {
    const TempFolder folder;
    for (const char* name : {"a.wad", "B.WAD", "a\\b.wad", "sub/c.wad"}) {
        folder.Write(name, "");
    }
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{R"("a.wad" "B.WAD")"}, folder.Path() + "\0a.wad\0B.WAD"s},
        {{"sub/c.wad"}, folder.Path("sub\\c.wad")},
        {{"a\\b.wad", "", ""}, ""},  // the message and the dialog are cancelled
    };
    for (const auto& row : rows) {
        const std::vector<std::string>& answers = row.first;
        desktop::OpenFileName record = {
            .lpstrFilter = "WAD files (*.wad)\0*.wad\0All files (*.*)\0*.*"s,
            .lpstrInitialDir = folder.Path(),
            .lpstrTitle = "Pick",
            .Flags = desktop::OfnFileMustExist | desktop::OfnAllowMultiSelect};
        driver::InNextModal([&] {
            EXPECT_EQ(Dialog()->windowTitle(), "Pick");
            EXPECT_EQ(Field()->text(), "") << "the name field starts empty";
            const auto* dialog = qobject_cast<QFileDialog*>(Dialog());
            EXPECT_TRUE(dialog->selectedNameFilter().startsWith("WAD files ("));
            Answer(answers.front());
        });
        for (std::size_t i = 1; i < answers.size(); ++i) {
            driver::InNextModal([answer = answers[i]] { Answer(answer); });
        }
        EXPECT_EQ(desktop::GetOpenFileNameA(record), !row.second.empty());
        EXPECT_EQ(record.lpstrFile, row.second);
    }
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

TEST(Messages, ShowTheirExactTextAndAskForALine) {
    driver::InNextModal([] {
        EXPECT_EQ(qobject_cast<QMessageBox*>(Dialog())->text(), "One <b>\n/two");
        EXPECT_EQ(Dialog()->windowTitle(), "Zorvane");
        Answer("");
    });
    desktop::ShowMessage("One <b>\r\nZ:\\two", "Zorvane", desktop::MessageIcon::Critical);
    for (const char* typed : {"d\xC3\xB6", ""}) {
        driver::InNextModal([&] {
            EXPECT_EQ(Field()->selectedText(), "Doom") << "typing replaces it";
            Answer(typed);
        });
        EXPECT_EQ(desktop::AskForText("Name?", "Enter a name", "Doom"), typed);
    }
    driver::InNextModal([] { QTest::keyClick(Field(), Qt::Key_Return); });
    EXPECT_EQ(desktop::AskForText("Name?", "Enter a name", "caf\xE9"), "caf\xE9")
        << "an unchanged text keeps its bytes";
}

TEST(PickedFiles, AreOneTextAndFiltersIgnoreCase) {
    EXPECT_EQ(desktop::PickedFiles({"Z:\\a.wad", "Z:\\b.wad"}), "Z:\\\0a.wad\0b.wad"s);
    EXPECT_EQ(desktop::PickedFiles({"Z:\\v\\a.wad", "Z:\\w\\b.wad"}), "");
    const QStringList filters = desktop::NameFilters("Demos\0*.lmp;*.Cdm\0All\0*.*"s);
    EXPECT_EQ(filters.join('|'), "Demos (*.lmp *.Cdm *.LMP *.CDM)|All (*)");
}

}  // namespace
