// The native windows of the loaded windows.
#pragma once

#include "toolkit/qt/native_window.h"

namespace desktop {

/// Adds a window. Its native window is created when it is first shown, so that a dialog that is
/// never opened costs nothing.
void Register(toolkit::Window& window);
/// Removes a window and deletes its native window.
void Unregister(const toolkit::Window& window);

/// The window that was added first; null if there is none.
toolkit::Window* MainWindow();

/// The native window; null for a null window and if it has not been created.
NativeWindow* FindNative(const toolkit::Window* window);
/// The native window, created if necessary; null for a window that is not loaded.
NativeWindow* EnsureNative(const toolkit::Window& window);

/// Gives the keyboard focus to a control, now or when its native window is created.
void Focus(const toolkit::Control& control);

/// The window in front, which owns a new dialog; null if no window is visible.
QWidget* FrontWindow();

}  // namespace desktop
