#include "toolkit/win32/native_windows.h"

#include <algorithm>

namespace desktop {
namespace {

struct Entry {
    toolkit::Window* window;
    std::unique_ptr<NativeWindow> native;
};

std::vector<Entry> entries;
std::vector<NativeWindow*> shown;  // the topmost one last

Entry* FindEntry(const toolkit::Window& window) {
    const auto found = std::ranges::find(entries, &window, &Entry::window);
    return found != entries.end() ? &*found : nullptr;
}

}  // namespace

void Register(toolkit::Window& window) {
    entries.push_back({&window, nullptr});
}

void Unregister(const toolkit::Window& window) {
    std::erase_if(entries, [&](const Entry& entry) { return entry.window == &window; });
}

NativeWindow* FindNative(const toolkit::Window& window) {
    const Entry* entry = FindEntry(window);
    return entry != nullptr ? entry->native.get() : nullptr;
}

NativeWindow* EnsureNative(const toolkit::Window& window) {
    Entry* entry = FindEntry(window);
    if (entry != nullptr && entry->native == nullptr) {
        entry->native = std::make_unique<NativeWindow>(*entry->window);
    }
    return entry != nullptr ? entry->native.get() : nullptr;
}

NativeControl* FindNative(const toolkit::Control& control) {
    const NativeWindow* window = FindNative(control.Owner());
    return window != nullptr ? window->Find(control) : nullptr;
}

NativeControl* FindNative(HWND control) {
    const HWND window = ::GetParent(control);
    for (const Entry& entry : entries) {
        if (entry.native != nullptr && entry.native->Handle() == window) {
            return entry.native->FromHandle(control);
        }
    }
    return nullptr;
}

void PushWindow(NativeWindow& window) {
    shown.push_back(&window);
}

void RemoveWindow(NativeWindow& window) {
    std::erase(shown, &window);
}

HWND FrontWindow() {
    return shown.empty() ? nullptr : shown.back()->Handle();
}

}  // namespace desktop
