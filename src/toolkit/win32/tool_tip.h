// The tooltips of a window's controls.
#pragma once

#include <string>

#include "platform/win32/windows_headers.h"

namespace desktop {

/// The native control is created when the first text is set.
class ToolTips {
  public:
    /// `owner` is the window of the controls. It destroys the native control.
    explicit ToolTips(const HWND& owner) : owner_(owner) {}
    /// Sets the text of a control.
    void Set(HWND control, const std::string& text);

  private:
    void Make();

    const HWND& owner_;
    HWND handle_ = nullptr;
};

}  // namespace desktop
