#include "state/startup.h"

#include <algorithm>

#include "platform/facts.h"
#include "platform/files.h"
#include "state/engine_files.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/file_names.h"
#include "toolkit/dialogs.h"
#include "toolkit/window.h"

Application TheApplication;

namespace {

/// The settings are the user's, so that an end of the run has to save them.
bool settingsAreOurs = false;
bool shuttingDown = false;

void TellUnsaved(const platform::Outcome& outcome) {
    if (!outcome) {
        desktop::ShowMessage(
            "The settings could not be saved to " + SettingsFileName + "\r\n" + outcome.reason,
            ProgramTitle, desktop::MessageIcon::Critical);
    }
}

}  // namespace

void Main() {
    settingsAreOurs = false;
    shuttingDown = false;
    const std::string directory = platform::ProgramDirectory();
    InitialiseSettings();
    ScanEngineFiles(JoinPath(directory, "engines"));
    if (platform::Exists(SettingsFileName)) {
        LoadSettings();
    } else {
        TellUnsaved(SaveDefaults());
    }
    settingsAreOurs = true;
    Autodetect.LoadConfiguration(JoinPath(directory, "autodetect.cfg"));

    for (toolkit::Window* window : TheApplication.windows) {
        window->Load();
    }
    if (TheApplication.afterLoading) {
        TheApplication.afterLoading();
    }
    TheApplication.windows.front()->Show();
}

void ShutDown() {
    if (shuttingDown) {
        return;
    }
    shuttingDown = true;
    if (settingsAreOurs) {
        TellUnsaved(SaveSettings());
    }
    std::for_each(TheApplication.windows.rbegin(), TheApplication.windows.rend(),
                  [](toolkit::Window* window) { window->Unload(); });
    platform::EndProcess();
}
