#include <optional>
#include <string>
#include <vector>

#include "mainwindow/main_window.h"
#include "state/messages.h"
#include "state/records.h"
#include "text/ascii.h"
#include "toolkit/dialogs.h"
#include "wad/maps.h"
#include "wad/wad.h"

void MainWindow::FillMapList(const std::string& fileName, toolkit::ComboBox& maps) {
    clsWad wad;
    wad.OpenWad(fileName);
    maps.Clear();
    for (std::string& name : MapNames(wad)) {
        maps.AddItem(std::move(name));
    }
}

void MainWindow::UseFirstMap() {
    const std::string fileName = SelectedFile();
    std::optional<std::string> firstMap;
    {
        clsWad wad;
        wad.OpenWad(fileName);
        firstMap = LowestMap(wad);
    }
    const std::string shownPath = LowerCase(fileName);
    if (!firstMap) {
        desktop::ShowMessage("There are no map lumps in " + shownPath + ".", ProgramTitle,
                             desktop::MessageIcon::Information);
        return;
    }
    for (int row = 0; row < cmbMaps.ListCount(); ++row) {
        if (cmbMaps.List(row) == firstMap) {
            cmbMaps.SetListIndex(row);
            return;
        }
    }
    Warn("Warning: The map " + *firstMap +
         " does not appear in the game WAD.\r\n"
         "Make sure you have selected the game WAD matching the one needed for " +
         shownPath + ".");
    cmbMaps.SetText(*firstMap);
}
