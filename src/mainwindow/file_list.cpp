// The list of additional files: its content, its menu, and the controls that depend on its
// selection.
#include <cmath>
#include <utility>

#include "dialogs/dialogs.h"
#include "launch/run_program.h"
#include "mainwindow/main_window.h"
#include "platform/facts.h"
#include "platform/files.h"
#include "state/messages.h"
#include "state/records.h"
#include "text/ascii.h"
#include "text/file_names.h"
#include "toolkit/desktop.h"

namespace {

constexpr const char* AddTitle = "Please select the WAD file you want to add";

bool IsWad(const std::string& path) {
    return EndsWithIgnoringCase(path, ".wad");
}

}  // namespace

void MainWindow::ConnectFileList() {
    cmdAdd.OnClick = [this] { AddFiles(); };
    cmdRemove.OnClick = [this] { RemoveFile(); };
    cmdClear.OnClick = [this] { ClearFiles(); };
    lstFiles.OnClick = [this] { UpdateFileControls(); };
    lstFiles.OnDoubleClick = [this] { FileListDoubleClicked(); };
    lstFiles.OnButtonReleased = [this](toolkit::MouseButton button, double x, double y) {
        FileListReleased(button, x, y);
    };
    lstFiles.OnPointerMoved = [this](double x, double y) { PointerOverFiles(x, y); };
    cmdGetMapLump.OnClick = [this] { UseFirstMap(); };
    itmUseFirstMap.OnClick = [this] { UseFirstMap(); };
    cmdShowTextFile.OnClick = [this] { ViewText(); };
    itmViewText.OnClick = [this] { ViewText(); };
}

void MainWindow::FillFileList() {
    lstFiles.Clear();
    const std::string commandLine = platform::OwnCommandLine();
    if (commandLine.empty()) {
        for (int i = 0; i <= FileList.Count(); ++i) {
            lstFiles.AddItem(FileList.Item(i));
        }
    } else {
        FileList.Clear();
        for (std::string& path : QuotedPaths(commandLine)) {
            AddToFileList(std::move(path));
        }
    }
    if (lstFiles.ListCount() > 0) {
        lstFiles.SetListIndex(0);
    }
    for (const std::string& reason : platform::RefusalReasons()) {
        Warn(reason);
    }
}

void MainWindow::AddToFileList(std::string path) {
    FileList.Add(path);
    lstFiles.AddItem(std::move(path));
}

void MainWindow::AddFiles() {
    const std::string result =
        OpenFileDialog(*this, AddTitle, FileFilter(cmbEngines.ListIndex()), "", SeveralFilesFlags);
    for (std::string& path : ChosenFiles(result)) {
        AddToFileList(std::move(path));
    }
}

void MainWindow::RemoveFile() {
    const int row = lstFiles.ListIndex();
    if (row < 0) {
        return;
    }
    FileList.Remove(row);
    lstFiles.RemoveItem(row);
    if (lstFiles.ListCount() > 0) {
        lstFiles.SetListIndex(row > 0 ? row - 1 : 0);
    } else {
        UpdateFileControls();
    }
}

void MainWindow::ClearFiles() {
    FileList.Clear();
    lstFiles.Clear();
    UpdateFileControls();
}

std::string MainWindow::SelectedFile() const {
    return lstFiles.ListIndex() < 0 ? std::string() : FileList.Item(lstFiles.ListIndex());
}

void MainWindow::UpdateFileControls() {
    const bool selected = lstFiles.ListIndex() >= 0;
    const bool isWad = selected && IsWad(SelectedFile());
    itmUseFirstMap.SetEnabled(isWad);
    cmdGetMapLump.SetEnabled(isWad);
    const std::string textFile = selected ? TextFileName(lstFiles.ListIndex()) : std::string();
    const bool hasText = !textFile.empty() && platform::IsOrdinaryFile(textFile);
    itmViewText.SetEnabled(hasText);
    cmdShowTextFile.SetEnabled(hasText);
}

void MainWindow::FileListDoubleClicked() {
    if (IsWad(SelectedFile())) {
        UseFirstMap();
    }
}

void MainWindow::FileListReleased(toolkit::MouseButton button, double x, double y) {
    if (lstFiles.ListIndex() < 0 || button != toolkit::MouseButton::Right) {
        return;
    }
    lstFiles.SetFocus();
    const int row = ListItemAt(lstFiles, x, y);
    if (row < 0) {
        return;
    }
    lstFiles.SetListIndex(row);
    UpdateFileControls();
    mnuFileList.PopUp(*this);
}

/// Path of an entry's text file: the entry's path in lower case up to its first dot, with ".txt".
/// Dots in folder names count. Empty for an entry without any dot.
std::string MainWindow::TextFileName(int index) const {
    const std::string path = LowerCase(FileList.Item(index));
    const std::size_t dot = path.find('.');
    return dot == std::string::npos ? std::string() : path.substr(0, dot) + ".txt";
}

void MainWindow::PointerOverFiles(double x, double y) {
    const int row = ListItemAt(lstFiles, x, y);
    if (row >= 0) {
        lstFiles.SetToolTip(lstFiles.List(row));
    }
}

void MainWindow::ViewText() {
    if (lstFiles.ListIndex() < 0) {
        return;
    }
    std::string textFile = TextFileName(lstFiles.ListIndex());
    RunProgram(textFile, "", ShowMinimizedInactive, false);
}

std::string FileFilter(int engine) {
    if (engine < 0) {
        return WadFilter;
    }
    std::string list;
    std::string patterns;
    for (const EngineFileType& type : EngineAt(engine).filetypes) {
        list += type.description + " (*." + type.extension + ")|*." + type.extension + "|";
        patterns += "*." + type.extension + ";";
    }
    list += "All files (*.*)|*.*";
    return patterns.empty() ? list : "All supported files|" + patterns + "|" + list;
}

int ListItemAt(const toolkit::ListBox& list, double x, double y) {
    const std::uint32_t row = desktop::ItemFromPoint(list, static_cast<int>(std::lround(x)),
                                                     static_cast<int>(std::lround(y)));
    return row >= static_cast<std::uint32_t>(list.ListCount()) ? NoSelection
                                                               : static_cast<int>(row);
}
