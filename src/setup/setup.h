// The dialog in which the user keeps the game WADs and tells where each engine lies.
#pragma once

#include <functional>

#include "toolkit/control.h"
#include "toolkit/lists.h"
#include "toolkit/window.h"

/// Edits GameWads and Engines in place, at once; there is no way back. Leaving it tells the main
/// window to fill its lists again.
class SetupWindow : public toolkit::Window {
  public:
    SetupWindow();

    /// Fills both list views again. A selection stays on its row number, or falls back to row 1.
    void SetupLists();

    /// Runs when the user leaves the dialog, before it goes away.
    std::function<void()> OnAccepted;

    toolkit::Label lblIWADs{*this, "lblIWADs"};
    toolkit::ListView lvwIWADs{*this, "lvwIWADs"};
    toolkit::Button cmdRename{*this, "cmdRename"};
    toolkit::Button cmdRemove{*this, "cmdRemove"};
    toolkit::Button cmdAdd{*this, "cmdAdd"};
    toolkit::Label lblEngines{*this, "lblEngines"};
    toolkit::ListView lvwEngines{*this, "lvwEngines"};
    toolkit::Button cmdPath{*this, "cmdPath"};
    toolkit::Button cmdEngineSettings{*this, "cmdEngineSettings"};
    toolkit::Button cmdOK{*this, "cmdOK"};

  private:
    void Add();
    void Remove();
    void Rename();
    void SetPath();
    void ShowEngineSettings();
    void Accept();
};

extern SetupWindow frmSetup;

/// The formal name of a known game WAD, found by the file name in a path; empty for an unknown one.
std::string ProposedName(const std::string& path);
