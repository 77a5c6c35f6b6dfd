// drive_zorvane FOLDER [PICTURES]: goes through the real zorvane.exe of a fresh program directory
// from outside, from its first run to its second, and checks what an engine receives.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "platform/win32/text.h"
#include "remote.h"
#include "session.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"

namespace {

using namespace remote;
namespace fs = std::filesystem;

std::string folder;        // the program directory
std::string engineFolder;  // the one of the only engine that is there

/// The standard library takes narrow paths for anything but UTF-8.
fs::path Native(const std::string& file) {
    return platform::Wide(file);
}

std::string Read(const std::string& file) {
    std::ifstream stream(Native(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string Write(const std::string& name, const std::string& bytes) {
    std::string file = folder + "\\" + name;
    fs::create_directories(Native(file).parent_path());
    std::ofstream(Native(file), std::ios::binary) << bytes;
    return file;
}

/// What the engine was given, taken away so that the next start writes it anew.
std::string TakeReceived() {
    const std::string file = engineFolder + "\\received.txt";
    WaitUntil([&] { return fs::exists(file); }, "the engine to start");
    const std::string text = Read(file);
    fs::remove(file);
    const std::size_t end = text.find('\n');
    CheckEqual(text.substr(end + 1), engineFolder + "\n", "the engine runs in its own folder");
    return text.substr(0, end);
}

/// The main window with its controls by name.
struct MainControls {
    HWND window = WaitForOurs("Zorvane");
    HWND operator[](const toolkit::Control& control) const { return ControlIn(window, control); }
};

void AddGameWad(HWND setup) {
    const HWND add = ControlIn(setup, frmSetup.cmdAdd);
    Press(add);
    AnswerFileDialog("Please select a game WAD", "");
    Press(add);
    AnswerFileDialog("Please select a game WAD",
                     Write("wads\\patch.wad", MapWad("PWAD", {"E1M3"})));
    CheckEqual(AnswerMessage(), "Please select a game IWAD. The file you selected was a patch WAD.",
               "a patch WAD is refused");
    Press(add);
    AnswerFileDialog("Please select a game WAD", Write("wads\\Game \xc3\xa9\\doom1.wad",
                                                       MapWad("IWAD", {"E1M1", "E1M2", "E1M3"})));
    const HWND box = WaitForOurs("Enter a name");
    const HWND field = FindWindowExW(box, nullptr, L"Edit", nullptr);
    Check(!TextOf(field).empty(), "a known game WAD comes with a name: " + TextOf(field));
    TakePicture(box, "input-box");
    Type(field, "My Game \xc3\xa9");
    Press(FindWindowExW(box, nullptr, L"Button", L"OK"));
    WaitUntilGone(box);
}

void SetUp(const MainControls& main) {
    Press(main[frmMain.cmdSetup]);
    const HWND setup = WaitForOurs("Program setup");
    Check(!IsWindowEnabled(main.window), "a dialog blocks its opener");
    AddGameWad(setup);
    ChooseRow(ControlIn(setup, frmSetup.lvwEngines), 0);
    Press(ControlIn(setup, frmSetup.cmdPath));
    AnswerFolderDialog(engineFolder);
    TakePicture(setup, "setup");
    Press(ControlIn(setup, frmSetup.cmdEngineSettings));
    const HWND options = WaitForOurs("Engine settings of Chocolate Doom");
    const HWND preview = ControlIn(options, frmEngineSettings.lblParameters);
    Press(ControlIn(options, *frmEngineSettings.chkOptions[4]));
    Press(ControlIn(options, *frmEngineSettings.chkOptions[0]));
    WaitUntil([&] { return TextOf(preview) == "-nosound -window"; }, "the preview of the options");
    TakePicture(options, "engine-settings");
    Press(ControlIn(options, frmEngineSettings.cmdAccept));
    WaitUntilGone(options);
    Press(ControlIn(setup, frmSetup.cmdOK));
    WaitUntilGone(setup);
}

void ChooseFiles(const MainControls& main) {
    const char* title = "Please select the WAD file you want to add";
    const std::string castle = Write("wads\\castle.wad", MapWad("PWAD", {"E1M2"}));
    Write("wads\\castle.txt", "About the castle");
    Press(main[frmMain.cmdAdd]);
    AnswerFileDialog(title, castle);
    Write("wads\\a b.deh", "");
    Press(main[frmMain.cmdAdd]);
    AnswerFileDialog(title, "\"a b.deh\" \"patch.wad\"");
    const HWND list = main[frmMain.lstFiles];
    WaitUntil([&] { return RowsOf(list).size() == 3; }, "three files in the list");
    CheckEqual(RowsOf(list)[0], castle, "the path of the first file");
    Check(!IsWindowEnabled(main[frmMain.cmdGetMapLump]), "no file is selected yet");
    ChooseRow(list, 0);
    Check(IsWindowEnabled(main[frmMain.cmdGetMapLump]) != 0, "a selected WAD has maps to offer");
    Check(IsWindowEnabled(main[frmMain.cmdShowTextFile]) != 0, "and its text file");
    Release(list, WM_RBUTTONUP, 20, 8);
    const HWND menu = WaitForWindow(L"#32768", "");
    TakePicture(main.window, "menu");
    PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 1);
    WaitUntil([&] { return TextOf(main[frmMain.cmbMaps]) == "E1M2"; }, "the first map of the WAD");
}

void ChooseGame(const MainControls& main) {
    ChooseRow(main[frmMain.cmbEngines], 0);
    ChooseRow(main[frmMain.cmbIWADs], 0);
    ChooseFiles(main);
    ChooseRow(main[frmMain.cmbSkill], 3);
    Press(main[frmMain.chkFastMonsters]);
    Press(main[frmMain.chkDeathmatch]);
    Type(main[frmMain.txtParameters], "-turbo 120  ");
}

std::string ExpectedLine(const std::string& demo) {
    const std::string wads = folder + "\\wads\\";
    return "-nosound -window -file \"" + wads + "castle.wad\" \"" + wads + "a b.deh\" \"" + wads +
           "patch.wad\"  -iwad \"" + wads + "Game \xc3\xa9\\doom1.wad\" -skill 4 -fast -warp 1 2 " +
           demo + " -turbo 120  ";
}

void RunGames(const MainControls& main) {
    Press(main[frmMain.cmdRun]);
    CheckEqual(TakeReceived(), ExpectedLine(""), "Run");

    Write("port\\hold.txt", "");
    Press(main[frmMain.cmdDemo]);
    CheckEqual(TakeReceived(), ExpectedLine("-record \"" + engineFolder + "\\temp\""), "Record");
    Press(main[frmMain.chkRespawnMonsters]);
    Press(main[frmMain.chkRespawnMonsters]);
    Check(TextOf(main[frmMain.cmdDemo]) == "Record" && IsWindowEnabled(main.window),
          "the window is alive while the game runs");
    fs::remove(engineFolder + "\\hold.txt");
    const HWND save = WaitForOurs("Save demo");
    const std::string demo = folder + "\\wads\\first.lmp";
    Type(ControlIn(save, frmDemoSave.txtDemoFile), demo);
    TakePicture(save, "demo-save");
    Press(ControlIn(save, frmDemoSave.cmdSave));
    WaitUntilGone(save);
    CheckEqual(Read(demo), "demo of " + engineFolder + "\\temp", "the demo is saved");
    Check(!fs::exists(engineFolder + "\\temp.lmp"), "and no longer in the engine's folder");

    Press(main[frmMain.cmdPlayBack]);
    AnswerFileDialog("Select demo", demo);
    CheckEqual(TakeReceived(), ExpectedLine("-playdemo \"" + demo + "\""), "Playback");
}

void ReadCredits(const MainControls& main) {
    Press(main[frmMain.cmdAbout]);
    const HWND credits = WaitForOurs("Zorvane credits");
    TakePicture(credits, "credits");
    PostMessageW(ControlIn(credits, frmCredits.cmdOK), WM_KEYDOWN, VK_ESCAPE, 1);
    WaitUntilGone(credits);
    Check(IsWindowEnabled(main.window) != 0, "the opener takes input again");
}

void FirstRun() {
    std::cout << "First run" << std::endl;
    Program zorvane(folder + "\\zorvane.exe", "");
    const MainControls main;
    Check(fs::exists(folder + "\\zorvane.cfg"), "the default settings are there at once");
    CheckEqual(TextOf(main[frmMain.lblVersion]), "Version 1.0 build 61", "the version line");
    TakePicture(main.window, "main-first-run");
    Press(main[frmMain.cmdRun]);
    CheckEqual(AnswerMessage(), "Please select an engine to launch the game with.",
               "nothing is selected");
    SetUp(main);
    ChooseGame(main);
    TakePicture(main.window, "main");
    RunGames(main);
    ReadCredits(main);
    Press(main[frmMain.cmdExit]);
    Check(zorvane.End() == 0, "Exit ends the program");
}

void SecondRun() {
    std::cout << "Second run" << std::endl;
    const std::string settings = Read(folder + "\\zorvane.cfg");
    Program zorvane(folder + "\\zorvane.exe", "");
    const MainControls main;
    Check(RowsOf(main[frmMain.lstFiles]).size() == 3, "the files are back");
    Check(RowChosenIn(main[frmMain.cmbSkill]) == 3 && IsChecked(main[frmMain.chkDeathmatch]),
          "skill and boxes are back");
    Press(main[frmMain.cmdRun]);
    const std::string line = TakeReceived();
    CheckEqual(line, ExpectedLine(""), "Run gives the same command line");
    Write("line.txt", line);
    PostMessageW(main.window, WM_SYSCOMMAND, SC_CLOSE, 0);
    Check(zorvane.End() == 0, "closing the window ends the program");
    CheckEqual(Read(folder + "\\zorvane.cfg"), settings, "the settings are the same bytes");
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 2) {
        std::cout << "usage: drive_zorvane FOLDER [PICTURES]\n";
        return 2;
    }
    folder = arguments[1];
    engineFolder = folder + "\\port";
    PutPicturesInto(argumentCount > 2 ? arguments[2] : "");
    try {
        FirstRun();
        SecondRun();
    } catch (const std::exception& fault) {
        Check(false, fault.what());
    }
    std::cout << (Failures() == 0 ? "All right" : "Some checks failed") << std::endl;
    return Failures() == 0 ? 0 : 1;
}
