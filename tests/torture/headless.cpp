// headless FOLDER [all]: runs the program on a program directory, with windows in memory: presses
// Run, prints the command line that the engine would receive, and exits, which saves the settings.
// With `all` it also uses everything that reads a file. Prints each message.
#include <iostream>

#include "driver.h"
#include "launch/demo_save.h"
#include "mainwindow/application.h"
#include "mainwindow/main_window.h"
#include "memory.h"
#include "state/startup.h"

namespace {

using memory::machine;

void UseEverything() {
    for (const int row : {0, 1}) {
        frmMain.cmbIWADs.SetListIndex(row);
    }
    frmMain.lstFiles.SetListIndex(0);
    driver::Click(frmMain.cmdGetMapLump);
    driver::Click(frmMain.cmdShowTextFile);
    driver::InNextModal([] {
        driver::Click(frmDemoSave.cmdSave);
        driver::Close(frmDemoSave);
    });
    driver::Click(frmMain.cmdDemo);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    machine.programDirectory = arguments[1];
    ConnectApplication();
    try {
        Main();
        driver::Click(frmMain.cmdRun);
        if (!machine.started.empty()) {
            std::cout << machine.started[0].parameters << '\n';
        }
        if (argumentCount > 2) {
            UseEverything();
        }
        driver::Click(frmMain.cmdExit);
    } catch (const memory::ProcessEnded&) {
    }
    for (const memory::Message& message : machine.messages) {
        std::cout << message.text << '\n';
    }
    return 0;
}
