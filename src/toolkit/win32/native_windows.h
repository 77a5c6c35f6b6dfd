// The native windows of the loaded windows.
#pragma once

#include "toolkit/win32/native_window.h"

namespace desktop {

/// Adds a window. Its native window is created when it is first shown, so that a dialog that is
/// never opened costs nothing.
void Register(toolkit::Window& window);
/// Removes a window and destroys its native window.
void Unregister(const toolkit::Window& window);

/// The native window; null if it has not been created.
NativeWindow* FindNative(const toolkit::Window& window);
/// The native window, created if necessary; null for a window that is not loaded.
NativeWindow* EnsureNative(const toolkit::Window& window);
/// The native control; null if its window has not been created.
NativeControl* FindNative(const toolkit::Control& control);
/// The native control with a handle; null if it is not one of ours.
NativeControl* FindNative(HWND control);

/// Adds a shown window on top of the others, or removes it when it is hidden.
void PushWindow(NativeWindow& window);
void RemoveWindow(NativeWindow& window);
/// The window in front, which owns a new dialog; null if no window is visible.
HWND FrontWindow();

}  // namespace desktop
