// The program's pictures, by the names in control declarations. All but the icon are drawn from
// paths, so that they are sharp at any size; art/ has the same shapes as SVG for Windows.
#pragma once

#include <QPixmap>
#include <string_view>

class QIcon;
class QPainter;
class QPolygonF;
class QRectF;

namespace desktop {

/// Draws the title band, filling the rectangle.
void DrawBand(QPainter& painter, const QRect& rect);

/// Draws the program's mark in the middle of the rectangle, as large as fits.
void DrawMark(QPainter& painter, const QRectF& rect);

/// Draws the program's name in white at the left edge of the rectangle, in the middle of its
/// height. Its capital is half as high as the rectangle.
void DrawWordmark(QPainter& painter, const QRectF& rect);

/// Draws lines from point to point, each by itself: with a pen of square caps they look like joined
/// ones, which take many times as long.
void DrawLines(QPainter& painter, const QPolygonF& points);

/// Returns the outline picture "map" or "text" in a color, as a square of `side` units with
/// `pixelRatio` pixels per unit.
QPixmap OutlinePicture(std::string_view name, int side, double pixelRatio, const QColor& color);

/// The icon of the program's windows.
QIcon ProgramIcon();

}  // namespace desktop
