// The program's pictures, by the names in control declarations. All but the icon are drawn from
// paths, so that they are sharp at any size; art/ has the same shapes as SVG for Windows.
#pragma once

#include <QPixmap>
#include <string_view>

class QIcon;
class QPainter;
class QRectF;

namespace desktop {

/// Draws the title band, filling the rectangle.
void DrawBand(QPainter& painter, const QRect& rect);

/// Draws the program's mark in the middle of the rectangle, as large as fits.
void DrawMark(QPainter& painter, const QRectF& rect);

/// Returns the outline picture "map" or "text" in a color, as a square of `side` units with
/// `pixelRatio` pixels per unit.
QPixmap OutlinePicture(std::string_view name, int side, double pixelRatio, const QColor& color);

/// The icon of the program's windows.
QIcon ProgramIcon();

}  // namespace desktop
