#include "toolkit/menu.h"

#include <QCursor>
#include <QMenu>

#include "platform/desktop.h"
#include "platform/qt/native_window.h"
#include "platform/qt/text.h"

namespace platform {

void ShowPopupMenu(toolkit::Window& window, toolkit::PopupMenu& menu) {
    QMenu native(qt::NativeOf(&window));
    for (const toolkit::MenuItem* item : menu.Items()) {
        QAction* action = native.addAction(qt::WithoutAccessKeys(qt::Shown(item->Caption())));
        action->setEnabled(item->Enabled());
    }
    const qsizetype chosen = native.actions().indexOf(native.exec(QCursor::pos()));
    if (chosen >= 0) {
        menu.Items()[static_cast<std::size_t>(chosen)]->UserClicks();
    }
}

}  // namespace platform
