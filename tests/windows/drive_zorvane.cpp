// drive_zorvane FOLDER PICTURES: goes through the real zorvane.exe of a fresh program directory
// from outside, from its first run to its second, and checks what an engine receives.
#include <filesystem>
#include <fstream>
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

std::string folder;  // the program directory; the only engine that is there lies in port

/// The standard library takes narrow paths for anything but UTF-8.
fs::path Native(const std::string& name) {
    return platform::Wide(folder + "\\" + name);
}

std::string Read(const std::string& name) {
    std::ifstream stream(Native(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Gives the path of the new file.
std::string Write(const std::string& name, const std::string& bytes) {
    fs::create_directories(Native(name).parent_path());
    std::ofstream(Native(name), std::ios::binary) << bytes;
    return folder + "\\" + name;
}

std::string ExpectedLine(const std::string& demo = "") {
    const std::string wads = folder + "\\wads\\";
    return "-nosound -window -file \"" + wads + "castle.wad\" \"" + wads + "a b.deh\" \"" + wads +
           "patch.wad\"  -iwad \"" + wads + "Game \xc3\xa9\\doom1.wad\" -skill 4 -fast -warp 1 2 " +
           demo + " -turbo 120  ";
}

/// Checks what the engine was given and where it runs, and takes that away for the next start.
void CheckReceived(const std::string& line, const std::string& what) {
    WaitUntil([&] { return fs::exists(Native("port\\received.txt")); }, "the engine to start");
    CheckEqual(Read("port\\received.txt"), line + "\n" + folder + "\\port", what);
    fs::remove(Native("port\\received.txt"));
}

/// Has 94 characters to Windows, but more than 256 bytes.
std::string TooLongName() {
    std::string name;
    for (int i = 0; i < 90; ++i) {
        name += i == 40 ? "\\" : "\xe6\xbc\xa2";
    }
    return name + ".wad";
}

void AddGameWad() {
    const std::string title = "Please select a game WAD";
    Press(Find(frmSetup.cmdAdd));
    AnswerFileDialog(title, "");
    Press(Find(frmSetup.cmdAdd));
    AnswerFileDialog(title, Write("wads\\patch.wad", MapWad("PWAD", {"E1M3"})));
    CheckMessage("Please select a game IWAD. The file you selected was a patch WAD.");
    Press(Find(frmSetup.cmdAdd));
    AnswerFileDialog(title, Write(TooLongName(), MapWad("IWAD", {"E1M1"})));
    Press(Find(frmSetup.cmdAdd));
    AnswerFileDialog(
        title, Write("wads\\Game \xc3\xa9\\doom1.wad", MapWad("IWAD", {"E1M1", "E1M2", "E1M3"})));
    const HWND box = Find("Enter a name");
    const HWND field = FindWindowExW(box, nullptr, L"Edit", nullptr);
    Check(!TextOf(field).empty(), "a known game WAD comes with a name: " + TextOf(field));
    TakePicture(box, "input-box");
    Type(field, "My Game \xc3\xa9");
    Press(FindWindowExW(box, nullptr, L"Button", L"OK"));
}

void SetUp() {
    const HWND main = Find("Zorvane");
    Press(Find(frmMain.cmdSetup));
    Find("Program setup");
    Check(!IsWindowEnabled(main), "a dialog blocks its opener");
    AddGameWad();
    ChooseRow(Find(frmSetup.lvwEngines), 0);
    Press(Find(frmSetup.cmdPath));
    AnswerFolderDialog(folder + "\\port");
    TakePicture(Find("Program setup"), "setup");
    const auto style = GetWindowLongPtrW(Find(frmSetup.cmdOK), GWL_STYLE);
    Check((style & BS_TYPEMASK) == BS_PUSHBUTTON, "only the focused button has the default ring");
    Press(Find(frmSetup.cmdEngineSettings));
    frmEngineSettings.SetCaption("Engine settings of Chocolate Doom");
    Press(Find(frmEngineSettings.chkOptions[4]));
    Press(Find(frmEngineSettings.chkOptions[0]));
    WaitUntil([] { return TextOf(Find(frmEngineSettings.lblParameters)) == "-nosound -window"; },
              "the preview of the options");
    TakePicture(Find(frmEngineSettings.Caption()), "engine-settings");
    Press(Find(frmEngineSettings.cmdAccept));
    Press(Find(frmSetup.cmdOK));
}

void ChooseFiles() {
    constexpr LPARAM ByKeyboard = -1;
    const std::string title = "Please select the WAD file you want to add";
    Write("wads\\castle.txt", "About the castle");
    Write("wads\\a b.deh", "");
    Press(Find(frmMain.cmdAdd));
    AnswerFileDialog(title, Write("wads\\castle.wad", MapWad("PWAD", {"E1M2"})));
    Press(Find(frmMain.cmdAdd));
    AnswerFileDialog(title, "\"a b.deh\" \"patch.wad\"");
    const HWND list = Find(frmMain.lstFiles);
    WaitUntil([&] { return SendMessageW(list, LB_GETCOUNT, 0, 0) == 3; }, "three files");
    Check(!IsWindowEnabled(Find(frmMain.cmdGetMapLump)), "no file is selected yet");
    ChooseRow(list, 0);
    Check(IsWindowEnabled(Find(frmMain.cmdGetMapLump)), "a selected WAD has maps to offer");
    Check(IsWindowEnabled(Find(frmMain.cmdShowTextFile)), "and its text file");
    PostMessageW(Find("Zorvane"), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list), ByKeyboard);
    const HWND menu = Find("", L"#32768");
    TakePicture(Find("Zorvane"), "menu");
    PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 1);
    WaitUntil([] { return TextOf(Find(frmMain.cmbMaps)) == "E1M2"; }, "the first map of the WAD");
}

void RunGames() {
    Press(Find(frmMain.cmdRun));
    CheckReceived(ExpectedLine(), "Run");

    Write("port\\hold.txt", "");
    Press(Find(frmMain.cmdDemo));
    CheckReceived(ExpectedLine("-record \"" + folder + "\\port\\temp\""), "Record");
    Press(Find(frmMain.chkRespawnMonsters));
    Press(Find(frmMain.chkRespawnMonsters));
    CheckEqual(TextOf(Find(frmMain.cmdDemo)), "Record", "the window lives while the game runs");
    fs::remove(Native("port\\hold.txt"));
    const std::string demo = folder + "\\wads\\first.lmp";
    Type(Find(frmDemoSave.txtDemoFile), demo);
    TakePicture(Find("Save demo"), "demo-save");
    Press(Find(frmDemoSave.cmdSave));
    Press(Find(frmMain.cmdPlayBack));
    CheckEqual(Read("wads\\first.lmp"), "a demo", "the demo is saved");
    Check(!fs::exists(Native("port\\temp.lmp")), "and no longer in the engine's folder");
    AnswerFileDialog("Select demo", demo);
    CheckReceived(ExpectedLine("-playdemo \"" + demo + "\""), "Playback");
}

void FirstRun() {
    const HANDLE zorvane = Start(folder + "\\zorvane.exe");
    CheckEqual(TextOf(Find(frmMain.lblVersion)), ZORVANE_VERSION_LINE, "the version line");
    Check(fs::exists(Native("zorvane.cfg")), "the default settings are there at once");
    TakePicture(Find("Zorvane"), "main-first-run");
    Press(Find(frmMain.cmdRun));
    CheckMessage("Please select an engine to launch the game with.");
    SetUp();
    ChooseRow(Find(frmMain.cmbEngines), 0);
    ChooseRow(Find(frmMain.cmbIWADs), 0);
    ChooseFiles();
    ChooseRow(Find(frmMain.cmbSkill), 3);
    Press(Find(frmMain.chkFastMonsters));
    Press(Find(frmMain.chkDeathmatch));
    Type(Find(frmMain.txtParameters), "-turbo 120  ");
    TakePicture(Find("Zorvane"), "main");
    PostMessageW(Find(frmMain.cmbSkill), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    RunGames();
    Press(Find(frmMain.cmdAbout));
    TakePicture(Find("Zorvane credits"), "credits");
    PostMessageW(Find(frmCredits.cmdOK), WM_KEYDOWN, VK_TAB, 1);
    WaitUntil([] { return Focused() == Find(frmCredits.lblLinkCoder); }, "the focus on the link");
    PostMessageW(Find(frmCredits.cmdOK), WM_KEYDOWN, VK_ESCAPE, 1);
    Press(Find(frmMain.cmdExit));
    Check(ExitCode(zorvane) == 0, "Exit ends the program");
}

void SecondRun() {
    const std::string settings = Read("zorvane.cfg");
    // As if the files of the list were dropped on the program: Explorer quotes paths with spaces.
    const std::string wads = folder + "\\wads\\";
    const HANDLE zorvane =
        Start(folder + "\\zorvane.exe",
              wads + "castle.wad \"" + wads + "a b.deh\" gone.wad " + wads + "patch.wad");
    Check(SendMessageW(Find(frmMain.chkDeathmatch), BM_GETCHECK, 0, 0) == BST_CHECKED,
          "a box is back");
    Press(Find(frmMain.cmdRun));
    Write("line.txt", ExpectedLine());
    CheckReceived(ExpectedLine(), "Run passes the same command line");
    PostMessageW(Find("Zorvane"), WM_SYSCOMMAND, SC_CLOSE, 0);
    Check(ExitCode(zorvane) == 0, "closing the window ends the program");
    CheckEqual(Read("zorvane.cfg"), settings, "the settings are the same bytes");
}

}  // namespace

int main(int /*argumentCount*/, char** arguments) {
    folder = arguments[1];
    pictureFolder = arguments[2];
    try {
        FirstRun();
        SecondRun();
    } catch (const std::exception& fault) {
        Check(false, fault.what());
    }
    return failures == 0 ? 0 : 1;
}
