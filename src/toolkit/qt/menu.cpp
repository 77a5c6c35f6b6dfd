#include "toolkit/menu.h"

#include <QMenu>

#include "toolkit/desktop.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/text.h"

namespace desktop {

void ShowPopupMenu(toolkit::Window& window, toolkit::PopupMenu& menu) {
    NativeWindow* parent = FindNative(&window);
    if (parent == nullptr) {
        return;
    }
    QMenu native(parent);
    for (const toolkit::MenuItem* item : menu.Items()) {
        QAction* action = native.addAction(EscapeAmpersands(DisplayText(item->Caption())));
        action->setEnabled(item->Enabled());
    }
    const qsizetype chosen = native.actions().indexOf(native.exec(parent->TakeMenuPosition()));
    if (chosen >= 0) {
        menu.Items()[static_cast<std::size_t>(chosen)]->UserClicks();
    }
}

}  // namespace desktop
