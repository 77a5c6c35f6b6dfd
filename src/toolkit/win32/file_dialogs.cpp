#include <cstddef>

#include "platform/win32/com.h"
#include "platform/win32/text.h"
#include "toolkit/dialogs.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {
namespace {

/// Size of the record without the members that Windows 2000 added.
constexpr DWORD RecordSize = offsetof(OPENFILENAMEW, lpTemplateName) + sizeof(LPCWSTR);
static_assert(sizeof(void*) != 4 || RecordSize == 76);

void FreeItem(LPITEMIDLIST item) {
    LATE(ole32, CoTaskMemFree)(item);
}
using Item = platform::Owned<LPITEMIDLIST, FreeItem>;

using Dialog = BOOL(WINAPI*)(OPENFILENAMEW*);

HWND HandleOf(const toolkit::Window* window) {
    const NativeWindow* native = window != nullptr ? FindNative(*window) : nullptr;
    return native != nullptr ? native->Handle() : nullptr;
}

/// Fills in the native record, runs one of the two dialogs, and stores its result.
bool Run(Dialog dialog, OpenFileName& record) {
    // Far more than the caller accepts: a dialog may cut off a result that does not fit.
    constexpr DWORD BufferSize = 0x8000;
    std::wstring file(BufferSize, L'\0');
    const std::wstring filter = platform::Wide(record.lpstrFilter) + std::wstring(2, L'\0');
    const std::wstring folder = platform::Wide(record.lpstrInitialDir);
    const std::wstring title = platform::Wide(record.lpstrTitle);
    OPENFILENAMEW native = {};
    native.lStructSize = RecordSize;
    native.hwndOwner = HandleOf(record.hwndOwner);
    native.hInstance = ::GetModuleHandleW(nullptr);
    native.lpstrFilter = filter.c_str();
    native.lpstrFile = file.data();
    native.nMaxFile = BufferSize;
    native.lpstrInitialDir = folder.c_str();
    native.lpstrTitle = title.c_str();
    native.Flags = record.Flags;
    if (!dialog(&native)) {
        return false;
    }
    record.lpstrFile = platform::Bytes(file);
    return true;
}

}  // namespace

bool GetOpenFileNameA(OpenFileName& record) {
    return Run(LATE(comdlg32, GetOpenFileNameW), record);
}

bool GetSaveFileNameA(OpenFileName& record) {
    return Run(LATE(comdlg32, GetSaveFileNameW), record);
}

std::string BrowseForFolderPath(const BrowseInfo& info) {
    const platform::ComApartment apartment;
    const std::wstring title = platform::Wide(info.lpszTitle);
    BROWSEINFOW native = {};
    native.hwndOwner = HandleOf(info.hwndOwner);
    native.lpszTitle = title.c_str();
    native.ulFlags = BIF_RETURNONLYFSDIRS;
    const Item item(LATE(shell32, SHBrowseForFolderW)(&native));
    wchar_t folder[MAX_PATH] = L"";
    const bool hasPath = item != nullptr && LATE(shell32, SHGetPathFromIDListW)(item.get(), folder);
    return hasPath ? platform::Bytes(folder) : std::string();
}

}  // namespace desktop
