// The pictures of the program, from its resources.
#pragma once

#include <string_view>

#include "toolkit/win32/gdi_handles.h"

namespace desktop {

/// Resource name of the program's icon. The shell shows the first icon by name.
inline constexpr wchar_t ProgramIcon[] = L"app";

/// The largest size of at most `size` pixels in which the pictures are drawn: Windows scales them
/// badly.
int DrawnSize(int size);

/// Loads a picture in DrawnSize. Returns null if there is no such picture.
OwnedIcon LoadPicture(std::string_view name, int size);

}  // namespace desktop
