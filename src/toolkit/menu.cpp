#include "toolkit/menu.h"

#include "toolkit/desktop.h"
#include "toolkit/events.h"

namespace toolkit {

MenuItem::MenuItem(PopupMenu& menu, std::string caption) : caption_(std::move(caption)) {
    menu.items_.push_back(this);
}

void MenuItem::UserClicks() {
    if (enabled_) {
        Run(OnClick);
    }
}

void PopupMenu::PopUp(Window& window) {
    desktop::ShowPopupMenu(window, *this);
}

}  // namespace toolkit
