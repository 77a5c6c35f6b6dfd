// The main window: pick an engine and a game, fill the Quick Start frame, press a button.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/control.h"
#include "toolkit/lists.h"
#include "toolkit/menu.h"
#include "toolkit/window.h"

/// Its controls are the state of the next launch. Those with a key are mirrored in the settings at
/// every change, so that the next start restores the window.
class MainWindow : public toolkit::Window {
  public:
    MainWindow();

    /// Fills the lists of engines and games again and restores their selection from the settings.
    void SetupLists();
    /// Shows FileList. If the program's command line names files, they first replace its content.
    void FillFileList();

    // clang-format off
    toolkit::Picture picTopTitle{*this, {.place = {0, 0, 376, 35}}};
    toolkit::Picture shpFiller{*this, {.place = {0, 0, 376, 35}, .picture = "title"}};
    toolkit::Picture Image1{*this, {.place = {9, 6, 25, 22}, .picture = "mark"}};
    toolkit::Label lblTitle{*this, {.place = {42, 6, 150, 22}, .flags = toolkit::Title}};
    toolkit::Label lblVersion{*this, {.place = {217, 20, 150, 10}, .flags = toolkit::Small}};

    toolkit::Label lblEngine{*this, {.caption = "Engine", .place = {9, 43, 32, 14}}};
    toolkit::DropDownList cmbEngines{*this, {
        .place = {42, 43, 169, 14}, .tab = 0, .access = 'E', .key = "engine", .label = &lblEngine}};
    toolkit::Button cmdSettings{*this, {
        .caption = "Settings...", .place = {216, 43, 54, 14}, .tab = 1, .access = 'T'}};
    toolkit::Label lblIWAD{*this, {.caption = "Game", .place = {9, 61, 32, 14}}};
    toolkit::DropDownList cmbIWADs{*this, {
        .place = {42, 61, 169, 14}, .tab = 2, .access = 'G', .key = "iwad", .label = &lblIWAD}};
    toolkit::Button cmdLaunch{*this, {
        .caption = "Launch", .place = {216, 61, 54, 14}, .tab = 3, .access = 'L',
        .tip = "Launch the engine with the selected game."}};
    toolkit::Button cmdSetup{*this, {
        .caption = "Setup...", .place = {284, 43, 40, 14}, .tab = 4, .access = 'S',
        .tip = "Setup your game WADs, engines and preferences."}};
    toolkit::Button cmdAbout{*this, {
        .caption = "About...", .place = {327, 43, 40, 14}, .tab = 5, .access = 'B',
        .tip = "About Zorvane."}};
    toolkit::Button cmdExit{*this, {
        .caption = "Exit", .place = {284, 61, 83, 14}, .tab = 6, .access = 'X',
        .flags = toolkit::Cancel,
        .tip = "Exit Zorvane."}};

    toolkit::Frame framQuickStart{*this, {
        .caption = "Quick Start", .place = {9, 81, 358, 177}, .tip = ""}};
    toolkit::Label lblFiles{*this, {.caption = "Additional files", .place = {19, 94, 219, 9}}};
    toolkit::ListBox lstFiles{*this, {
        .place = {19, 105, 219, 90}, .tab = 7, .access = 'I', .label = &lblFiles,
        .tip = "The list of additional files that will be used for this Quick Start session."}};
    toolkit::Button cmdGetMapLump{*this, {
        .place = {19, 200, 19, 14}, .tab = 8, .access = 'U', .picture = "map",
        .accessibleName = "Use first map",
        .tip = "Use the lowest available map in the selected WAD file."}};
    toolkit::Button cmdShowTextFile{*this, {
        .place = {42, 200, 19, 14}, .tab = 9, .access = 'V', .picture = "text",
        .accessibleName = "View text file",
        .tip = "Display the accompanying text file of the selected WAD."}};
    toolkit::Button cmdClear{*this, {
        .caption = "Clear", .place = {196, 200, 42, 14}, .tab = 10, .access = 'C',
        .tip = "Clear the entire file list."}};
    toolkit::Button cmdRemove{*this, {
        .caption = "Remove", .place = {150, 200, 42, 14}, .tab = 11, .access = 'O',
        .tip = "Remove the selected file(s) from the file list."}};
    toolkit::Button cmdAdd{*this, {
        .caption = "Add", .place = {104, 200, 42, 14}, .tab = 12, .access = 'A',
        .tip = "Add a file to the file list."}};
    toolkit::Label lblParameters{*this, {
        .caption = "Additional command line parameters", .place = {19, 223, 219, 9}}};
    toolkit::TextBox txtParameters{*this, {
        .place = {19, 234, 219, 14}, .tab = 13, .access = 'P', .key = "parameters",
        .label = &lblParameters,
        .tip = "The additional command line parameters that will be used for this Quick Start "
               "session."}};

    toolkit::Label lblMap{*this, {.caption = "Map", .place = {252, 94, 105, 9}}};
    toolkit::ComboBox cmbMaps{*this, {
        .place = {252, 105, 105, 14}, .tab = 14, .access = 'M', .key = "map", .label = &lblMap}};
    toolkit::Label lblSkill{*this, {.caption = "Skill level", .place = {252, 124, 105, 9}}};
    toolkit::DropDownList cmbSkill{*this, {
        .place = {252, 135, 105, 14}, .tab = 15, .access = 'K', .key = "skill",
        .label = &lblSkill}};
    toolkit::CheckBox chkNoMonsters{*this, {
        .caption = "No monsters", .place = {252, 154, 105, 10}, .tab = 16, .access = 'N',
        .key = "nomonsters",
        .tip = "Quick Start without any monsters at all."}};
    toolkit::CheckBox chkFastMonsters{*this, {
        .caption = "Fast monsters", .place = {252, 166, 105, 10}, .tab = 17, .access = 'F',
        .key = "fastmonsters",
        .tip = "Quick Start with fast monster behaviour."}};
    toolkit::CheckBox chkRespawnMonsters{*this, {
        .caption = "Respawning monsters", .place = {252, 178, 105, 10}, .tab = 18, .access = 'W',
        .key = "respawnmonsters",
        .tip = "Quick Start with monsters that will respawn after they have died."}};
    toolkit::CheckBox chkDeathmatch{*this, {
        .caption = "Deathmatch", .place = {252, 190, 105, 10}, .tab = 22, .access = 'H',
        .key = "deathmatch",
        .tip = "Quick Start in deathmatch mode."}};
    toolkit::Button cmdDemo{*this, {
        .caption = "Record", .place = {252, 206, 50, 14}, .tab = 19, .access = 'D',
        .tip = "Quick Start the game and record a demo of it."}};
    toolkit::Button cmdPlayBack{*this, {
        .caption = "Playback...", .place = {307, 206, 50, 14}, .tab = 20, .access = 'Y',
        .tip = "Play back a demo with the current Quick Start settings."}};
    toolkit::Button cmdRun{*this, {
        .caption = "Run", .place = {252, 226, 105, 22}, .tab = 21, .access = 'R',
        .flags = toolkit::Default | toolkit::Accent,
        .tip = "Quick Start the game with the selected files, parameters, map and skill level."}};

    toolkit::Divider Frame1{*this, {.place = {9, 264, 358, 1}}};
    toolkit::Label lblTip{*this, {.place = {9, 268, 358, 10}, .flags = toolkit::Quiet}};
    // clang-format on

    toolkit::PopupMenu mnuFileList{"FileList"};
    toolkit::MenuItem itmUseFirstMap{mnuFileList, "Use first map"};
    toolkit::MenuItem itmViewText{mnuFileList, "View text file..."};

  private:
    void LoadControls();  // main_window.cpp
    void GameWadChosen();
    void ShowSettings();
    void ShowTip(std::string_view tip);

    void ConnectFileList();  // file_list.cpp
    void AddToFileList(std::string path);
    void AddFiles();
    void RemoveFile();
    void ClearFiles();
    void UpdateFileControls();
    void FileListDoubleClicked();
    void FileListReleased(toolkit::MouseButton button, double x, double y);
    void PointerOverFiles(double x, double y);
    std::string SelectedFile() const;
    std::string TextFileName(int index) const;
    void ViewText();

    void FillMapList(const std::string& fileName, toolkit::ComboBox& maps);  // map_list.cpp
    void UseFirstMap();

    bool ValidateSelection(bool checkSkill);  // launching.cpp
    void Launch();
    void Run();
    void Record();
    void PlayBack();
    void RunQuickStart();

    int savedMapIndex_ = -1;
    bool recordDemoRequested_ = false;
    bool playDemoRequested_ = false;
    std::string playDemoFile_;
};

extern MainWindow frmMain;

/// Filter of the dialog that adds files, for the engine at an index, -1 for none.
std::string FileFilter(int engine);

/// Row of a list box under a point in pixels, -1 if there is none.
int ListItemAt(const toolkit::ListBox& list, double x, double y);
