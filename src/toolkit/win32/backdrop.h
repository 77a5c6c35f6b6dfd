// What a window paints itself: the title band, the pictures on it and divider lines.
#pragma once

#include <string_view>
#include <vector>

#include "toolkit/win32/metrics.h"

namespace toolkit {
class Window;
}

namespace desktop {

/// Paints the controls that nobody can press, focus or read, so that they need no native control:
/// each of those makes the start slower.
class Backdrop {
  public:
    /// Fits all parts to their controls.
    void Layout(const toolkit::Window& window, const Metrics& metrics);
    void Paint(HDC window);
    /// Returns a brush with the part of the title band under `control`, for a device context of the
    /// control. Labels on the band paint their background with it.
    HBRUSH BandBrush(HWND control, HDC context);

  private:
    struct Mark {
        OwnedIcon icon;
        POINT place;
    };

    void AddPicture(std::string_view name, const RECT& place);
    HBRUSH BandBrush(POINT origin, HDC context);
    void DrawBand();

    RECT band_ = {};
    OwnedBitmap bandBitmap_;  // drawn when it is first needed
    OwnedBrush bandBrush_;
    std::vector<Mark> marks_;
    std::vector<RECT> dividers_;
};

}  // namespace desktop
