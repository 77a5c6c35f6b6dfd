// From an empty program directory to a recorded game, and the day after.
#include <QComboBox>
#include <QCursor>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "driver.h"
#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"
#include "tour.h"
#include "wad/wad.h"

namespace tour {
namespace {

const std::string gamesFolder = "/usr/share/games/doom/";
const std::string phase1 = gamesFolder + "freedoom1.wad";
const std::string phase2 = gamesFolder + "freedoom2.wad";

/// Where the game shows, beside the window.
constexpr int windowX = 40;
constexpr int gameX = 740;
constexpr int topY = 140;

/// A player's own WAD with a map of the game, a text beside it, and a patch.
void MakePlayersFiles(const std::string& folder) {
    constexpr int lumpsOfMap = 11;
    std::string kind = "PWAD";
    clsWad game;
    clsWad own;
    std::filesystem::create_directory(folder);
    game.OpenWad("Z:" + phase1);
    own.CreateWad(folder + "/castle.wad", kind);
    const int map = game.NumForName("E1M3");
    for (int i = map; i < map + lumpsOfMap; ++i) {
        Check(!!own.AddLump(game.LumpName(i), game.ReadLumpString(i)), "a map of the game");
    }
    Check(!!own.WriteDirectory(), "a WAD of the player's own");
    std::ofstream(folder + "/castle.txt") << "A castle.\n";
    std::ofstream(folder + "/patch.deh") << "Patch File for DeHackEd v3.0\n";
}

int RowOf(const toolkit::Control& list, const std::string& start) {
    const auto items = driver::ShownItems(list);
    const auto found = std::ranges::find_if(
        items, [&](const std::string& item) { return item.starts_with(start); });
    Check(found != items.end(), start + " in the list");
    return static_cast<int>(found - items.begin());
}

void Choose(toolkit::ItemControl& list, const std::string& name) {
    driver::Choose(list, RowOf(list, name));
    CheckEqual(driver::ShownText(list).substr(0, name.size()), name);
}

void SetUpEngine(const std::string& name, const std::string& folder) {
    driver::Choose(frmSetup.lvwEngines, RowOf(frmSetup.lvwEngines, name) + 1);
    NextFile(folder, name == "Doom Retro" ? "engine-folder" : "");
    driver::Click(frmSetup.cmdPath);
    RowOf(frmSetup.lvwEngines, name + "|" + folder + "/");
}

void SetOptions(const std::vector<std::string>& captions, const std::string& picture) {
    driver::InNextModal([=] {
        for (const std::string& caption : captions) {
            const auto box = std::ranges::find_if(
                frmEngineSettings.chkOptions,
                [&](const auto& option) { return driver::ShownText(*option) == caption; });
            Check(box != frmEngineSettings.chkOptions.end(), caption);
            driver::Click(**box);
        }
        Picture(picture);
        driver::PressEnter(frmEngineSettings);
    });
}

void SetUpFromNothing(const std::string& folder) {
    NextFile(phase1, "add-game");
    NextText("Freedoom: Phase 1", "", "name-of-the-game");
    driver::Click(frmSetup.cmdAdd);
    NextFile(phase2);
    NextText("Freedoom: Phase 2", "");
    driver::Click(frmSetup.cmdAdd);
    NextFile(folder + "/wads/castle.wad");
    NextMessage("Please select a game IWAD.", "patch-is-no-game");
    driver::Click(frmSetup.cmdAdd);

    SetUpEngine("Chocolate Doom", folder + "/ports/chocolate-doom");
    SetUpEngine("DSDA-Doom", folder + "/ports/dsda-doom");
    SetUpEngine("Doom Retro", folder + "/ports/doomretro");
    SetOptions({"Run in a window", "No error message windows"}, "options-from-setup");
    driver::DoubleClick(frmSetup.lvwEngines, RowOf(frmSetup.lvwEngines, "Chocolate Doom") + 1);
    Picture("setup");
    driver::Click(frmSetup.cmdOK);
}

void FirstRun(const std::string& folder) {
    Picture("first-run");
    CheckEqual(driver::ShownText(frmMain.cmbSkill), "Hurt me plenty. (3)");
    NextMessage("Please select an engine", "no-engine-chosen");
    driver::Click(frmMain.cmdLaunch);
    driver::InNextModal([&] { SetUpFromNothing(folder); });
    driver::Click(frmMain.cmdSetup);
    Choose(frmMain.cmbEngines, "DSDA-Doom");
    SetOptions({"Run in a window", "No error message windows"}, "options");
    driver::Click(frmMain.cmdSettings);
    Choose(frmMain.cmbIWADs, "Freedoom: Phase 1");
}

void AddFiles(const std::string& folder) {
    NextFile("\"castle.wad\" \"patch.deh\"", "add-files");
    driver::Click(frmMain.cmdAdd);
    Check(driver::ShownItems(frmMain.lstFiles) ==
              std::vector<std::string>{folder + "/wads/castle.wad", folder + "/wads/patch.deh"},
          "two files in the list");
    driver::Choose(frmMain.lstFiles, 1);
    Check(!driver::ShownEnabled(frmMain.cmdShowTextFile), "no text to a patch");
    driver::Choose(frmMain.lstFiles, 0);
    Check(driver::ShownEnabled(frmMain.cmdShowTextFile), "a text to the castle");
    driver::PointAt(frmMain.lstFiles, 0);
    Until([] { return QToolTip::isVisible(); }, "a tooltip");
    CheckEqual(QToolTip::text().toStdString(), folder + "/wads/castle.wad");
    Picture("tooltip-and-tip");
}

void UseFirstMap() {
    QTimer::singleShot(300, [] {
        Picture("menu");
        driver::AtNextMenu(0);
    });
    QCursor::setPos(Front().mapToGlobal(QPoint(200, 250)));
    driver::RightClick(frmMain.lstFiles, 0);
    QCursor::setPos(0, 0);
    CheckEqual(driver::ShownText(frmMain.cmbMaps), "E1M3");
    Choose(frmMain.cmbIWADs, "Freedoom: Phase 2");
    NextMessage("Warning: The map E1M3 does not appear", "map-warning");
    driver::DoubleClick(frmMain.lstFiles, 0);
    Choose(frmMain.cmbIWADs, "Freedoom: Phase 1");
    auto* maps = Front().findChild<QComboBox*>("cmbMaps");
    Check(maps != nullptr, "the main window in front");
    maps->showPopup();
    Picture("maps");
    maps->hidePopup();
    driver::Click(frmMain.cmdGetMapLump);
    CheckEqual(driver::ShownText(frmMain.cmbMaps), "E1M3");
}

std::string QuickStart(const std::string& folder) {
    return "-file " + folder + "/wads/castle.wad " + folder + "/wads/patch.deh -iwad " + phase1 +
           " -skill 3 -fast -warp 1 3 ";
}

/// Looks at a game in its window until the picture is taken.
void LookAtGame(const std::string& program, const std::string& arguments,
                const std::string& picture) {
    const Game game(program);
    CheckEqual(game.Arguments(), arguments);
    CheckEqual(game.Folder(), std::filesystem::path(program).parent_path());
    game.ShowAt(gameX, topY);
    driver::PointAt(frmMain.cmdRun);
    CheckEqual(driver::ShownText(frmMain.lblTip).substr(0, 20), "Quick Start the game");
    Picture(picture);
}

void Play(const std::string& folder) {
    const std::string chocolate = folder + "/ports/chocolate-doom/chocolate-doom";
    Front().move(windowX, topY);
    driver::Click(frmMain.chkFastMonsters);
    driver::Type(frmMain.txtParameters, "-complevel 9");
    driver::Click(frmMain.cmdRun);
    LookAtGame(folder + "/ports/dsda-doom/dsda-doom",
               "-window -no_message_box " + QuickStart(folder) + "-complevel 9", "run-dsda-doom");

    Choose(frmMain.cmbEngines, "Chocolate Doom");
    driver::Type(frmMain.txtParameters, "-geometry 640x480");
    driver::Click(frmMain.cmdRun);
    LookAtGame(chocolate, "-window -nogui " + QuickStart(folder) + "-geometry 640x480",
               "run-chocolate-doom");
    driver::Click(frmMain.cmdLaunch);
    LookAtGame(chocolate, "-window -nogui -iwad " + phase1, "launch");
}

void WatchRecording(const std::string& folder) {
    Game game(folder + "/ports/chocolate-doom/chocolate-doom");
    CheckEqual(game.Arguments(), "-window -nogui " + QuickStart(folder) + "-record " + folder +
                                     "/ports/chocolate-doom/temp -geometry 640x480 -maxdemo 1");
    game.ShowAt(gameX, topY);
    driver::PointAt(frmMain.cmdExit);
    CheckEqual(driver::ShownText(frmMain.lblTip), "Exit Zorvane.");
    Picture("recording");
    game.Leave();
}

void SaveDemo(const std::string& target) {
    Picture("save-demo");
    NextFile(target, "name-of-the-demo");
    driver::Click(frmDemoSave.cmdBrowse);
    CheckEqual(driver::ShownText(frmDemoSave.txtDemoFile), target + ".lmp");
    driver::Click(frmDemoSave.cmdSave);
}

void RecordAndPlayBack(const std::string& folder) {
    const std::string demo = folder + "/wads/first run";
    driver::Type(frmMain.txtParameters, "-geometry 640x480 -maxdemo 1");
    QTimer::singleShot(0, [&] { WatchRecording(folder); });
    driver::InNextModal([&] { SaveDemo(demo); });
    driver::Click(frmMain.cmdDemo);
    std::string header(7, '\0');
    std::ifstream(demo + ".lmp", std::ios::binary).read(header.data(), 7);
    const std::string skill3Map13Fast("\x6d\x02\x01\x03\0\0\x01", 7);
    header[6] = header[6] != 0 ? '\x01' : '\0';
    CheckEqual(header, skill3Map13Fast);
    Check(!std::filesystem::exists(folder + "/ports/chocolate-doom/temp.lmp"), "demo filed away");

    driver::Type(frmMain.txtParameters, "-geometry 640x480");
    NextFile(demo + ".lmp", "choose-demo");
    driver::Click(frmMain.cmdPlayBack);
    LookAtGame(
        folder + "/ports/chocolate-doom/chocolate-doom",
        "-window -nogui " + QuickStart(folder) + "-playdemo " + demo + ".lmp -geometry 640x480",
        "playback");

    Choose(frmMain.cmbEngines, "Doom Retro");
    NextMessage("Could not find the temporary demo file.", "no-demo");
    driver::Click(frmMain.cmdDemo);
    Choose(frmMain.cmbEngines, "Chocolate Doom");
}

}  // namespace

void Journey(const std::string& folder) {
    MakePlayersFiles(folder + "/wads");
    // An engine that starts, plays nothing and leaves no demo.
    std::filesystem::create_directory(folder + "/ports/doomretro");
    std::filesystem::create_symlink("/bin/true", folder + "/ports/doomretro/doomretro");
    FirstRun(folder);
    AddFiles(folder);
    UseFirstMap();
    Play(folder);
    RecordAndPlayBack(folder);
    driver::InNextModal([] {
        Picture("about");
        driver::Click(frmCredits.cmdOK);
    });
    driver::Click(frmMain.cmdAbout);
    Picture("before-exit");
    driver::Click(frmMain.cmdExit);
}

void Return(const std::string& folder) {
    Picture("the-day-after");
    CheckEqual(driver::ShownText(frmMain.cmbEngines), "Chocolate Doom");
    CheckEqual(driver::ShownText(frmMain.cmbIWADs), "Freedoom: Phase 1");
    CheckEqual(driver::ShownText(frmMain.cmbMaps), "E1M3");
    CheckEqual(driver::ShownText(frmMain.txtParameters), "-geometry 640x480");
    CheckEqual(driver::ShownItems(frmMain.lstFiles)[0], folder + "/wads/castle.wad");
    Check(driver::ShownChecked(frmMain.chkFastMonsters), "fast monsters");
    driver::PressEscape(frmMain);
}

void Looks(const std::string& look) {
    const auto show = [&look](toolkit::Button& opener, toolkit::Button& closer,
                              const std::string& name) {
        driver::InNextModal([&look, &closer, name] {
            Portrait(look + "-" + name);
            driver::Click(closer);
        });
        driver::Click(opener);
    };
    Portrait(look + "-main");
    show(frmMain.cmdSettings, frmEngineSettings.cmdAccept, "options");
    show(frmMain.cmdSetup, frmSetup.cmdOK, "setup");
    show(frmMain.cmdAbout, frmCredits.cmdOK, "about");
    driver::Click(frmMain.cmdExit);
}

}  // namespace tour
