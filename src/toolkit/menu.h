// A pop-up menu, shown at the pointer.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace toolkit {

class Window;
class PopupMenu;

/// One entry of a menu.
class MenuItem {
  public:
    MenuItem(PopupMenu& menu, std::string caption);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;
    ~MenuItem() = default;

    const std::string& Caption() const { return caption_; }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled) { enabled_ = enabled; }

    /// Called by a back end when the user chose the item. Runs OnClick if the item is enabled.
    void UserClicks();
    std::function<void()> OnClick;

  private:
    std::string caption_;
    bool enabled_ = true;
};

class PopupMenu {
  public:
    explicit PopupMenu(std::string caption) : caption_(std::move(caption)) {}
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;
    ~PopupMenu() = default;

    const std::string& Caption() const { return caption_; }
    const std::vector<MenuItem*>& Items() const { return items_; }
    /// Shows the menu over `window` and returns when it has closed.
    void PopUp(Window& window);

  private:
    friend class MenuItem;

    std::string caption_;
    std::vector<MenuItem*> items_;
};

}  // namespace toolkit
