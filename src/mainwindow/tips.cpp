// The line at the bottom of the window that says what the control under the pointer does.
#include "mainwindow/main_window.h"

void MainWindow::ConnectTips() {
    const struct {
        toolkit::Control& control;
        const char* tip;
    } rows[] = {
        {framQuickStart, ""},
        {cmdLaunch, "Launch the engine with the selected game."},
        {cmdSetup, "Setup your game WADs, engines and preferences."},
        {cmdAbout, "About Zorvane."},
        {cmdExit, "Exit Zorvane."},
        {cmdAdd, "Add a file to the file list."},
        {cmdRemove, "Remove the selected file(s) from the file list."},
        {cmdClear, "Clear the entire file list."},
        {cmdGetMapLump, "Use the lowest available map in the selected WAD file."},
        {cmdShowTextFile, "Display the accompanying text file of the selected WAD."},
        {txtParameters,
         "The additional command line parameters that will be used for this Quick Start session."},
        {chkNoMonsters, "Quick Start without any monsters at all."},
        {chkFastMonsters, "Quick Start with fast monster behaviour."},
        {chkRespawnMonsters, "Quick Start with monsters that will respawn after they have died."},
        {chkDeathmatch, "Quick Start in deathmatch mode."},
        {cmdDemo, "Quick Start the game and record a demo of it."},
        {cmdPlayBack, "Play back a demo with the current Quick Start settings."},
        {cmdRun, "Quick Start the game with the selected files, parameters, map and skill level."},
    };
    for (const auto& row : rows) {
        row.control.OnPointerMoved = [this, tip = row.tip](double, double) { ShowTip(tip); };
    }
    OnPointerMoved = [this] { ShowTip(""); };
    cmdSettings.OnPointerMoved = [this](double, double) {
        ShowTip("Adjust " + cmbEngines.Text() + "'s options.");
    };
    lstFiles.OnPointerMoved = [this](double x, double y) { PointerOverFiles(x, y); };
}

void MainWindow::ShowTip(const std::string& tip) {
    lblTip.SetCaption(tip);
}

void MainWindow::PointerOverFiles(double x, double y) {
    ShowTip("The list of additional files that will be used for this Quick Start session.");
    const int row = ListItemAt(lstFiles, x, y);
    if (row >= 0) {
        lstFiles.SetToolTip(lstFiles.List(row));
    }
}
