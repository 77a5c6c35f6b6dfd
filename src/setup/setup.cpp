#include "setup/setup.h"

#include "dialogs/dialogs.h"
#include "setup/engine_settings.h"
#include "state/messages.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/ascii.h"
#include "toolkit/dialogs.h"
#include "wad/wad.h"

namespace {

constexpr const char* PatchWadMessage =
    "Please select a game IWAD. The file you selected was a patch WAD.";
constexpr const char* NameTitle = "Enter a name";

bool IsGameWad(const std::string& path) {
    constexpr int GameWadType = 0;
    clsWad wad;
    wad.OpenWad(path);
    return wad.WadType() == GameWadType;
}

/// Selects the row that was selected before, or row 1 if it no longer exists.
void SelectAgain(toolkit::ListView& view, int row) {
    view.SelectRow(row >= 1 && row <= view.RowCount() ? row : 1);
}

}  // namespace

SetupWindow frmSetup;

SetupWindow::SetupWindow()
    : Window({.caption = "Program setup", .width = 376, .height = 260, .dialog = true}) {
    cmdAdd.OnClick = [this] { Add(); };
    cmdRemove.OnClick = [this] { Remove(); };
    cmdRename.OnClick = [this] { Rename(); };
    lvwIWADs.OnDoubleClick = [this] { Rename(); };
    cmdPath.OnClick = [this] { SetPath(); };
    cmdEngineSettings.OnClick = [this] { ShowEngineSettings(); };
    lvwEngines.OnDoubleClick = [this] { ShowEngineSettings(); };
    cmdOK.OnClick = [this] { Accept(); };
    OnCloseRequest = [this] { Accept(); };
}

void SetupWindow::SetupLists() {
    const int gameWadRow = lvwIWADs.SelectedRow();
    const int engineRow = lvwEngines.SelectedRow();
    lvwIWADs.Clear();
    for (const GameWadRecord& gameWad : GameWads) {
        lvwIWADs.AddRow(gameWad.name, gameWad.file);
    }
    lvwEngines.Clear();
    for (const EngineRecord& engine : Engines) {
        lvwEngines.AddRow(engine.realname, engine.path + "\\");
    }
    SelectAgain(lvwIWADs, gameWadRow);
    SelectAgain(lvwEngines, engineRow);
}

void SetupWindow::Add() {
    const std::string file =
        OpenFileDialog(*this, "Please select a game WAD", WadFilter, "", OneFileFlags);
    if (file.empty()) {
        return;
    }
    if (!IsGameWad(file)) {
        Warn(PatchWadMessage);
        return;
    }
    const std::string name =
        desktop::AskForText("Please enter the formal name of the game WAD " + LowerCase(file) + ".",
                            NameTitle, ProposedName(file));
    if (name.empty()) {
        return;
    }
    GameWads.push_back({name, file});
    SetupLists();
}

void SetupWindow::Remove() {
    if (lvwIWADs.SelectedRow() < 1) {
        return;
    }
    GameWads.erase(GameWads.begin() + (lvwIWADs.SelectedRow() - 1));
    SetupLists();
}

void SetupWindow::Rename() {
    if (lvwIWADs.SelectedRow() < 1) {
        return;
    }
    GameWadRecord& gameWad = GameWadAt(lvwIWADs.SelectedRow() - 1);
    const std::string name = desktop::AskForText(
        "Please enter the name of the game WAD " + UpperCase(gameWad.file) + ".", NameTitle,
        gameWad.name);
    if (name.empty()) {
        return;
    }
    gameWad.name = name;
    SetupLists();
}

void SetupWindow::SetPath() {
    if (lvwEngines.SelectedRow() < 1) {
        return;
    }
    EngineRecord& engine = EngineAt(lvwEngines.SelectedRow() - 1);
    const std::string folder = BrowseForFolder(
        *this, "Please select the folder in which " + LowerCase(engine.executable) + " resides.");
    if (folder.empty()) {
        return;
    }
    engine.path = folder;
    SetupLists();
}

void SetupWindow::ShowEngineSettings() {
    if (lvwEngines.SelectedRow() < 1) {
        return;
    }
    frmEngineSettings.ShowEngine(lvwEngines.SelectedRow() - 1);
    frmEngineSettings.ShowModal();
}

void SetupWindow::Accept() {
    if (SettingNumber("iwad") > GameWadCount() - 1) {
        StoreSetting("iwad", GameWadCount() - 1);
    }
    toolkit::Run(OnAccepted);
    Hide();
}

std::string ProposedName(const std::string& path) {
    const std::string key = LowerCase(path.substr(path.rfind('\\') + 1));
    const ConfigValue* name = Autodetect.Root()->Find(key);
    return name != nullptr ? name->AsText() : std::string();
}
