// How another program finds our windows and controls: a window by its class and caption, a control
// by its number, which is its row in the table of its window.
#pragma once

#include "toolkit/window.h"

namespace desktop {

inline constexpr wchar_t WindowClassName[] = L"ZorvaneWindow";

/// The numbers below are those of Windows itself, such as IDOK and IDCANCEL.
inline constexpr int FirstControlId = 100;

/// Number of the control that `row`, an element of the table, describes.
inline int ControlId(const toolkit::WindowSpec& table, const toolkit::ControlSpec& row) {
    return FirstControlId + static_cast<int>(&row - table.rows.data());
}

}  // namespace desktop
