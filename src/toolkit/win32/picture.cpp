// Owner-drawn STATIC: the title band, or a picture on it.
#include <algorithm>

#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"
#include "toolkit/win32/pictures.h"

namespace desktop {
namespace {

SIZE SizeOf(HICON icon) {
    ICONINFO parts = {};
    ::GetIconInfo(icon, &parts);
    const OwnedBitmap mask(parts.hbmMask);
    const OwnedBitmap colors(parts.hbmColor);
    BITMAP facts = {};
    ::GetObjectW(colors.get(), sizeof facts, &facts);
    return {facts.bmWidth, facts.bmHeight};
}

class NativePicture : public NativeControl {
  public:
    NativePicture(NativeWindow& parent, toolkit::Control& picture)
        : NativeControl(parent, picture, {WC_STATICW, SS_OWNERDRAW | SS_NOTIFY | WS_CLIPSIBLINGS}) {
    }

    void DrawItem(const DRAWITEMSTRUCT& item) override;

  protected:
    void OnLayout() override;

  private:
    bool IsBand() const { return GetControl().Spec().picture == BandPicture; }

    OwnedIcon icon_;
};

void NativePicture::OnLayout() {
    if (!IsBand()) {
        RECT inside = {};
        ::GetClientRect(Handle(), &inside);
        icon_ = LoadPicture(GetControl().Spec().picture,
                            static_cast<int>(std::min(inside.right, inside.bottom)));
    }
}

void NativePicture::DrawItem(const DRAWITEMSTRUCT& item) {
    const RECT& place = item.rcItem;
    const HBRUSH brush = Parent().TitleBand().BackgroundBrush(Handle(), item.hDC);
    ::FillRect(item.hDC, &place, brush != nullptr ? brush : ::GetSysColorBrush(COLOR_3DFACE));
    if (icon_ != nullptr) {
        const SIZE size = SizeOf(icon_.get());
        ::DrawIconEx(item.hDC, (place.right - size.cx) / 2, (place.bottom - size.cy) / 2,
                     icon_.get(), 0, 0, 0, nullptr, DI_NORMAL);
    }
}

}  // namespace

std::unique_ptr<NativeControl> MakePicture(NativeWindow& parent, toolkit::Control& picture) {
    return std::make_unique<NativePicture>(parent, picture);
}

}  // namespace desktop
