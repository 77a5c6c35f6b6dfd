#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QTreeView>
#include <QUrl>

#include "platform/files.h"
#include "platform/posix/paths.h"
#include "toolkit/dialogs.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/picked_files.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

QWidget* OwnerOf(const toolkit::Window* window) {
    QWidget* owner = FindNative(window);
    return owner != nullptr && owner->isVisible() ? owner : FrontWindow();
}

/// Adds the folders in which games and engines are usually installed to the side bar.
void OfferFolders(QFileDialog& dialog) {
    QStringList folders = {QStringLiteral("/usr/share/games/doom"),
                           QStringLiteral("/usr/local/share/games/doom"),
                           QStringLiteral("/usr/games")};
    folders += qEnvironmentVariable("DOOMWADDIR");
    folders += qEnvironmentVariable("DOOMWADPATH").split(QLatin1Char(':'));
    QList<QUrl> places = dialog.sidebarUrls();
    for (const QString& folder : folders) {
        const QUrl place = QUrl::fromLocalFile(folder);
        if (QDir::isAbsolutePath(folder) && QFileInfo(folder).isDir() && !places.contains(place)) {
            places.append(place);
        }
    }
    dialog.setSidebarUrls(places);
}

/// Leaves the sizes and dates of files whole, and the rest of the place to their names.
void FitColumns(QFileDialog& dialog) {
    if (const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

/// Shows the dialog until it is cancelled or all of the chosen names can be used. Returns their
/// Windows paths.
std::vector<std::string> PathsChosenIn(QFileDialog& dialog) {
    OfferFolders(dialog);
    FitColumns(dialog);
    std::vector<std::string> paths;
    while (paths.empty() && dialog.exec() == QDialog::Accepted) {
        for (const QString& file : dialog.selectedFiles()) {
            const std::string native = QFile::encodeName(QDir::cleanPath(file)).toStdString();
            if (const auto usable = platform::CheckNativeName(native); !usable) {
                ShowMessage(usable.reason, Encode(dialog.windowTitle()), MessageIcon::Exclamation);
                paths.clear();
                break;
            }
            paths.push_back(platform::WindowsPath(native));
        }
    }
    return paths;
}

void StartIn(QFileDialog& dialog, const std::string& folder) {
    const auto native = folder.empty() ? std::nullopt : platform::FindPath(folder);
    const QString path = native ? QFile::decodeName(native->c_str()) : QString();
    if (!path.isEmpty() && QFileInfo(path).isDir()) {
        dialog.setDirectory(path);
    }
}

bool PickFiles(QFileDialog& dialog, OpenFileName& record) {
    dialog.setWindowTitle(DisplayText(record.lpstrTitle));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(NameFilters(record.lpstrFilter));
    StartIn(dialog, record.lpstrInitialDir);
    record.lpstrFile = PickedFiles(PathsChosenIn(dialog));
    return !record.lpstrFile.empty();
}

/// Shows the instruction as the title, and also inside Qt's own dialog: some desktops hide titles.
void ShowInstruction(QFileDialog& dialog, const QString& text) {
    dialog.setWindowTitle(text);
    if (QLayout* layout = dialog.layout()) {
        auto* label = new QLabel(text, &dialog);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setContentsMargins(layout->contentsMargins());
        layout->setMenuBar(label);
    }
}

/// In a dialog for folders, so that a folder of programs does not look empty.
void ShowFilesDisabled(QFileDialog& dialog) {
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(QFileDialog::tr("Directories") + QStringLiteral(" (/)"));
    if (auto* model = dialog.findChild<QFileSystemModel*>()) {
        model->setNameFilterDisables(true);
    }
}

}  // namespace

bool GetOpenFileNameA(OpenFileName& record) {
    QFileDialog dialog(OwnerOf(record.hwndOwner));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    const bool several = (record.Flags & OfnAllowMultiSelect) != 0;
    const bool mustExist = (record.Flags & OfnFileMustExist) != 0;
    dialog.setFileMode(several     ? QFileDialog::ExistingFiles
                       : mustExist ? QFileDialog::ExistingFile
                                   : QFileDialog::AnyFile);
    return PickFiles(dialog, record);
}

bool GetSaveFileNameA(OpenFileName& record) {
    QFileDialog dialog(OwnerOf(record.hwndOwner));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const bool asks = (record.Flags & OfnOverwritePrompt) != 0;
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !asks);
    return PickFiles(dialog, record);
}

std::string BrowseForFolderPath(const BrowseInfo& info) {
    QFileDialog dialog(OwnerOf(info.hwndOwner));
    dialog.setFileMode(QFileDialog::Directory);
    ShowFilesDisabled(dialog);
    ShowInstruction(dialog, DisplayText(info.lpszTitle).remove(QLatin1String(".exe")));
    const std::vector<std::string> paths = PathsChosenIn(dialog);
    return paths.empty() ? std::string() : paths.front();
}

}  // namespace desktop
