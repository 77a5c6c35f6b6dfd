#include "toolkit/menu.h"

#include "toolkit/desktop.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {

void ShowPopupMenu(toolkit::Window& window, toolkit::PopupMenu& menu) {
    NativeWindow* native = FindNative(window);
    if (native == nullptr) {
        return;
    }
    const OwnedMenu popup(::CreatePopupMenu());
    const auto& items = menu.Items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        ::AppendMenuW(popup.get(), items[i]->Enabled() ? MF_STRING : MF_STRING | MF_GRAYED, i + 1,
                      EscapeAmpersands(items[i]->Caption()).c_str());
    }
    const POINT place = native->TakeMenuPosition();
    const int chosen = ::TrackPopupMenu(popup.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                        place.x, place.y, 0, native->Handle(), nullptr);
    if (chosen > 0) {
        items[static_cast<std::size_t>(chosen) - 1]->UserClicks();
    }
}

}  // namespace desktop
