// The floating texts of a window's controls.
#pragma once

#include <string>

#include "platform/win32/windows_headers.h"

namespace desktop {

/// Made when the first text is set.
class ToolTips {
  public:
    /// `owner` is the window whose controls have the texts; it destroys the native part.
    explicit ToolTips(const HWND& owner) : owner_(owner) {}
    /// Gives a control its text, in place of the one that it had.
    void Set(HWND control, const std::string& text);

  private:
    void Make();

    const HWND& owner_;
    HWND handle_ = nullptr;
};

}  // namespace desktop
