// The setup dialog: the list of game WADs, and the folder of each engine.
#pragma once

#include <functional>

#include "toolkit/control.h"
#include "toolkit/lists.h"
#include "toolkit/window.h"

/// Edits GameWads and Engines directly; a change cannot be cancelled.
class SetupWindow : public toolkit::Window {
  public:
    SetupWindow();

    /// Fills both list views again. A selection keeps its row number, or falls back to row 1.
    void SetupLists();

    /// Runs when the user accepts or closes the dialog, before it is hidden.
    std::function<void()> OnAccepted;

    // clang-format off
    toolkit::Label lblIWADs{*this, {.caption = "Game WADs", .place = {9, 8, 200, 9}, .tab = 8}};
    toolkit::ListView lvwIWADs{*this, {
        .caption = "Name|File", .place = {9, 19, 358, 76}, .tab = 0, .access = 'G',
        .label = &lblIWADs}};
    toolkit::Button cmdRename{*this, {
        .caption = "Rename", .place = {209, 99, 50, 14}, .tab = 1, .access = 'N'}};
    toolkit::Button cmdRemove{*this, {
        .caption = "Remove", .place = {263, 99, 50, 14}, .tab = 2, .access = 'R'}};
    toolkit::Button cmdAdd{*this, {
        .caption = "Add", .place = {317, 99, 50, 14}, .tab = 3, .access = 'D'}};
    toolkit::Label lblEngines{*this, {.caption = "Engines", .place = {9, 120, 200, 9}, .tab = 9}};
    toolkit::ListView lvwEngines{*this, {
        .caption = "Name|File", .place = {9, 131, 358, 76}, .tab = 4, .access = 'E',
        .label = &lblEngines}};
    toolkit::Button cmdPath{*this, {
        .caption = "Path...", .place = {263, 211, 50, 14}, .tab = 5, .access = 'P'}};
    toolkit::Button cmdEngineSettings{*this, {
        .caption = "Settings...", .place = {317, 211, 50, 14}, .tab = 6, .access = 'S'}};
    toolkit::Button cmdOK{*this, {
        .caption = "Accept", .place = {317, 237, 50, 14}, .tab = 7, .access = 'A',
        .flags = toolkit::Default}};
    // clang-format on

  private:
    void Add();
    void Remove();
    void Rename();
    void SetPath();
    void ShowEngineSettings();
    void Accept();
};

extern SetupWindow frmSetup;

/// Returns the name of a known game WAD, looked up by the file name in a path, or an empty text.
std::string ProposedName(const std::string& path);
