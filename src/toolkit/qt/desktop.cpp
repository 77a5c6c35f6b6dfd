#include "toolkit/desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QWindow>
#include <unordered_map>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/look.h"
#include "toolkit/qt/native_window.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// A loaded window. Its native window is made when it is first shown, so that a dialog that nobody
/// opens costs nothing.
struct LoadedWindow {
    NativeWindow* native = nullptr;
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

void LoadWindow(toolkit::Window& window) {
    LoadedWindows().emplace(&window, LoadedWindow{});
}

void UnloadWindow(toolkit::Window& window) {
    if (NativeWindow* native = NativeOf(&window)) {
        native->Retire();
    }
    LoadedWindows().erase(&window);
}

void ShowWindow(toolkit::Window& window) {
    if (NativeWindow* native = MakeNative(window)) {
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
    QWidget* opener = FrontWindow();
    NativeWindow* native = MakeNative(window);
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
    if (NativeWindow* native = NativeOf(&window)) {
        native->repaint();
    }
}

void CaptionChanged(toolkit::Window& window) {
    if (NativeWindow* native = NativeOf(&window)) {
        native->setWindowTitle(Shown(window.Caption()));
    }
}

void PropertyChanged(toolkit::Control& control, Property property, int row) {
    LoadedWindow* loaded = Find(control.Owner());
    if (loaded == nullptr) {
        return;
    }
    if (loaded->native != nullptr) {
        ApplyProperty(loaded->native->Find(control), control, property, row);
    } else if (property == Property::Focus) {
        loaded->focus = &control;
    }
}

std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y) {
    const NativeWindow* native = NativeOf(&list.Owner());
    constexpr std::uint32_t outside = 0x10000;
    return native == nullptr ? outside : RowUnderPoint(native->Find(list), QPoint(x, y));
}

/// Qt's own units serve for pointer positions and for ItemFromPoint alike.
void StartDesktop(int& argumentCount, char** arguments) {
    // Never destroyed: a process that ends with windows open has no good moment for that.
    [[maybe_unused]] static const auto* const application =
        new QApplication(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("Zorvane"));
    QApplication::setDesktopFileName(QStringLiteral("zorvane"));
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook();
}

void DoEvents() {
    QApplication::processEvents();
}

int RunEventLoop() {
    return QApplication::exec();
}

}  // namespace desktop
