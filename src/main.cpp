#include <optional>

#include "mainwindow/application.h"
#include "platform/facts.h"
#include "state/startup.h"
#include "toolkit/desktop.h"

int main(int argumentCount, char** arguments) {
    if (const std::optional<int> status = platform::InitializeProcess(argumentCount, arguments)) {
        return *status;
    }
    desktop::StartDesktop();
    ConnectApplication();
    Main();
    return desktop::RunEventLoop();
}
