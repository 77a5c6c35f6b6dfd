// What Qt does not report to a screen reader by itself.
#pragma once

namespace desktop {

/// Reports our windows as frames and dialogs, and our links as links that can be pressed.
void InstallAccessibility();

}  // namespace desktop
