#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>

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

/// The Windows path of a native path, whose bytes are those of the file system.
std::string WindowsPathOf(const QString& native) {
    const QByteArray bytes = QFile::encodeName(QDir::cleanPath(native));
    return platform::WindowsPath(
        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
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
    std::vector<std::string> paths;
    if (dialog.exec() == QDialog::Accepted) {
        for (const QString& file : dialog.selectedFiles()) {
            paths.push_back(WindowsPathOf(file));
        }
    }
    record.lpstrFile = PickedFiles(paths);
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
    dialog.setOption(QFileDialog::ShowDirsOnly);
    ShowInstruction(dialog, DisplayText(info.lpszTitle));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return WindowsPathOf(dialog.selectedFiles().constFirst());
}

}  // namespace desktop
