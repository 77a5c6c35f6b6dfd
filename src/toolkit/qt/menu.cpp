#include "toolkit/menu.h"

#include <QCursor>
#include <QMenu>

#include "toolkit/desktop.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/text.h"

namespace desktop {

void ShowPopupMenu(toolkit::Window& window, toolkit::PopupMenu& menu) {
    QMenu native(FindNative(&window));
    for (const toolkit::MenuItem* item : menu.Items()) {
        QAction* action = native.addAction(EscapeAmpersands(DisplayText(item->Caption())));
        action->setEnabled(item->Enabled());
    }
    const qsizetype chosen = native.actions().indexOf(native.exec(QCursor::pos()));
    if (chosen >= 0) {
        menu.Items()[static_cast<std::size_t>(chosen)]->UserClicks();
    }
}

}  // namespace desktop
