// zorvane_tour PART FOLDER PICTURES: the program, driven by its own widgets. PART is `journey`
// (from the first start to a recorded game), `return` (the next start), or the name of a look whose
// windows are pictured. It ends with its Exit button, and succeeds if every step was as expected.
#include "tour.h"

#include <QComboBox>
#include <QCursor>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "driver.h"
#include "launch/demo_save.h"
#include "mainwindow/application.h"
#include "mainwindow/main_window.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"
#include "state/startup.h"
#include "toolkit/qt/native_windows.h"
#include "wad/wad.h"

namespace {

using namespace tour;

const std::string Phase1 = "/usr/share/games/doom/freedoom1.wad";
const std::string Phase2 = "/usr/share/games/doom/freedoom2.wad";

std::string Wads(const std::string& name) {
    return folder + "/wads/" + name;
}

/// Makes a WAD with a map of the game, its text file, a patch, and an engine that ends at once
/// without a demo.
void MakePlayersFiles() {
    constexpr int LumpsOfMap = 11;
    std::string kind = "PWAD";
    clsWad game;
    clsWad own;
    std::filesystem::create_directory(Wads(""));
    game.OpenWad("Z:" + Phase1);
    Check(own.CreateWad(Wads("castle.wad"), kind).ok, "a new WAD");
    for (int lump = game.NumForName("E1M3"), i = 0; i < LumpsOfMap; ++i, ++lump) {
        Check(own.AddLump(game.LumpName(lump), game.ReadLumpString(lump)).ok, "a lump");
    }
    Check(own.WriteDirectory().ok, "a directory");
    std::ofstream(Wads("castle.txt")) << "A castle.\n";
    std::ofstream(Wads("patch.deh")) << "Patch File for DeHackEd v3.0\n";
    std::filesystem::create_directory(folder + "/ports/doomretro");
    std::filesystem::create_symlink("/bin/true", folder + "/ports/doomretro/doomretro");
}

int RowOf(const toolkit::Control& list, const std::string& start) {
    const auto rows = driver::ShownItems(list);
    const auto found =
        std::ranges::find_if(rows, [&](auto& row) { return row.starts_with(start); });
    return static_cast<int>(found - rows.begin());
}

void Choose(toolkit::ItemControl& list, const std::string& name) {
    driver::Choose(list, RowOf(list, name));
}

/// Switches two options on in the next options dialog.
void SetOptionsNext(const std::string& picture) {
    driver::InNextModal([picture] {
        for (auto& box : frmEngineSettings.chkOptions) {
            const std::string caption = driver::ShownText(box);
            if (caption == "Run in a window" || caption == "No error message windows") {
                driver::Click(box);
            }
        }
        Picture(picture);
        driver::Press(frmEngineSettings, driver::Key::Enter);
    });
}

void SetUp() {
    Press(frmSetup.cmdAdd, {{.typed = Phase1, .picture = "add-game"},
                            {.shown = "Freedoom: Phase 1", .picture = "name-of-the-game"}});
    Press(frmSetup.cmdAdd, {{.typed = Phase2}, {.shown = "Freedoom: Phase 2"}});
    Press(frmSetup.cmdAdd, {{.typed = Wads("castle.wad")},
                            {.shown = "Please select a game", .picture = "patch-is-no-game"}});
    const std::tuple<std::string, const char*, std::string> engines[] = {
        {"Chocolate Doom", "chocolate-doom", ""},
        {"DSDA-Doom", "dsda-doom", ""},
        {"Doom Retro", "doomretro", "engine-folder"}};
    for (const auto& [name, program, picture] : engines) {
        driver::Choose(frmSetup.lvwEngines, RowOf(frmSetup.lvwEngines, name) + 1);
        Press(frmSetup.cmdPath, {{.typed = folder + "/ports/" + program, .picture = picture}});
    }
    SetOptionsNext("options-from-setup");
    driver::DoubleClick(frmSetup.lvwEngines, RowOf(frmSetup.lvwEngines, "Chocolate Doom") + 1);
    Picture("setup");
    driver::Click(frmSetup.cmdOK);
}

void ChooseFilesAndMap() {
    Press(frmMain.cmdAdd, {{.typed = "\"castle.wad\" \"patch.deh\"", .picture = "add-files"}});
    driver::Choose(frmMain.lstFiles, 0);
    driver::PointAt(frmMain.lstFiles, 0);
    Until([] { return QToolTip::text().toStdString() == Wads("castle.wad"); }, "a tooltip");
    Picture("tooltip-and-tip");

    QTimer::singleShot(300, [] {
        Picture("menu");
        driver::AtNextMenu(0);
    });
    QCursor::setPos(Front().mapToGlobal(QPoint(200, 250)));
    driver::RightClick(frmMain.lstFiles, 0);
    QCursor::setPos(0, 0);
    CheckEqual(driver::ShownText(frmMain.cmbMaps), "E1M3");
    Choose(frmMain.cmbIWADs, "Freedoom: Phase 2");
    Press(frmMain.cmdGetMapLump, {{.shown = "Warning: The map E1M3", .picture = "map-warning"}});
    Choose(frmMain.cmbIWADs, "Freedoom: Phase 1");
    auto& maps =
        static_cast<QComboBox&>(desktop::FindNative(&frmMain)->Find(frmMain.cmbMaps).Widget());
    maps.showPopup();
    Picture("maps");
    maps.hidePopup();
    driver::DoubleClick(frmMain.lstFiles, 0);
}

/// Runs one game with a WAD that clsWad wrote; the keyboard test runs more.
void RunGame() {
    Front().move(40, 140);
    driver::Click(frmMain.chkFastMonsters);
    driver::Type(frmMain.txtParameters, "-geometry 640x480");
    Choose(frmMain.cmbEngines, "Chocolate Doom");
    driver::Click(frmMain.cmdRun);
    WatchGame("chocolate-doom", "-window -nogui -file " + Wads("castle.wad") + " " +
                                    Wads("patch.deh") + " -iwad " + Phase1 +
                                    " -skill 3 -fast -warp 1 3 -geometry 640x480");
    Choose(frmMain.cmbEngines, "Doom Retro");
    Press(frmMain.cmdDemo, {{.shown = "Could not find the temporary", .picture = "no-demo"}});
    Choose(frmMain.cmbEngines, "Chocolate Doom");
}

/// Opens a dialog, takes a picture of it and closes it.
void Visit(toolkit::Button& opener, toolkit::Button& closer, const std::string& name,
           void (*takePicture)(const std::string&)) {
    driver::InNextModal([&, name] {
        takePicture(name);
        driver::Click(closer);
    });
    driver::Click(opener);
}

void Journey() {
    Picture("first-run");
    MakePlayersFiles();
    Press(frmMain.cmdLaunch, {{.shown = "Please select an engine", .picture = "no-engine-chosen"}});
    driver::InNextModal(SetUp);
    driver::Click(frmMain.cmdSetup);
    Choose(frmMain.cmbEngines, "DSDA-Doom");
    SetOptionsNext("options");
    driver::Click(frmMain.cmdSettings);
    Choose(frmMain.cmbIWADs, "Freedoom: Phase 1");
    ChooseFilesAndMap();
    RunGame();
    Visit(frmMain.cmdAbout, frmCredits.cmdOK, "about", Picture);
    Picture("before-exit");
}

void Play(const std::string& part) {
    if (part == "journey") {
        Journey();
    } else if (part == "return") {
        Picture("the-day-after");
        CheckEqual(driver::ShownText(frmMain.cmbMaps), "E1M3");
        CheckEqual(driver::ShownItems(frmMain.lstFiles)[0], Wads("castle.wad"));
    } else {
        Portrait(part + "-main");
        Visit(frmMain.cmdSettings, frmEngineSettings.cmdAccept, part + "-options", Portrait);
        Visit(frmMain.cmdSetup, frmSetup.cmdOK, part + "-setup", Portrait);
        Visit(frmMain.cmdAbout, frmCredits.cmdOK, part + "-about", Portrait);
        driver::InNextModal([&] {
            Portrait(part + "-save-demo");
            frmDemoSave.UserCloses();
        });
        frmDemoSave.ShowModal();
    }
    driver::Click(frmMain.cmdExit);
}

}  // namespace

int main(int /*argumentCount*/, char** arguments) {
    desktop::StartDesktop();
    folder = arguments[2];
    pictureFolder = arguments[3];
    ConnectApplication();
    Main();
    QTimer::singleShot(80'000, [] { Check(false, "the tour ends in time"); });
    QTimer::singleShot(0, [=] { Play(arguments[1]); });
    return desktop::RunEventLoop() + 1;
}
