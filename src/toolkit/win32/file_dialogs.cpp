#include <cstddef>
#include <utility>

#include "platform/win32/com.h"
#include "toolkit/dialogs.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {
namespace {

/// Size of the record without the members that Windows 2000 added.
constexpr DWORD RecordSize = offsetof(OPENFILENAMEA, lpTemplateName) + sizeof(LPCSTR);
static_assert(sizeof(void*) != 4 || RecordSize == 76);

void FreeItem(LPITEMIDLIST item) {
    LATE(ole32, CoTaskMemFree)(item);
}
using Item = platform::Owned<LPITEMIDLIST, FreeItem>;

using Dialog = BOOL(WINAPI*)(OPENFILENAMEA*);

HWND HandleOf(const toolkit::Window* window) {
    const NativeWindow* native = window != nullptr ? FindNative(*window) : nullptr;
    return native != nullptr ? native->Handle() : nullptr;
}

/// Runs one of the two file dialogs of Windows.
bool Run(Dialog dialog, OpenFileName& record) {
    const std::string filter = record.lpstrFilter + std::string(2, '\0');
    std::string file = record.lpstrFile;
    file.resize(record.nMaxFile);
    OPENFILENAMEA native = {};
    native.lStructSize = RecordSize;
    native.hwndOwner = HandleOf(record.hwndOwner);
    native.hInstance = ::GetModuleHandleW(nullptr);
    native.lpstrFilter = filter.c_str();
    native.lpstrFile = file.data();
    native.nMaxFile = record.nMaxFile;
    native.lpstrInitialDir = record.lpstrInitialDir.c_str();
    native.lpstrTitle = record.lpstrTitle.c_str();
    native.Flags = record.Flags;
    // Windows accepts a result without room for the second NUL; here it is too long.
    const bool confirmed =
        dialog(&native) && file.find(std::string_view("\0\0", 2)) != std::string::npos;
    if (confirmed) {
        record.lpstrFile = std::move(file);
    }
    return confirmed;
}

}  // namespace

bool GetOpenFileNameA(OpenFileName& record) {
    return Run(LATE(comdlg32, GetOpenFileNameA), record);
}

bool GetSaveFileNameA(OpenFileName& record) {
    return Run(LATE(comdlg32, GetSaveFileNameA), record);
}

std::string BrowseForFolderPath(const BrowseInfo& info) {
    const platform::ComApartment apartment;
    BROWSEINFOA native = {};
    native.hwndOwner = HandleOf(info.hwndOwner);
    native.lpszTitle = info.lpszTitle.c_str();
    native.ulFlags = BIF_RETURNONLYFSDIRS;
    const Item item(LATE(shell32, SHBrowseForFolderA)(&native));
    if (item == nullptr) {
        return {};
    }
    static_assert(FolderBufferSize >= MAX_PATH);
    std::string folder(FolderBufferSize, '\0');
    if (!LATE(shell32, SHGetPathFromIDListA)(item.get(), folder.data())) {
        folder.assign(FolderBufferSize, '\0');
    }
    return folder;
}

}  // namespace desktop
