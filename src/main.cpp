#include "mainwindow/application.h"
#include "platform/facts.h"
#include "state/startup.h"
#include "toolkit/desktop.h"

int main(int argumentCount, char** arguments) {
    desktop::StartDesktop(argumentCount, arguments);
    platform::RememberArguments(argumentCount, arguments);
    ConnectApplication();
    Main();
    return desktop::RunEventLoop();
}
