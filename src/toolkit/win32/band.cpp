#include "toolkit/win32/band.h"

#include "platform/win32/windows_headers.h"
#include "toolkit/control.h"

namespace desktop {
namespace {

struct Source {
    OwnedBitmap bitmap;
    int width = 0;
    int height = 0;
};

/// Loads the picture in single or double size, whichever is closer to the height.
Source LoadSource(int height) {
    constexpr int SingleHeight = 74;
    const wchar_t* name = height > SingleHeight * 5 / 4 ? L"title2" : L"title";
    Source source;
    source.bitmap.reset(static_cast<HBITMAP>(
        ::LoadImageW(::GetModuleHandleW(nullptr), name, IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR)));
    BITMAP facts = {};
    ::GetObjectW(source.bitmap.get(), sizeof facts, &facts);
    source.width = facts.bmWidth;
    source.height = facts.bmHeight;
    return source;
}

}  // namespace

void Band::Layout(const toolkit::Window& window, const Metrics& metrics) {
    for (const toolkit::Control* control : window.Controls()) {
        if (control->Spec().picture == BandPicture) {
            place_ = metrics.Pixels(control->Spec().place);
            brush_.reset();
        }
    }
}

void Band::Draw() {
    const int width = place_.right - place_.left;
    const int height = place_.bottom - place_.top;
    const Source source = LoadSource(height);
    const WindowContext screen(nullptr);
    bitmap_.reset(::CreateCompatibleBitmap(screen.Get(), width, height));
    const OwnedContext to(::CreateCompatibleDC(screen.Get()));
    const OwnedContext from(::CreateCompatibleDC(screen.Get()));
    const Chosen toChosen(to.get(), bitmap_.get());
    const Chosen fromChosen(from.get(), source.bitmap.get());
    ::SetStretchBltMode(to.get(), HALFTONE);
    ::SetBrushOrgEx(to.get(), 0, 0, nullptr);
    ::StretchBlt(to.get(), 0, 0, width, height, from.get(), 0, 0, source.width, source.height,
                 SRCCOPY);
    brush_.reset(::CreatePatternBrush(bitmap_.get()));
}

HBRUSH Band::BackgroundBrush(HWND control, HDC context) {
    if (IsHighContrast()) {
        return ::GetSysColorBrush(COLOR_WINDOW);
    }
    if (!brush_) {
        Draw();
    }
    POINT origin = {place_.left, place_.top};
    ::MapWindowPoints(::GetParent(control), control, &origin, 1);
    ::SetBrushOrgEx(context, origin.x, origin.y, nullptr);
    return brush_.get();
}

}  // namespace desktop
