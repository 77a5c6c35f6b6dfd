// Colors and fonts of ours, besides those of the desktop.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>

class QPainter;
class QString;

namespace desktop {

/// The color of the program: main button, checked boxes, focus rings.
inline constexpr QColor Accent(0xB3, 0x36, 0x1B);

/// Sets style and palette, after the QApplication was created. A desktop with a style of its own
/// keeps it. Otherwise our style is set, with a light or dark palette as the desktop has.
void ApplyLook();

bool IsDark(const QPalette& palette);

/// Whether the desktop asks for strong contrast: black on white, or white or a full color such as
/// yellow on black. Its colors then replace ours.
bool HasStrongContrast(const QPalette& palette);

/// The accent color, and that of texts on it, or the desktop's selection with strong contrast.
QColor AccentOf(const QPalette& palette);
QColor TextOnAccent(const QPalette& palette);

/// The color of links; that of texts where the desktop's own is hard to see.
QColor LinkColor(const QPalette& palette);

/// Returns the color at `share` (0 to 1) of the way from `from` to `to`.
QColor Blend(const QColor& from, const QColor& to, double share);

/// Sets the space between the letters of the painter's font to what DrawBold needs.
void SpaceForBold(QPainter& painter);

/// Draws a line of text in bold, with the flags of QPainter::drawText, after SpaceForBold. The text
/// is drawn side by side in the regular weight, because loading the bold font would take a
/// twentieth of the start.
void DrawBold(QPainter& painter, const QRect& rect, int flags, const QString& text);

}  // namespace desktop
