#include "toolkit/desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>
#include <QWindow>

#include "platform/shell.h"
#include "toolkit/qt/accessible.h"
#include "toolkit/qt/controls.h"
#include "toolkit/qt/look.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/session_end.h"
#include "toolkit/qt/text.h"

namespace desktop {

void StartDesktop() {
    // Qt gets no arguments: those of the program are files, not options such as
    // -platformpluginpath.
    static int argumentCount = 1;
    static char name[] = "zorvane";
    static char* arguments[] = {name, nullptr};
    // Never destroyed: Qt must outlive the windows, and the process may end while some are open.
    [[maybe_unused]] static const auto* const Application =
        new QApplication(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("Zorvane"));
    QApplication::setDesktopFileName(QStringLiteral("zorvane"));
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook();
    InstallAccessibility();
    WatchSessionEnd();
}

void DoEvents() {
    QApplication::processEvents();
}

int RunEventLoop() {
    // Decoding it must not delay the first window.
    constexpr int Delay = 50;  // milliseconds
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [] { QApplication::setWindowIcon(ProgramIcon()); });
    timer.start(Delay);
    return RunWatchedEventLoop();
}

void RunEventsUntilEnd(const platform::ProcessHandle& process) {
    QEventLoop loop;
    // A pidfd is readable for ever once its process has ended. A loop around a later recording's
    // would wake up for it again and again.
    QSocketNotifier end(process.Native(), QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, &loop, [&] {
        end.setEnabled(false);
        loop.quit();
    });
    loop.exec();
}

void LoadWindow(toolkit::Window& window) {
    Register(window);
}

void UnloadWindow(toolkit::Window& window) {
    Unregister(window);
}

void ShowWindow(toolkit::Window& window) {
    if (NativeWindow* native = EnsureNative(window)) {
        native->Center(nullptr);
        native->show();
    }
}

void HideWindow(toolkit::Window& window) {
    if (NativeWindow* native = FindNative(&window)) {
        native->hide();
    }
}

void RunModal(toolkit::Window& window) {
    QWidget* opener = FrontWindow();
    NativeWindow* native = EnsureNative(window);
    if (native == nullptr) {
        return;
    }
    native->setWindowModality(Qt::ApplicationModal);
    native->winId();  // creates the window handle
    if (opener != nullptr) {
        native->windowHandle()->setTransientParent(opener->windowHandle());
    }
    native->Center(opener);
    native->show();
    native->activateWindow();
    if (window.Visible()) {
        native->RunUntilHidden();
    }
    if (opener != nullptr && opener->isVisible()) {
        opener->activateWindow();
    }
}

void RepaintWindow(toolkit::Window& window) {
    if (NativeWindow* native = FindNative(&window)) {
        native->repaint();
    }
}

void CaptionChanged(toolkit::Window& window) {
    if (NativeWindow* native = FindNative(&window)) {
        native->setWindowTitle(DisplayText(window.Caption()));
    }
}

void PropertyChanged(toolkit::Control& control, Property property, int row) {
    if (property == Property::Focus) {
        Focus(control);
    } else if (NativeWindow* native = FindNative(&control.Owner())) {
        ApplyProperty(native->Find(control), control, property, row);
    }
}

std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y) {
    constexpr std::uint32_t Outside = 0x10000;
    const NativeWindow* native = FindNative(&list.Owner());
    return native != nullptr ? RowUnderPoint(native->Find(list), QPoint(x, y)) : Outside;
}

}  // namespace desktop
