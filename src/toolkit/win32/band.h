// The title band of the main window.
#pragma once

#include "toolkit/win32/metrics.h"

namespace toolkit {
class Window;
}

namespace desktop {

/// The picture with this name is the band.
inline constexpr char BandPicture[] = "title";

/// Draws the band once per resolution, when it is first needed. Controls on it paint their
/// background with a part of it.
class Band {
  public:
    /// Fits the band to its picture control, if the window has one.
    void Layout(const toolkit::Window& window, const Metrics& metrics);
    /// Returns a brush with the part of the band under `control`, for a device context of the
    /// control.
    HBRUSH BackgroundBrush(HWND control, HDC context);

  private:
    void Draw();

    RECT place_ = {};
    OwnedBitmap bitmap_;
    OwnedBrush brush_;
};

}  // namespace desktop
