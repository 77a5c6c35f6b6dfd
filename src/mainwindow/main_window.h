// The window that the player works in: pick an engine and a game, fill the Quick Start frame, press
// a button.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/control.h"
#include "toolkit/lists.h"
#include "toolkit/menu.h"
#include "toolkit/window.h"

/// The controls are the state of the next launch. Each change goes into the settings at once, so
/// that the next start brings back the same window.
class MainWindow : public toolkit::Window {
  public:
    MainWindow();

    /// Fills the lists of engines and games again and restores their selection from the settings.
    void SetupLists();
    /// Shows FileList. Paths on the program's own command line take the place of the list first.
    void FillFileList();

    toolkit::Picture picTopTitle{*this, "picTopTitle"};
    toolkit::Picture shpFiller{*this, "shpFiller"};
    toolkit::Picture Image1{*this, "Image1"};
    toolkit::Label lblTitle{*this, "lblTitle"};
    toolkit::Label lblVersion{*this, "lblVersion"};
    toolkit::Label lblEngine{*this, "lblEngine"};
    toolkit::DropDownList cmbEngines{*this, "cmbEngines"};
    toolkit::Button cmdSettings{*this, "cmdSettings"};
    toolkit::Label lblIWAD{*this, "lblIWAD"};
    toolkit::DropDownList cmbIWADs{*this, "cmbIWADs"};
    toolkit::Button cmdLaunch{*this, "cmdLaunch"};
    toolkit::Button cmdSetup{*this, "cmdSetup"};
    toolkit::Button cmdAbout{*this, "cmdAbout"};
    toolkit::Button cmdExit{*this, "cmdExit"};
    toolkit::Frame framQuickStart{*this, "framQuickStart"};
    toolkit::Label lblFiles{*this, "lblFiles"};
    toolkit::ListBox lstFiles{*this, "lstFiles"};
    toolkit::Button cmdAdd{*this, "cmdAdd"};
    toolkit::Button cmdRemove{*this, "cmdRemove"};
    toolkit::Button cmdClear{*this, "cmdClear"};
    toolkit::Button cmdGetMapLump{*this, "cmdGetMapLump"};
    toolkit::Button cmdShowTextFile{*this, "cmdShowTextFile"};
    toolkit::Label lblParameters{*this, "lblParameters"};
    toolkit::TextBox txtParameters{*this, "txtParameters"};
    toolkit::Label lblMap{*this, "lblMap"};
    toolkit::ComboBox cmbMaps{*this, "cmbMaps"};
    toolkit::Label lblSkill{*this, "lblSkill"};
    toolkit::DropDownList cmbSkill{*this, "cmbSkill"};
    toolkit::CheckBox chkNoMonsters{*this, "chkNoMonsters"};
    toolkit::CheckBox chkFastMonsters{*this, "chkFastMonsters"};
    toolkit::CheckBox chkRespawnMonsters{*this, "chkRespawnMonsters"};
    toolkit::CheckBox chkDeathmatch{*this, "chkDeathmatch"};
    toolkit::Button cmdPlayBack{*this, "cmdPlayBack"};
    toolkit::Button cmdDemo{*this, "cmdDemo"};
    toolkit::Button cmdRun{*this, "cmdRun"};
    toolkit::Divider Frame1{*this, "Frame1"};
    toolkit::Label lblTip{*this, "lblTip"};

    toolkit::PopupMenu mnuFileList{"FileList"};
    toolkit::MenuItem itmUseFirstMap{mnuFileList, "Use first map"};
    toolkit::MenuItem itmViewText{mnuFileList, "View text file..."};

  private:
    void OnLoadWindow();  // main_window.cpp
    void MirrorControls();
    void GameWadChosen();
    void ShowSettings();

    void ConnectFileList();  // file_list.cpp
    void AddToFileList(std::string path);
    void TakeFilesFromCommandLine(std::string_view commandLine);
    void AddFiles();
    void RemoveFile();
    void ClearFiles();
    void UpdateFileControls();
    void FileListDoubleClicked();
    void FileListReleased(int button, double x, double y);
    std::string SelectedFile() const;
    std::string TextFileName(int Index) const;
    void ViewText();

    void FillMapList(const std::string& FileName, toolkit::ComboBox& Maps);  // map_list.cpp
    void UseFirstMap();

    bool ValidateSelection(bool CheckSkill);  // launching.cpp
    void Launch();
    void Run();
    void Record();
    void PlayBack();
    void RunQuickStart();

    void ConnectTips();  // tips.cpp
    void ShowTip(const std::string& tip);
    void PointerOverFiles(double x, double y);

    int SavedMapIndex = -1;
    bool RecordDemoRequested = false;
    bool PlayDemoRequested = false;
    std::string PlayDemoFile;
};

extern MainWindow frmMain;

/// The filter of the dialog that adds files, for an engine by its index, -1 for none.
std::string FileFilter(int engine);

/// Row of a list box under a point in units of pointer events, -1 where there is none.
int ListItemAt(const toolkit::ListBox& list, double X, double Y);
