// The title band of the main window.
#pragma once

#include "toolkit/win32/metrics.h"

namespace toolkit {
class Window;
}

namespace desktop {

/// Name of the picture that is the band.
inline constexpr char BandPicture[] = "title";

/// Draws the band once for a density, when it is first asked for; what stands on it takes its own
/// background from there.
class Band {
  public:
    /// Makes the picture fit the window's row for the band, if it has one.
    void Lay(const toolkit::Window& window, const Metrics& metrics);
    /// A brush that gives `control` what of the band lies beneath it, in a context of the control.
    HBRUSH Beneath(HWND control, HDC context);

  private:
    void Draw();

    RECT place_ = {};
    OwnedBitmap bitmap_;
    OwnedBrush brush_;
};

}  // namespace desktop
