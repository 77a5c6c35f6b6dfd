// The four buttons that start an engine.
#include "dialogs/dialogs.h"
#include "launch/command_line.h"
#include "launch/demo_save.h"
#include "launch/run_program.h"
#include "mainwindow/main_window.h"
#include "platform/files.h"
#include "state/messages.h"
#include "state/records.h"

namespace {

constexpr const char* NoEngine = "Please select an engine to launch the game with.";
constexpr const char* NoGameWad =
    "Please select a game WAD to launch the game with.\r\n"
    "If there are no game WADs available in the list, please specify them in the Setup dialog.";
constexpr const char* NoSkill = "Please select a skill to launch the game with.";
constexpr const char* LaunchFailed =
    "Could not launch the game. Check your engine paths and game WAD settings.";
constexpr const char* RunFailed =
    "Could not run the game. Please make sure all of your engine, game WAD and Quick Game settings "
    "are valid.";
constexpr const char* NoDemo =
    "Could not find the temporary demo file. This means that the engine you used either doesn't "
    "support recording demos or it wasn't able to save the demo to the location that Zorvane "
    "specified.";

}  // namespace

bool MainWindow::ValidateSelection(bool checkSkill) {
    const char* missing = cmbEngines.ListIndex() < 0               ? NoEngine
                          : cmbIWADs.ListIndex() < 0               ? NoGameWad
                          : checkSkill && cmbSkill.ListIndex() < 0 ? NoSkill
                                                                   : nullptr;
    if (missing != nullptr) {
        Warn(missing);
    }
    return missing == nullptr;
}

void MainWindow::Launch() {
    if (!ValidateSelection(false)) {
        return;
    }
    const int engine = cmbEngines.ListIndex();
    std::string program = ProgramFile(EngineAt(engine));
    const std::string line = LaunchCommandLine(engine, GameWadAt(cmbIWADs.ListIndex()).file);
    if (RunProgram(program, line, ShowNormally, false) == 0) {
        Warn(LaunchFailed);
    }
}

void MainWindow::Run() {
    recordDemoRequested_ = false;
    playDemoRequested_ = false;
    RunQuickStart();
}

void MainWindow::Record() {
    if (cmbEngines.ListIndex() < 0) {
        Warn(NoEngine);
        return;
    }
    recordDemoRequested_ = true;
    playDemoRequested_ = false;
    const EngineRecord& engine = EngineAt(cmbEngines.ListIndex());
    const std::string demoFile = engine.path + "\\temp.lmp";
    const std::string demoExt = engine.demoext;
    frmDemoSave.DemoFileName = demoFile;
    RunQuickStart();
    if (!platform::IsOrdinaryFile(demoFile)) {
        Warn(NoDemo);
        return;
    }
    // A second recording may have changed both while this one waited.
    frmDemoSave.DemoFileName = demoFile;
    frmDemoSave.DemoExt = demoExt;
    Repaint();
    frmDemoSave.ShowModal();
}

void MainWindow::PlayBack() {
    if (cmbEngines.ListIndex() < 0) {
        Warn(NoEngine);
        return;
    }
    const std::string filter = DemoFilter(EngineAt(cmbEngines.ListIndex()).demoext);
    const std::vector<std::string> chosen =
        ChosenFiles(OpenFileDialog(*this, "Select demo", filter, "", SeveralFilesFlags));
    if (chosen.empty()) {
        return;
    }
    playDemoFile_ = chosen.front();
    recordDemoRequested_ = false;
    playDemoRequested_ = true;
    RunQuickStart();
}

void MainWindow::RunQuickStart() {
    if (!ValidateSelection(true)) {
        return;
    }
    QuickStart start;
    start.engine = cmbEngines.ListIndex();
    start.gameWad = GameWadAt(cmbIWADs.ListIndex()).file;
    start.skill = cmbSkill.ListIndex();
    start.noMonsters = chkNoMonsters.Checked();
    start.fastMonsters = chkFastMonsters.Checked();
    start.respawnMonsters = chkRespawnMonsters.Checked();
    start.map = cmbMaps.Text();
    start.recordTo = recordDemoRequested_ ? frmDemoSave.DemoFileName : std::string();
    start.playFrom = playDemoRequested_ ? playDemoFile_ : std::string();
    start.parameters = txtParameters.Text();
    std::string program = ProgramFile(EngineAt(start.engine));
    if (RunProgram(program, QuickStartCommandLine(start, FileList), ShowNormally,
                   recordDemoRequested_) == 0) {
        Warn(RunFailed);
    }
}
