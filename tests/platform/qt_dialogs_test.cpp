// The dialogs on Linux, driven by the keys that a person would press.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <filesystem>

#include "driver.h"
#include "platform/dialogs.h"
#include "platform/qt/picked_files.h"
#include "temp_folder.h"

namespace {

using namespace std::string_literals;

QWidget* Dialog() {
    return QApplication::activeModalWidget();
}

QLineEdit* Field() {
    auto* fileName = Dialog()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    return fileName != nullptr ? fileName : Dialog()->findChild<QLineEdit*>();
}

/// Types into the dialog's line, as an input method does, and presses Enter.
void Answer(const QString& text) {
    QLineEdit* field = Field();
    field->selectAll();
    QInputMethodEvent typed;
    typed.setCommitString(text);
    QApplication::sendEvent(field, &typed);
    QTest::keyClick(field, Qt::Key_Return);
}

void Cancel() {
    QTest::keyClick(Dialog(), Qt::Key_Escape);
}

platform::OpenFileName Record(const TempFolder& folder, std::uint32_t flags) {
    return {.lpstrFilter = "WAD files (*.wad)\0*.wad\0All files (*.*)\0*.*"s,
            .lpstrFile = std::string(platform::FileBufferSize, '\0'),
            .nMaxFile = platform::FileBufferSize,
            .lpstrInitialDir = folder.Path(),
            .lpstrTitle = "Pick",
            .Flags = flags};
}

std::string Buffer(std::string text, std::size_t size = platform::FileBufferSize) {
    text.resize(size, '\0');
    return text;
}

class Dialogs : public testing::Test {
  protected:
    Dialogs() {
        folder.Write("a.wad", "");
        folder.Write("B.WAD", "");
        folder.Write("notes.txt", "");
        folder.Write("sub/c.wad", "");
    }
    TempFolder folder;
};

TEST_F(Dialogs, GiveOneFileOrItsCancelling) {
    platform::OpenFileName record = Record(folder, platform::OfnFileMustExist);
    QString title;
    QString name = QStringLiteral("?");
    QString filter;
    QStringList shown;
    driver::InNextModal([&] {
        const auto* dialog = qobject_cast<QFileDialog*>(Dialog());
        title = dialog->windowTitle();
        name = Field()->text();
        filter = dialog->selectedNameFilter();
        Answer(QStringLiteral("a.wad"));
    });
    EXPECT_TRUE(platform::GetOpenFileNameA(record));
    EXPECT_EQ(record.lpstrFile, Buffer(folder.Path("a.wad")));
    EXPECT_EQ(title.toStdString(), "Pick");
    EXPECT_EQ(name.toStdString(), "") << "the name field starts empty";
    EXPECT_TRUE(filter.startsWith(QStringLiteral("WAD files (*.wad)"))) << filter.toStdString();
    record = Record(folder, platform::OfnFileMustExist);
    driver::InNextModal(Cancel);
    EXPECT_FALSE(platform::GetOpenFileNameA(record));
}

TEST_F(Dialogs, GiveSeveralFilesAsFolderAndNames) {
    platform::OpenFileName record =
        Record(folder, platform::OfnFileMustExist | platform::OfnAllowMultiSelect);
    driver::InNextModal([] { Answer(QStringLiteral("\"a.wad\" \"B.WAD\"")); });
    EXPECT_TRUE(platform::GetOpenFileNameA(record));
    EXPECT_EQ(record.lpstrFile, Buffer(folder.Path() + "\0a.wad\0B.WAD"s));
    record = Record(folder, platform::OfnAllowMultiSelect);
    driver::InNextModal([] { Answer(QStringLiteral("sub/c.wad")); });
    EXPECT_TRUE(platform::GetOpenFileNameA(record));
    EXPECT_EQ(record.lpstrFile, Buffer(folder.Path("sub\\c.wad")));
}

TEST_F(Dialogs, AskBeforeAFileIsWrittenOverOnlyWhenToldTo) {
    platform::OpenFileName record = Record(folder, 0);
    driver::InNextModal([] { Answer(QStringLiteral("a.wad")); });
    EXPECT_TRUE(platform::GetSaveFileNameA(record));
    record = Record(folder, platform::OfnOverwritePrompt);
    int questions = 0;
    driver::InNextModal([&] { Answer(QStringLiteral("a.wad")); });
    driver::InNextModal([&] {
        ++questions;
        qobject_cast<QMessageBox*>(Dialog())->button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(platform::GetSaveFileNameA(record));
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(record.lpstrFile, Buffer(folder.Path("a.wad")));
}

TEST_F(Dialogs, ChooseFolders) {
    QString instruction;
    const std::string sub = folder.Native("sub").string();
    driver::InNextModal([&] {
        for (const auto* label : Dialog()->findChildren<QLabel*>()) {
            instruction += label->text() + QLatin1Char('|');
        }
        Answer(QString::fromStdString(sub));
    });
    EXPECT_EQ(platform::BrowseForFolderPath({nullptr, "In which folder?"}),
              Buffer(folder.Path("sub"), platform::FolderBufferSize));
    EXPECT_TRUE(instruction.contains(QStringLiteral("In which folder?|")));
    driver::InNextModal(Cancel);
    EXPECT_EQ(platform::BrowseForFolderPath({nullptr, "x"}), "");
}

TEST(Messages, ShowTheirExactText) {
    QString text;
    QString title;
    driver::InNextModal([&] {
        const auto* box = qobject_cast<QMessageBox*>(Dialog());
        text = box->text();
        title = box->windowTitle();
        Cancel();
    });
    platform::ShowMessage("One <b>\r\nZ:\\two", "Zorvane", platform::MessageIcon::Critical);
    EXPECT_EQ(text.toStdString(), "One <b>\n/two");
    EXPECT_EQ(title.toStdString(), "Zorvane");
}

TEST(Messages, AskForALine) {
    QString preset;
    const auto answer = [&](const char* typed) {
        return [&preset, typed] {
            preset = Field()->selectedText();
            typed != nullptr ? Answer(QString::fromUtf8(typed)) : Cancel();
        };
    };
    driver::InNextModal(answer("d\xC3\xB6"));
    EXPECT_EQ(platform::AskForText("Name?", "Enter a name", "Doom"), "d\xC3\xB6");
    EXPECT_EQ(preset.toStdString(), "Doom") << "is selected, so that typing replaces it";
    driver::InNextModal(answer(nullptr));
    EXPECT_EQ(platform::AskForText("Name?", "Enter a name", "Doom"), "");
    driver::InNextModal([] { QTest::keyClick(Dialog()->focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(platform::AskForText("Name?", "Enter a name", "caf\xE9"), "caf\xE9")
        << "what was not touched keeps its bytes";
}

TEST(PickedFiles, FillTheBufferOfTheRecord) {
    const std::string longName = "Z:\\" + std::string(platform::FileBufferSize - 5, 'x');
    const struct {
        std::vector<std::string> paths;
        std::string text;  // empty: counts as Cancel
    } cases[] = {
        {{"Z:\\a.wad"}, "Z:\\a.wad"},
        {{"Z:\\a.wad", "Z:\\b.wad"}, "Z:\\\0a.wad\0b.wad"s},
        {{"Z:\\w\\a.wad", "Z:\\w\\b.wad"}, "Z:\\w\0a.wad\0b.wad"s},
        {{"Z:\\v\\a.wad", "Z:\\w\\b.wad"}, ""},
        {{longName}, longName},
        {{longName + "x"}, ""},
        {{}, ""},
    };
    for (const auto& [paths, text] : cases) {
        platform::OpenFileName record;
        record.nMaxFile = platform::FileBufferSize;
        EXPECT_EQ(platform::qt::PutPickedFiles(record, paths), !text.empty()) << text;
        EXPECT_EQ(record.lpstrFile, Buffer(text));
    }
}

TEST(PickedFiles, FiltersPassOverCase) {
    const QStringList filters = platform::qt::NameFilters("Demos\0*.lmp;*.Cdm\0All\0*.*"s);
    EXPECT_EQ(filters.join(QLatin1Char('|')).toStdString(),
              "Demos (*.lmp *.Cdm *.LMP *.CDM)|All (*)");
}

}  // namespace
