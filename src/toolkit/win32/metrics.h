// Sizes and fonts of a window at the resolution of its monitor.
#pragma once

#include <algorithm>
#include <array>
#include <string>

#include "toolkit/control.h"
#include "toolkit/win32/gdi_handles.h"

namespace desktop {

/// Variants of the system's message font.
enum class Face { Body, Bold, Title, Small };

/// Dots per inch of the primary monitor.
int SystemDpi();
/// Dots per inch of the monitor of a window; before Windows 10 version 1607, of the primary
/// monitor.
int DpiOf(HWND window);

/// Whether the user asked for high contrast: then the system's colors replace the program's.
bool IsHighContrast();

/// Fonts, text measurements and unit conversion for one resolution.
class Metrics {
  public:
    /// With a font of `percent` of the size that the system has for this resolution.
    explicit Metrics(int dpi, int percent = 100);

    int Dpi() const { return dpi_; }
    HFONT Font(Face face) const { return fonts_[static_cast<std::size_t>(face)].get(); }
    /// Converts a rectangle from dialog units to pixels.
    RECT Pixels(const toolkit::Place& place) const;
    /// Width of a text in pixels.
    int TextWidth(Face face, const std::string& text) const;
    int LineHeight() const { return characterHeight_; }
    /// Space to the left and right of the text in a field or a row.
    int TextMargin() const { return Scaled(4); }
    /// Returns the height of the rows of a list: a whole number of them fills `height`.
    int RowHeight(int height) const {
        return height / std::max(1, height / (characterHeight_ * 3 / 2));
    }
    /// Converts pixels at 96 dots per inch to pixels at this resolution.
    int Scaled(int pixels) const { return ::MulDiv(pixels, dpi_, 96); }

  private:
    void MakeFonts(int percent);
    void Measure();

    int dpi_;
    std::array<OwnedFont, 4> fonts_;
    // The average width is four dialog units, the height eight.
    int characterWidth_ = 0;
    int characterHeight_ = 0;
};

}  // namespace desktop
