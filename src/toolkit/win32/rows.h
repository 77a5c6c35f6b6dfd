#pragma once

#include "toolkit/lists.h"
#include "toolkit/win32/metrics.h"

namespace desktop {

/// Draws the row that Windows asks for, of a list box or a combo box, with the text in its middle.
/// A long path loses folders in its middle.
void DrawRow(const DRAWITEMSTRUCT& item, const toolkit::ItemControl& list, const Metrics& metrics);

}  // namespace desktop
