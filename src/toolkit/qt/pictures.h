// The pictures of the program, by the names that controls are declared with. They are drawn from
// paths, so they are sharp at every size; art/ has the same shapes as SVG, for the Windows program.
#pragma once

#include <QPixmap>
#include <string_view>

class QIcon;
class QPainter;
class QRectF;

namespace desktop {

/// Draws the title band, filling the rectangle.
void DrawBand(QPainter& painter, const QRectF& rect);

/// Draws the program's mark in the middle of the rectangle, as large as fits.
void DrawMark(QPainter& painter, const QRectF& rect);

/// Returns the outline picture "map" or "text" in a color, as a square of `side` units with
/// `pixelRatio` pixels per unit.
QPixmap OutlinePicture(std::string_view name, int side, double pixelRatio, const QColor& color);

/// The icon of the program's windows.
QIcon ProgramIcon();

}  // namespace desktop
