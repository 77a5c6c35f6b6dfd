// Owner-drawn BUTTON: a button in the color of the program.
#include "platform/win32/text.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"

namespace desktop {
namespace {

constexpr COLORREF Plain = RGB(0xb3, 0x36, 0x1b);
constexpr COLORREF Hot = RGB(0xc6, 0x43, 0x25);
constexpr COLORREF Pressed = RGB(0x8e, 0x29, 0x13);
constexpr COLORREF Disabled = RGB(0xb9, 0xae, 0xaa);
constexpr COLORREF Letters = RGB(0xff, 0xff, 0xff);

COLORREF TextColor() {
    return IsHighContrast() ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : Letters;
}

class AccentButton : public NativeControl {
  public:
    AccentButton(NativeWindow& parent, toolkit::Button& button)
        : NativeControl(parent, button, {WC_BUTTONW, BS_OWNERDRAW | BS_NOTIFY, 0, Face::Bold}),
          button_(button) {}

    bool IsPushButton() const override { return true; }
    void DrawItem(const DRAWITEMSTRUCT& item) override;

  protected:
    void OnCreated() override;
    void OnCommand(WORD code) override;
    std::wstring CaptionText() const override {
        return MarkAccessKey(button_.Caption(), button_.Access());
    }

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR id, DWORD_PTR self);
    COLORREF SurfaceColor(UINT state) const;
    void SetHot(bool hot);

    toolkit::Button& button_;
    bool hot_ = false;
};

COLORREF AccentButton::SurfaceColor(UINT state) const {
    if (IsHighContrast()) {
        return ::GetSysColor(COLOR_HIGHLIGHT);
    }
    if ((state & ODS_DISABLED) != 0) {
        return Disabled;
    }
    if ((state & ODS_SELECTED) != 0) {
        return Pressed;
    }
    return hot_ ? Hot : Plain;
}

void AccentButton::DrawItem(const DRAWITEMSTRUCT& item) {
    const int round = GetMetrics().Scaled(6);
    const COLORREF surface = SurfaceColor(item.itemState);
    const OwnedBrush brush(::CreateSolidBrush(surface));
    const OwnedPen pen(::CreatePen(PS_SOLID, 1, surface));
    const Chosen brushChosen(item.hDC, brush.get());
    const Chosen penChosen(item.hDC, pen.get());
    RECT place = item.rcItem;
    ::FillRect(item.hDC, &place, ::GetSysColorBrush(COLOR_3DFACE));
    ::RoundRect(item.hDC, place.left, place.top, place.right, place.bottom, round, round);

    const auto font = reinterpret_cast<HFONT>(Send(WM_GETFONT));
    const Chosen fontChosen(item.hDC, font);
    const std::wstring text = CaptionText();
    ::SetBkMode(item.hDC, TRANSPARENT);
    ::SetTextColor(item.hDC, TextColor());
    ::DrawTextW(item.hDC, text.data(), static_cast<int>(text.size()), &place,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE |
                    ((item.itemState & ODS_NOACCEL) != 0 ? DT_HIDEPREFIX : 0));
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        const int margin = GetMetrics().Scaled(3);
        ::InflateRect(&place, -margin, -margin);
        const OwnedPen ring(::CreatePen(PS_SOLID, GetMetrics().Scaled(1), TextColor()));
        const Chosen ringChosen(item.hDC, ring.get());
        ::RoundRect(item.hDC, place.left, place.top, place.right, place.bottom, round, round);
    }
}

void AccentButton::OnCommand(WORD code) {
    // Only owner-drawn buttons report the second of two quick clicks as a double click.
    if (code == BN_CLICKED || code == BN_DOUBLECLICKED) {
        button_.UserClicks();
    }
}

void AccentButton::OnCreated() {
    ::SetWindowSubclass(Handle(), Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK AccentButton::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam,
                                         UINT_PTR /*id*/, DWORD_PTR self) {
    auto* button = reinterpret_cast<AccentButton*>(self);
    if (message == WM_MOUSEMOVE) {
        button->SetHot(true);
    } else if (message == WM_MOUSELEAVE) {
        button->SetHot(false);
    } else if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(handle, Procedure, 0);
    }
    return ::DefSubclassProc(handle, message, wParam, lParam);
}

void AccentButton::SetHot(bool hot) {
    if (hot == hot_) {
        return;
    }
    hot_ = hot;
    ::InvalidateRect(Handle(), nullptr, FALSE);
    if (hot) {
        TRACKMOUSEEVENT order = {sizeof order, TME_LEAVE, Handle(), 0};
        ::TrackMouseEvent(&order);
    }
}

}  // namespace

std::unique_ptr<NativeControl> MakeAccentButton(NativeWindow& parent, toolkit::Button& button) {
    return std::make_unique<AccentButton>(parent, button);
}

}  // namespace desktop
