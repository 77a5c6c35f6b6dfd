#include "mainwindow/application.h"
#include "platform/desktop.h"
#include "platform/facts.h"
#include "state/startup.h"

int main(int argumentCount, char** arguments) {
    platform::StartDesktop(argumentCount, arguments);
    platform::RememberArguments(argumentCount, arguments);
    TieApplication();
    Main();
    return platform::RunEventLoop();
}
