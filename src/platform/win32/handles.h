// Owners of native handles: each is given back when its owner goes.
#pragma once

#include <memory>
#include <type_traits>

#include "platform/win32/windows_headers.h"

namespace platform {

template <auto Release>
struct Releaser {
    template <typename T>
    void operator()(T* handle) const {
        Release(handle);
    }
};

template <typename Handle, auto Release>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Releaser<Release>>;

using OwnedFont = Owned<HFONT, ::DeleteObject>;
using OwnedBrush = Owned<HBRUSH, ::DeleteObject>;
using OwnedPen = Owned<HPEN, ::DeleteObject>;
using OwnedBitmap = Owned<HBITMAP, ::DeleteObject>;
using OwnedIcon = Owned<HICON, ::DestroyIcon>;
using OwnedMenu = Owned<HMENU, ::DestroyMenu>;
using OwnedContext = Owned<HDC, ::DeleteDC>;

/// A kernel handle that may be INVALID_HANDLE_VALUE, which counts as none.
inline void CloseValidHandle(HANDLE handle) {
    if (handle != INVALID_HANDLE_VALUE) {
        ::CloseHandle(handle);
    }
}
using OwnedHandle = Owned<HANDLE, CloseValidHandle>;

/// The drawing context of a window, borrowed from Windows.
class WindowContext {
  public:
    explicit WindowContext(HWND window) : window_(window), context_(::GetDC(window)) {}
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() { ::ReleaseDC(window_, context_); }
    HDC Get() const { return context_; }

  private:
    HWND window_;
    HDC context_;
};

/// A GDI object chosen into a context for as long as this lives.
class Chosen {
  public:
    Chosen(HDC context, HGDIOBJ object)
        : context_(context), old_(::SelectObject(context, object)) {}
    Chosen(const Chosen&) = delete;
    Chosen& operator=(const Chosen&) = delete;
    ~Chosen() { ::SelectObject(context_, old_); }

  private:
    HDC context_;
    HGDIOBJ old_;
};

}  // namespace platform
