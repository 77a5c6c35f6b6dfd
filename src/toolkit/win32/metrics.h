// Sizes and fonts of a window at the density of its screen.
#pragma once

#include <array>
#include <string>

#include "toolkit/control.h"
#include "toolkit/win32/gdi_handles.h"

namespace desktop {

/// The faces of the desktop's message font.
enum class Face { Body, Bold, Title, Small, Link };

/// Dots per inch of the first screen.
int FirstScreensDensity();
/// Dots per inch of the screen that a window is on; the first screen's on an old Windows.
int DensityOf(HWND window);

/// Everything that depends on the density.
class Metrics {
  public:
    explicit Metrics(int density);

    int Density() const { return density_; }
    HFONT Font(Face face) const { return fonts_[static_cast<std::size_t>(face)].get(); }
    /// Dialog units as pixels.
    RECT Pixels(const toolkit::Place& place) const;
    /// Pixels that a text takes across.
    int TextWidth(Face face, const std::string& text) const;
    /// Height of a field that holds a line of text, with its border.
    int FieldHeight() const { return characterHeight_ + Scaled(8); }
    /// Pixels of a screen of 96 dots per inch as pixels of this one.
    int Scaled(int pixels) const { return ::MulDiv(pixels, density_, 96); }

  private:
    void MakeFonts();
    void Measure();

    int density_;
    std::array<OwnedFont, 5> fonts_;
    // Four and eight times a unit: the average width and the height of a character.
    int characterWidth_ = 0;
    int characterHeight_ = 0;
};

}  // namespace desktop
