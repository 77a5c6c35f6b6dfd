#pragma once

#include "toolkit/win32/metrics.h"

namespace desktop {

/// Places the text of a single-line edit field in its middle, with a margin: the field itself draws
/// it at its top. Call it again after a change of size.
void CenterLine(HWND edit, const Metrics& metrics);

}  // namespace desktop
