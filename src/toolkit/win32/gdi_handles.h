// Owners of the handles of windows and drawing: each releases its handle when it is destroyed.
#pragma once

#include "platform/win32/handles.h"

namespace desktop {

using OwnedFont = platform::Owned<HFONT, ::DeleteObject>;
using OwnedBrush = platform::Owned<HBRUSH, ::DeleteObject>;
using OwnedPen = platform::Owned<HPEN, ::DeleteObject>;
using OwnedBitmap = platform::Owned<HBITMAP, ::DeleteObject>;
using OwnedIcon = platform::Owned<HICON, ::DestroyIcon>;
using OwnedMenu = platform::Owned<HMENU, ::DestroyMenu>;
using OwnedContext = platform::Owned<HDC, ::DeleteDC>;

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

}  // namespace desktop
