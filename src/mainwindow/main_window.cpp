#include "mainwindow/main_window.h"

#include "mainwindow/table.h"
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

/// What the map field shows as long as no map is chosen.
constexpr const char* UsualFirstMap = "MAP01";

std::string VersionLine() {
    const platform::VersionNumbers version = platform::ProgramVersion();
    return "Version " + std::to_string(version.major) + "." + std::to_string(version.minor) +
           " build " + std::to_string(version.revision);
}

/// The controls that only mirror a settings key, each kind in its own way.
void Mirror(toolkit::ItemControl& list) {
    list.OnClick = [&list] { StoreSetting(list.Spec().key, list.ListIndex()); };
}

void Mirror(toolkit::CheckBox& box) {
    box.OnClick = [&box] { StoreSetting(box.Spec().key, box.Checked() ? 1 : 0); };
}

void Mirror(toolkit::TextBox& box) {
    box.OnChange = [&box] { StoreSetting(box.Spec().key, box.Text()); };
}

void Restore(toolkit::ItemControl& list) {
    list.SetListIndex(SettingNumber(list.Spec().key));
}

void Restore(toolkit::CheckBox& box) {
    box.SetChecked(SettingNumber(box.Spec().key) != 0);
}

}  // namespace

MainWindow frmMain;

MainWindow::MainWindow() : Window(MainWindowTable) {
    OnLoad = [this] { OnLoadWindow(); };
    OnCloseRequest = [] { ShutDown(); };
    MirrorControls();
    cmbIWADs.OnClick = [this] { GameWadChosen(); };
    cmdSettings.OnClick = [this] { ShowSettings(); };
    cmdSetup.OnClick = [] { frmSetup.ShowModal(); };
    cmdAbout.OnClick = [] { frmCredits.ShowModal(); };
    cmdExit.OnClick = [] { ShutDown(); };
    cmdLaunch.OnClick = [this] { Launch(); };
    cmdRun.OnClick = [this] { Run(); };
    cmdDemo.OnClick = [this] { Record(); };
    cmdPlayBack.OnClick = [this] { PlayBack(); };
    ConnectFileList();
    ConnectTips();
}

void MainWindow::MirrorControls() {
    Mirror(cmbEngines);
    Mirror(cmbMaps);
    Mirror(cmbSkill);
    Mirror(chkNoMonsters);
    Mirror(chkFastMonsters);
    Mirror(chkRespawnMonsters);
    Mirror(chkDeathmatch);
    Mirror(txtParameters);
}

// The order is what makes the stored map survive: filling the lists chooses a map of its own, and
// that one is overwritten at the end.
void MainWindow::OnLoadWindow() {
    RecordDemoRequested = false;
    PlayDemoRequested = false;
    PlayDemoFile.clear();
    for (const char* name : SkillNames) {
        cmbSkill.AddItem(name);
    }
    SetCaption(ProgramTitle);
    lblTitle.SetCaption(ProgramTitle);
    lblVersion.SetCaption(VersionLine());
    SavedMapIndex = SettingNumber("map");
    SetupLists();
    FillFileList();
    txtParameters.SetText(SettingText("parameters"));
    Restore(cmbEngines);
    Restore(cmbIWADs);
    Restore(cmbSkill);
    Restore(chkNoMonsters);
    Restore(chkFastMonsters);
    Restore(chkRespawnMonsters);
    Restore(chkDeathmatch);
    Settings.Root()->Item("map") = std::int32_t{SavedMapIndex};
    cmbMaps.SetText(UsualFirstMap);
    Restore(cmbMaps);
    UpdateFileControls();
}

void MainWindow::SetupLists() {
    cmbEngines.Clear();
    for (const EngineRecord& engine : Engines) {
        cmbEngines.AddItem(engine.realname);
    }
    if (EngineCount() > 0) {
        Restore(cmbEngines);
    }
    cmbIWADs.Clear();
    for (const GameWadRecord& gameWad : GameWads) {
        cmbIWADs.AddItem(gameWad.name);
    }
    if (GameWadCount() > 0) {
        Restore(cmbIWADs);
    }
}

// The map is kept by its position in the list, whatever its name.
void MainWindow::GameWadChosen() {
    StoreSetting("iwad", cmbIWADs.ListIndex());
    const int oldRow = cmbMaps.ListIndex();
    const int gameWad = cmbIWADs.ListIndex();
    FillMapList(gameWad < 0 ? std::string() : GameWadAt(gameWad).file, cmbMaps);
    cmbMaps.SetListIndex(oldRow < 0 || oldRow >= cmbMaps.ListCount() ? 0 : oldRow);
}

void MainWindow::ShowSettings() {
    if (cmbEngines.ListIndex() < 0) {
        return;
    }
    frmEngineSettings.PassEngine(cmbEngines.ListIndex());
    frmEngineSettings.ShowModal();
}
