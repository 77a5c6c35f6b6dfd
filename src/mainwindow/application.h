// Connects the windows with each other and with start-up.
#pragma once

/// Sets TheApplication to the windows in their loading order, and refills the main window's lists
/// when the setup dialog is accepted.
void ConnectApplication();
