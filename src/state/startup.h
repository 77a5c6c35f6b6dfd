// The way in and the only regular way out.
#pragma once

#include <functional>
#include <vector>

namespace toolkit {
class Window;
}

/// What there is to bring up. `main` fills it in, so that nothing here has to know a window.
struct Application {
    std::vector<toolkit::Window*> windows;  // in loading order; the first one is the main window
    std::function<void()> afterLoading;  // runs when all of them are loaded, before the first shows
};
extern Application TheApplication;

/// Brings everything up in its fixed order: settings, engines, known game WADs, windows. On a first
/// run the default settings are written at once. Returns with the main window on the screen.
void Main();

/// Saves the settings if they were loaded or made, unloads the windows in reverse order and ends
/// the process. Does not return, but for a call from inside its own work, which does nothing. When
/// the settings cannot be written a message names file and reason, and the old file is whole.
void ShutDown();
