// How another program finds our windows and controls: a window by its class and caption, a control
// by its number.
#pragma once

#include "toolkit/control.h"

namespace desktop {

inline constexpr wchar_t WindowClassName[] = L"ZorvaneWindow";

/// Smaller numbers are those of Windows itself, such as IDOK and IDCANCEL.
inline constexpr int FirstControlId = 100;

/// The number of a control, which follows its position in the window.
inline int ControlId(const toolkit::Control& control) {
    return FirstControlId + control.Index();
}

}  // namespace desktop
