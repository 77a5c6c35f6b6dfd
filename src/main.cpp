#include "mainwindow/application.h"
#include "platform/facts.h"
#include "state/startup.h"
#include "toolkit/desktop.h"

int main(int argumentCount, char** arguments) {
    platform::RememberArguments(argumentCount, arguments);
    desktop::StartDesktop();
    ConnectApplication();
    Main();
    return desktop::RunEventLoop();
}
