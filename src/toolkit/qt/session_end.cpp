#include "toolkit/qt/session_end.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <cerrno>
#include <cstdlib>

#include "toolkit/qt/native_windows.h"

namespace desktop {
namespace {

int pipeEnds[2] = {-1, -1};  // read end, write end
bool isLoopRunning = false;
bool isConnectionLost = false;

void RequestClose() {
    if (toolkit::Window* window = MainWindow()) {
        window->UserCloses();
    }
}

/// A signal handler may do hardly anything, so it wakes the event loop.
void WakeEventLoop(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
    errno = error;
}

void OnSignalReceived() {
    char byte = 0;
    while (read(pipeEnds[0], &byte, 1) == 1) {
    }
    RequestClose();
}

void OnExit() {
    if (isLoopRunning) {
        isConnectionLost = true;
        RequestClose();
    }
}

}  // namespace

void WatchSessionEnd() {
    // Without this, a file size limit (ulimit -f) ends the program instead of failing the write.
    signal(SIGXFSZ, SIG_IGN);
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) == 0) {
        auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, qApp);
        QObject::connect(notifier, &QSocketNotifier::activated, qApp, OnSignalReceived);
        struct sigaction action = {};
        action.sa_handler = WakeEventLoop;
        action.sa_flags = SA_RESTART;
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            struct sigaction inherited = {};
            sigaction(number, nullptr, &inherited);
            if (inherited.sa_handler != SIG_IGN) {  // nohup lets its program outlive the terminal
                sigaction(number, &action, nullptr);
            }
        }
    }
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, RequestClose,
                     Qt::DirectConnection);
    std::atexit(OnExit);
}

int RunWatchedEventLoop() {
    isLoopRunning = true;
    const int result = QApplication::exec();
    isLoopRunning = false;
    return result;
}

bool IsConnectionLost() {
    return isConnectionLost;
}

}  // namespace desktop
