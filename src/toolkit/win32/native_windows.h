// Which native windows there are, and which of them are on the screen.
#pragma once

#include "toolkit/win32/native_window.h"

namespace desktop {

/// Counts a window among the loaded ones. Its native window is made when it is first needed, so
/// that a dialog that nobody opens costs nothing: all state is in the toolkit's controls.
void Register(toolkit::Window& window);
/// Takes it off the list again, with its native window.
void Unregister(const toolkit::Window& window);

/// The native window, null when it has not been made.
NativeWindow* FindNative(const toolkit::Window& window);
/// The same, made now if need be; null for a window that is not loaded.
NativeWindow* EnsureNative(const toolkit::Window& window);
/// The native control, null when its window has not been made.
NativeControl* FindNative(const toolkit::Control& control);
/// The control with that handle, null when it is none of ours.
NativeControl* FindNative(HWND control);

/// Counts a window as the topmost one of those that are shown, or no longer among them.
void PutOnTop(NativeWindow& window);
void TakeOff(NativeWindow& window);
/// The window that a dialog opens over; null when none is shown.
HWND Topmost();

}  // namespace desktop
