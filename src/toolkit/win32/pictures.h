// Our own pictures, from the resources of the program.
#pragma once

#include <string_view>

#include "toolkit/win32/gdi_handles.h"

namespace desktop {

/// Resource number of the program's icon: the lowest, which is the one that the shell shows.
inline const wchar_t* const ProgramIcon = MAKEINTRESOURCEW(1);

/// A picture by its name in a window's table, in the largest size that has room in the given number
/// of pixels each way. Null when there is none of that name.
OwnedIcon LoadPicture(std::string_view name, int room);

}  // namespace desktop
