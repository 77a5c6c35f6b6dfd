#include "toolkit/qt/native_windows.h"

#include <QApplication>
#include <algorithm>
#include <vector>

namespace desktop {
namespace {

struct Entry {
    toolkit::Window* window = nullptr;
    NativeWindow* native = nullptr;
    const toolkit::Control* focus = nullptr;  // requested before there was a native window
};

std::vector<Entry> entries;

Entry* FindEntry(const toolkit::Window& window) {
    const auto found = std::ranges::find(entries, &window, &Entry::window);
    return found != entries.end() ? &*found : nullptr;
}

}  // namespace

void Register(toolkit::Window& window) {
    entries.push_back({&window});
}

void Unregister(const toolkit::Window& window) {
    if (NativeWindow* native = FindNative(&window)) {
        native->DeleteLater();
    }
    std::erase_if(entries, [&](const Entry& entry) { return entry.window == &window; });
}

toolkit::Window* MainWindow() {
    return entries.empty() ? nullptr : entries.front().window;
}

NativeWindow* FindNative(const toolkit::Window* window) {
    const Entry* entry = window != nullptr ? FindEntry(*window) : nullptr;
    return entry != nullptr ? entry->native : nullptr;
}

NativeWindow* EnsureNative(const toolkit::Window& window) {
    Entry* entry = FindEntry(window);
    if (entry == nullptr) {
        return nullptr;
    }
    if (entry->native == nullptr) {
        entry->native = new NativeWindow(*entry->window);
        if (entry->focus != nullptr) {
            Focus(*entry->focus);
        }
    }
    return entry->native;
}

void Focus(const toolkit::Control& control) {
    Entry* entry = FindEntry(control.Owner());
    if (entry == nullptr) {
        return;
    }
    if (entry->native != nullptr) {
        entry->native->Find(control).Widget().setFocus(Qt::OtherFocusReason);
    } else {
        entry->focus = &control;
    }
}

QWidget* FrontWindow() {
    for (QWidget* front : {QApplication::activeModalWidget(), QApplication::activeWindow()}) {
        if (front != nullptr && front->isVisible()) {
            return front;
        }
    }
    // None is active if the whole program is in the background.
    for (const Entry& entry : entries) {
        if (entry.native != nullptr && entry.native->isVisible()) {
            return entry.native;
        }
    }
    return nullptr;
}

}  // namespace desktop
