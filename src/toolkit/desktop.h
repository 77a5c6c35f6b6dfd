// What the toolkit asks of the machine's windowing system. A back end draws the state that controls
// and windows hold and reports what the user does by calling their `User...` functions. Drawing
// raises no event: a back end is silent when it is told of a change.
#pragma once

#include <cstdint>

namespace toolkit {
class Control;
class ListBox;
class PopupMenu;
class Window;
}  // namespace toolkit

namespace desktop {

/// What of a control has changed. For the item properties the row comes along.
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
    Focus,
};

/// Makes the native window and its controls, hidden, from what the table and the controls say.
/// Without a native window nothing below that takes a window or a control does anything.
void LoadWindow(toolkit::Window& window);
/// Destroys the native window. Raises no close request.
void UnloadWindow(toolkit::Window& window);
/// Shows it, not modally, in the middle of the screen.
void ShowWindow(toolkit::Window& window);
void HideWindow(toolkit::Window& window);
/// Shows it over the active window, which takes no input meanwhile, and lets events run until
/// window.Visible() is false. The active window has the focus again afterwards.
void RunModal(toolkit::Window& window);
/// Draws the whole window now.
void RepaintWindow(toolkit::Window& window);
void CaptionChanged(toolkit::Window& window);

/// Draws one property of a control anew.
void PropertyChanged(toolkit::Control& control, Property property, int row = -1);

/// Row under a pixel of a list box, as LB_ITEMFROMPOINT tells it: the row number in the low 16 bits
/// (the nearest row where there is none), 1 in the high 16 bits when the point is outside of the
/// client area. The row count itself or more stands for a point below the last row.
std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y);
/// Units of pointer events for each pixel of the screen.
double UnitsPerPixelX();
double UnitsPerPixelY();

/// Shows a menu at the pointer and returns when it is gone; a choice has run its item's click.
void ShowPopupMenu(toolkit::Window& window, toolkit::PopupMenu& menu);

/// Gets the windowing system ready; before the first window. May take its own options out of the
/// arguments.
void StartDesktop(int& argumentCount, char** arguments);
/// Lets the events run that are pending now, and returns.
void DoEvents();
/// Runs events until the process ends.
int RunEventLoop();

}  // namespace desktop
