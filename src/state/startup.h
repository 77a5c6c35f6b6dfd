// Start and end of the program.
#pragma once

#include <functional>
#include <vector>

namespace toolkit {
class Window;
}

/// What to start. ConnectApplication (mainwindow/application.h) fills it in, so that nothing here
/// depends on a window.
struct Application {
    std::vector<toolkit::Window*> windows;  // in loading order; the first is the main window
    std::function<void()> afterLoading;     // runs once all are loaded, before the first is shown
};
extern Application TheApplication;

/// Reads the settings, the engine files and the table of known games, loads the windows and shows
/// the main window. On a first run it writes the default settings at once. Calls ShutDown if the
/// engine files or the settings cannot be used.
void Main();

/// Saves the settings if they were loaded or created, unloads the windows in reverse order and ends
/// the process. A message reports settings that cannot be saved. Never returns; a re-entrant call
/// is ignored.
void ShutDown();
