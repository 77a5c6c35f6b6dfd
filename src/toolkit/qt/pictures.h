// Our own pictures, by the names that the window tables use.
#pragma once

#include <QPixmap>
#include <string_view>

class QIcon;
class QPalette;

namespace desktop {

/// The picture in the sharpness that a screen of `pixelRatio` pixels to the unit needs, in its
/// dark form on a dark palette where it has one. Null when there is no such picture.
QPixmap LoadPicture(std::string_view name, double pixelRatio, const QPalette& palette);

/// The icon of the program's windows.
QIcon ProgramIcon();

}  // namespace desktop
