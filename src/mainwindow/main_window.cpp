#include "mainwindow/main_window.h"

#include "platform/facts.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"
#include "state/records.h"
#include "state/settings.h"
#include "state/startup.h"

namespace {

constexpr const char* SkillNames[] = {
    "I'm too young to die! (1)", "Hey, not too rough. (2)", "Hurt me plenty. (3)",
    "Ultra-Violence! (4)",       "NIGHTMARE! (5)",
};

/// Text of the map field while no map is selected.
constexpr const char* DefaultMap = "MAP01";

std::string VersionLine() {
    const platform::VersionNumbers version = platform::ProgramVersion();
    return "Version " + std::to_string(version.major) + "." + std::to_string(version.minor) +
           " build " + std::to_string(version.revision);
}

}  // namespace

MainWindow frmMain;

MainWindow::MainWindow()
    : Window({.caption = "Zorvane", .width = 376, .height = 283, .values = &SettingsValues}) {
    OnLoad = [this] { LoadControls(); };
    OnCloseRequest = [] { ShutDown(); };
    OnTip = [this](std::string_view tip) { ShowTip(tip); };
    cmbIWADs.OnClick = [this] { GameWadChosen(); };
    cmdSettings.OnClick = [this] { ShowSettings(); };
    cmdSettings.OnPointerMoved = [this](double, double) {
        ShowTip("Adjust " + cmbEngines.Text() + "'s options.");
    };
    cmdSetup.OnClick = [] { frmSetup.ShowModal(); };
    cmdAbout.OnClick = [] { frmCredits.ShowModal(); };
    cmdExit.OnClick = [] { ShutDown(); };
    cmdLaunch.OnClick = [this] { Launch(); };
    cmdRun.OnClick = [this] { Run(); };
    cmdDemo.OnClick = [this] { Record(); };
    cmdPlayBack.OnClick = [this] { PlayBack(); };
    ConnectFileList();
}

void MainWindow::LoadControls() {
    recordDemoRequested_ = false;
    playDemoRequested_ = false;
    playDemoFile_.clear();
    for (const char* name : SkillNames) {
        cmbSkill.AddItem(name);
    }
    lblTitle.SetCaption(ProgramTitle);
    lblVersion.SetCaption(VersionLine());
    savedMapIndex_ = SettingNumber("map");
    SetupLists();
    FillFileList();
    RestoreValues();
    // Choosing the game has chosen a map and stored it: the stored map comes last.
    Settings.Root()->Item("map") = std::int32_t{savedMapIndex_};
    cmbMaps.SetText(DefaultMap);
    cmbMaps.SetListIndex(SettingNumber("map"));
    UpdateFileControls();
}

void MainWindow::SetupLists() {
    cmbEngines.Clear();
    for (const EngineRecord& engine : Engines) {
        cmbEngines.AddItem(engine.realname);
    }
    if (EngineCount() > 0) {
        cmbEngines.SetListIndex(SettingNumber("engine"));
    }
    cmbIWADs.Clear();
    for (const GameWadRecord& gameWad : GameWads) {
        cmbIWADs.AddItem(gameWad.name);
    }
    if (GameWadCount() > 0) {
        cmbIWADs.SetListIndex(SettingNumber("iwad"));
    }
}

/// The map stays selected by its position in the list, whatever its name.
void MainWindow::GameWadChosen() {
    const int oldRow = cmbMaps.ListIndex();
    const int gameWad = cmbIWADs.ListIndex();
    FillMapList(gameWad < 0 ? std::string() : GameWadAt(gameWad).file, cmbMaps);
    cmbMaps.SetListIndex(oldRow < 0 || oldRow >= cmbMaps.ListCount() ? 0 : oldRow);
}

void MainWindow::ShowSettings() {
    if (cmbEngines.ListIndex() < 0) {
        return;
    }
    frmEngineSettings.ShowEngine(cmbEngines.ListIndex());
    frmEngineSettings.ShowModal();
}

void MainWindow::ShowTip(std::string_view tip) {
    lblTip.SetCaption(std::string(tip));
}
