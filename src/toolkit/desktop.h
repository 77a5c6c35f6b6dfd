// The desktop contract: what a back end (toolkit/qt, toolkit/win32) does for windows and controls.
// A back end draws their state and reports what the user does by calling their `User...` functions.
// It raises no event for a change that the program makes.
#pragma once

#include <cstdint>

namespace platform {
class ProcessHandle;
}

namespace toolkit {
class Control;
class ListBox;
class PopupMenu;
class Window;
}  // namespace toolkit

namespace desktop {

/// The property of a control that has changed.
enum class Property {
    Caption,
    Text,
    Checked,
    Selection,
    ItemAdded,
    ItemRemoved,
    ItemsCleared,
    Enabled,
    Visible,
    ToolTip,
    Focus,  // the control is to take the keyboard focus
};

/// Initializes the windowing system; called before the first window is loaded.
void StartDesktop();
/// Handles the events that are pending, and returns.
void DoEvents();
/// Handles events until Zorvane ends.
int RunEventLoop();
/// Handles events until another process has ended. Does not wake up without an event.
void RunEventsUntilEnd(const platform::ProcessHandle& process);

/// Adds a window, hidden. The window that is added first is the main window: the end of the session
/// is a close request to it. The functions below are no-ops for a window that is not loaded.
void LoadWindow(toolkit::Window& window);
/// Removes a window, without a close request.
void UnloadWindow(toolkit::Window& window);
/// Shows a window non-modally, in the middle of the screen.
void ShowWindow(toolkit::Window& window);
void HideWindow(toolkit::Window& window);
/// Shows a window over the active one, which takes no input meanwhile. Handles events until
/// window.Visible() is false, then returns the focus to the window that was active.
void RunModal(toolkit::Window& window);
/// Draws the whole window immediately.
void RepaintWindow(toolkit::Window& window);
/// Draws the window's new caption.
void CaptionChanged(toolkit::Window& window);
/// Draws a control's new property. `row` is the row of ItemAdded and ItemRemoved.
void PropertyChanged(toolkit::Control& control, Property property, int row = -1);

/// Row under a pixel of a list box, with the result of LB_ITEMFROMPOINT: the nearest row in the low
/// 16 bits, and 1 in the high 16 bits if the point is outside the client area. For a point below
/// the last row the result is at least the number of rows.
std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y);

/// Shows a menu at the pointer and returns when it has closed. The chosen item has been clicked.
void ShowPopupMenu(toolkit::Window& window, toolkit::PopupMenu& menu);

}  // namespace desktop
