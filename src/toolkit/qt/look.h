// Colours and fonts of our own, next to those of the desktop.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace desktop {

/// The colour of the program: its main button, a checked box, what has the focus.
inline constexpr QColor accent(0xB3, 0x36, 0x1B);

/// Dresses the program, once it has its QApplication. A desktop with a style of its own keeps that;
/// the plain one gets our style and a warm palette, light or dark as the desktop is.
void ApplyLook();

bool IsDark(const QPalette& palette);

/// Colour `share` (0 to 1) of the way from `from` to `to`.
QColor Blend(const QColor& from, const QColor& to, double share);

/// Size of the widget's font, in points, times `factor`.
QFont Scaled(QFont font, double factor);

}  // namespace desktop
