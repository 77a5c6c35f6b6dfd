#include "state/startup.h"

#include <algorithm>

#include "platform/facts.h"
#include "platform/files.h"
#include "state/engine_files.h"
#include "state/messages.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/file_names.h"
#include "toolkit/window.h"

Application TheApplication;

namespace {

// Before this, `Settings` contains defaults that must not replace the user's file.
bool settingsLoaded = false;
bool shuttingDown = false;

void ReportUnsaved(const platform::Outcome& saved) {
    if (!saved) {
        Fail("The settings could not be saved to " + SettingsFileName + "\r\n" + saved.reason +
             "\r\nPlease check that you may write to its folder and that the disk is not full.");
    }
}

/// Loads the settings, or creates them on a first run.
bool PrepareSettings() {
    if (platform::Exists(SettingsFileName)) {
        return LoadSettings();
    }
    ReportUnsaved(WriteSettings());
    return true;
}

}  // namespace

void Main() {
    shuttingDown = false;
    const std::string directory = platform::ProgramDirectory();
    InitialiseSettings();
    // The engines come first: loading the settings fills in their paths and options.
    settingsLoaded = ScanEngineFiles(JoinPath(directory, "engines")) && PrepareSettings();
    if (!settingsLoaded) {
        ShutDown();
        return;
    }
    // Without the table no game is recognised, which is no reason to stop.
    static_cast<void>(Autodetect.LoadConfiguration(JoinPath(directory, "autodetect.cfg")));

    for (toolkit::Window* window : TheApplication.windows) {
        window->Load();
    }
    if (TheApplication.afterLoading) {
        TheApplication.afterLoading();
    }
    TheApplication.windows.front()->Show();
}

void ShutDown() {
    // A close request may arrive while the message about unsaved settings is shown.
    if (shuttingDown) {
        return;
    }
    shuttingDown = true;
    if (settingsLoaded) {
        ReportUnsaved(SaveSettings());
    }
    std::for_each(TheApplication.windows.rbegin(), TheApplication.windows.rend(),
                  [](toolkit::Window* window) { window->Unload(); });
    platform::EndProcess();
}
