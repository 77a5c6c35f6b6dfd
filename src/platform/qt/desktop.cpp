#include "platform/desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QWindow>
#include <unordered_map>

#include "platform/qt/controls.h"
#include "platform/qt/look.h"
#include "platform/qt/native_window.h"
#include "platform/qt/pictures.h"
#include "platform/qt/text.h"

namespace platform {
namespace {

/// A loaded window. Its native window is made when it is first shown, so that a dialog that nobody
/// opens costs nothing.
struct LoadedWindow {
    qt::NativeWindow* native = nullptr;
    const toolkit::Control* focus = nullptr;  // asked for before there was a native window
    QEventLoop* modalLoop = nullptr;          // while it is shown modally
};

using WindowMap = std::unordered_map<const toolkit::Window*, LoadedWindow>;

WindowMap& LoadedWindows() {
    static WindowMap windows;
    return windows;
}

LoadedWindow* Find(const toolkit::Window& window) {
    const auto found = LoadedWindows().find(&window);
    return found == LoadedWindows().end() ? nullptr : &found->second;
}

void ReturnFocus(QWidget* opener) {
    if (opener != nullptr && opener->isVisible()) {
        opener->activateWindow();
    }
}

}  // namespace

namespace qt {

NativeWindow* MakeNative(toolkit::Window& window) {
    LoadedWindow* loaded = Find(window);
    if (loaded == nullptr) {
        return nullptr;
    }
    if (loaded->native == nullptr) {
        loaded->native = new NativeWindow(window);
        if (loaded->focus != nullptr) {
            loaded->native->Find(*loaded->focus).Widget().setFocus();
        }
    }
    return loaded->native;
}

NativeWindow* NativeOf(const toolkit::Window* window) {
    const LoadedWindow* loaded = window == nullptr ? nullptr : Find(*window);
    return loaded == nullptr ? nullptr : loaded->native;
}

QWidget* FrontWindow() {
    for (QWidget* front : {QApplication::activeModalWidget(), QApplication::activeWindow()}) {
        if (front != nullptr && front->isVisible()) {
            return front;
        }
    }
    for (const auto& [window, loaded] : LoadedWindows()) {
        if (loaded.native != nullptr && loaded.native->isVisible()) {
            return loaded.native;
        }
    }
    return nullptr;
}

}  // namespace qt

void LoadWindow(toolkit::Window& window) {
    LoadedWindows().emplace(&window, LoadedWindow{});
}

void UnloadWindow(toolkit::Window& window) {
    if (qt::NativeWindow* native = qt::NativeOf(&window)) {
        native->Retire();
    }
    LoadedWindows().erase(&window);
}

void ShowWindow(toolkit::Window& window) {
    if (qt::NativeWindow* native = qt::MakeNative(window)) {
        native->Centre(nullptr);
        native->show();
    }
}

void HideWindow(toolkit::Window& window) {
    const LoadedWindow* loaded = Find(window);
    if (loaded == nullptr || loaded->native == nullptr) {
        return;
    }
    loaded->native->hide();
    if (loaded->modalLoop != nullptr) {
        loaded->modalLoop->quit();
    }
}

void RunModal(toolkit::Window& window) {
    QWidget* opener = qt::FrontWindow();
    qt::NativeWindow* native = qt::MakeNative(window);
    if (native == nullptr) {
        return;
    }
    native->setWindowModality(Qt::ApplicationModal);
    native->winId();  // makes the handle
    if (opener != nullptr) {
        native->windowHandle()->setTransientParent(opener->windowHandle());
    }
    native->Centre(opener);
    QEventLoop loop;
    Find(window)->modalLoop = &loop;
    native->show();
    native->activateWindow();
    if (window.Visible()) {
        loop.exec(QEventLoop::DialogExec);
    }
    if (LoadedWindow* loaded = Find(window)) {
        loaded->modalLoop = nullptr;
    }
    ReturnFocus(opener);
}

void RepaintWindow(toolkit::Window& window) {
    if (qt::NativeWindow* native = qt::NativeOf(&window)) {
        native->repaint();
    }
}

void DrawCaption(toolkit::Window& window) {
    if (qt::NativeWindow* native = qt::NativeOf(&window)) {
        native->setWindowTitle(qt::Shown(window.Caption()));
    }
}

void Draw(toolkit::Control& control, Aspect aspect, int row) {
    LoadedWindow* loaded = Find(control.Owner());
    if (loaded == nullptr) {
        return;
    }
    if (loaded->native != nullptr) {
        qt::DrawAspect(loaded->native->Find(control), control, aspect, row);
    } else if (aspect == Aspect::Focus) {
        loaded->focus = &control;
    }
}

std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y) {
    const qt::NativeWindow* native = qt::NativeOf(&list.Owner());
    constexpr std::uint32_t outside = 0x10000;
    return native == nullptr ? outside : qt::RowUnderPoint(native->Find(list), QPoint(x, y));
}

/// Qt's own units serve for pointer positions and for ItemFromPoint alike.
double UnitsPerPixelX() {
    return 1;
}

double UnitsPerPixelY() {
    return 1;
}

void StartDesktop(int& argumentCount, char** arguments) {
    // Never destroyed: a process that ends with windows open has no good moment for that.
    [[maybe_unused]] static const auto* const application =
        new QApplication(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("Zorvane"));
    QApplication::setDesktopFileName(QStringLiteral("zorvane"));
    QApplication::setWindowIcon(qt::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    qt::ApplyLook();
}

void DoEvents() {
    QApplication::processEvents();
}

int RunEventLoop() {
    return QApplication::exec();
}

}  // namespace platform
