// other_side FOLDER: what the program of this system makes of a program directory: starts on it, in
// memory, presses Run, prints the command line that the engine would receive, and ends by Exit,
// which saves the settings.
#include <iostream>

#include "driver.h"
#include "mainwindow/application.h"
#include "mainwindow/main_window.h"
#include "memory.h"
#include "state/startup.h"

int main(int /*argumentCount*/, char** arguments) {
    memory::machine.programDirectory = arguments[1];
    ConnectApplication();
    Main();
    driver::Click(frmMain.cmdRun);
    std::cout << memory::machine.started.at(0).parameters << '\n';
    try {
        driver::Click(frmMain.cmdExit);
    } catch (const memory::ProcessEnded&) {
        return 0;
    }
    return 1;
}
