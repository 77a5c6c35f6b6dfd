// All of the windows, tied together.
#pragma once

/// Fills TheApplication with the windows of the system in their loading order and ties the setup
/// dialog's end to the main window's lists.
void ConnectApplication();
