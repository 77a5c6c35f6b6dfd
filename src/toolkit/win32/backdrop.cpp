#include "toolkit/win32/backdrop.h"

#include <algorithm>

#include "platform/win32/windows_headers.h"
#include "toolkit/control.h"
#include "toolkit/win32/pictures.h"

namespace desktop {
namespace {

/// The picture with this name is the band.
constexpr std::string_view BandPicture = "title";

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

void Backdrop::Layout(const toolkit::Window& window, const Metrics& metrics) {
    bandBrush_.reset();
    marks_.clear();
    dividers_.clear();
    for (const toolkit::Control* control : window.Controls()) {
        const RECT place = metrics.Pixels(control->Spec().place);
        if (control->GetKind() == toolkit::Kind::Divider) {
            dividers_.push_back(place);
        } else if (control->GetKind() == toolkit::Kind::Picture) {
            AddPicture(control->Spec().picture, place);
        }
    }
}

void Backdrop::AddPicture(std::string_view name, const RECT& place) {
    if (name == BandPicture) {
        band_ = place;
    } else if (!name.empty()) {
        const LONG width = place.right - place.left;
        const LONG height = place.bottom - place.top;
        const int size = DrawnSize(static_cast<int>(std::min(width, height)));
        marks_.push_back({LoadPicture(name, size),
                          {place.left + (width - size) / 2, place.top + (height - size) / 2}});
    }
}

void Backdrop::Paint(HDC window) {
    if (!::IsRectEmpty(&band_)) {
        ::FillRect(window, &band_, BandBrush({band_.left, band_.top}, window));
    }
    for (const Mark& mark : marks_) {
        ::DrawIconEx(window, mark.place.x, mark.place.y, mark.icon.get(), 0, 0, 0, nullptr,
                     DI_NORMAL);
    }
    for (RECT divider : dividers_) {
        ::DrawEdge(window, &divider, EDGE_ETCHED, BF_TOP);
    }
}

HBRUSH Backdrop::BandBrush(HWND control, HDC context) {
    POINT origin = {band_.left, band_.top};
    ::MapWindowPoints(::GetParent(control), control, &origin, 1);
    return BandBrush(origin, context);
}

/// `origin` is the band's corner in the device context.
HBRUSH Backdrop::BandBrush(POINT origin, HDC context) {
    if (IsHighContrast()) {
        return ::GetSysColorBrush(COLOR_WINDOW);
    }
    if (!bandBrush_) {
        DrawBand();
    }
    ::SetBrushOrgEx(context, origin.x, origin.y, nullptr);
    return bandBrush_.get();
}

void Backdrop::DrawBand() {
    const int width = band_.right - band_.left;
    const int height = band_.bottom - band_.top;
    const Source source = LoadSource(height);
    const WindowContext screen(nullptr);
    bandBitmap_.reset(::CreateCompatibleBitmap(screen.Get(), width, height));
    const OwnedContext to(::CreateCompatibleDC(screen.Get()));
    const OwnedContext from(::CreateCompatibleDC(screen.Get()));
    const Chosen toChosen(to.get(), bandBitmap_.get());
    const Chosen fromChosen(from.get(), source.bitmap.get());
    ::SetStretchBltMode(to.get(), HALFTONE);
    ::SetBrushOrgEx(to.get(), 0, 0, nullptr);
    ::StretchBlt(to.get(), 0, 0, width, height, from.get(), 0, 0, source.width, source.height,
                 SRCCOPY);
    bandBrush_.reset(::CreatePatternBrush(bandBitmap_.get()));
}

}  // namespace desktop
