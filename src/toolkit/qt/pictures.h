// The pictures of the program, by the names that controls are declared with.
#pragma once

#include <QPixmap>
#include <string_view>

class QIcon;
class QPalette;

namespace desktop {

/// Loads a picture in a resolution for `pixelRatio` pixels per unit, in its dark variant for a dark
/// palette if it has one. Returns a null pixmap if there is no such picture.
QPixmap LoadPicture(std::string_view name, double pixelRatio, const QPalette& palette);

/// The icon of the program's windows.
QIcon ProgramIcon();

}  // namespace desktop
