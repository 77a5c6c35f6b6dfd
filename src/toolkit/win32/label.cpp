// STATIC: a label, on the window or on the title band, perhaps a link.
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"

namespace desktop {
namespace {

constexpr COLORREF OnBand = RGB(0xff, 0xff, 0xff);
constexpr COLORREF OnBandSmall = RGB(0xf0, 0xd4, 0xc8);
constexpr COLORREF LinkText = RGB(0x00, 0x5a, 0xb8);
constexpr COLORREF QuietText = RGB(0x50, 0x4a, 0x46);  // 8 to 1 on the grey of a window

Face FaceOf(const toolkit::ControlSpec& row) {
    constexpr struct {
        toolkit::Flag flag;
        Face face;
    } faces[] = {
        {toolkit::Title, Face::Title},
        {toolkit::Small, Face::Small},
        {toolkit::Bold, Face::Bold},
        {toolkit::Link, Face::Link},
    };
    for (const auto& [flag, face] : faces) {
        if ((row.flags & flag) != 0) {
            return face;
        }
    }
    return Face::Body;
}

/// Where the text of a label begins across; one that follows another begins behind that one's text.
int TextStart(const toolkit::Control& label, const Metrics& metrics) {
    if (label.Has(toolkit::Follows)) {
        const toolkit::ControlSpec& before = *(&label.Spec() - 1);
        if (const toolkit::Control* followed = label.Owner().Find(before.name)) {
            return TextStart(*followed, metrics) +
                   metrics.TextWidth(FaceOf(before), followed->Caption());
        }
    }
    return static_cast<int>(metrics.Pixels(label.Spec().place).left);
}

/// Whether a label is as wide as its text, so that others can stand beside it and only the text of
/// a link is a link.
bool FitsItsText(const toolkit::Control& label) {
    const toolkit::ControlSpec* next = &label.Spec() + 1;
    const auto rows = label.Owner().Spec().rows;
    const bool isFollowed =
        next != rows.data() + rows.size() && (next->flags & toolkit::Follows) != 0;
    return isFollowed || label.Has(toolkit::Follows) || label.Has(toolkit::Link);
}

class NativeLabel : public NativeControl {
  public:
    NativeLabel(NativeWindow& parent, toolkit::Label& label)
        : NativeControl(parent, label, {WC_STATICW, StyleOf(label), 0, FaceOf(label.Spec())}),
          label_(label) {}

    HBRUSH Colours(HDC context) override;
    HCURSOR Pointer() const override;

  protected:
    void OnCommand(WORD code) override;
    void OnDraw(Property property, int row) override;
    RECT Place() const override;

  private:
    static DWORD StyleOf(const toolkit::Label& label);
    bool IsOnBand() const { return label_.Has(toolkit::Title) || label_.Has(toolkit::Small); }

    toolkit::Label& label_;
};

DWORD NativeLabel::StyleOf(const toolkit::Label& label) {
    // With SS_NOTIFY the pointer over a label is not over the window beneath.
    constexpr DWORD Common = SS_NOPREFIX | SS_NOTIFY;
    constexpr int TwoLines = 16;
    const bool isOneLine = label.Spec().place.height < TwoLines || label.Has(toolkit::Title);
    if (label.Has(toolkit::Sunken)) {
        return Common | SS_SUNKEN | SS_EDITCONTROL;
    }
    if (label.Has(toolkit::Small)) {
        return Common | SS_RIGHT;
    }
    return Common | (isOneLine ? SS_CENTERIMAGE : SS_EDITCONTROL);  // the latter breaks long words
}

RECT NativeLabel::Place() const {
    RECT place = NativeControl::Place();
    if (FitsItsText(label_)) {
        place.left = TextStart(label_, Sizes());
        place.right = place.left + Sizes().TextWidth(FaceOf(label_.Spec()), label_.Caption());
    }
    return place;
}

HBRUSH NativeLabel::Colours(HDC context) {
    if (IsOnBand()) {
        ::SetTextColor(context, label_.Has(toolkit::Title) ? OnBand : OnBandSmall);
        ::SetBkMode(context, TRANSPARENT);
        return Parent().TitleBand().Beneath(Handle(), context);
    }
    if (label_.Has(toolkit::Link)) {
        ::SetTextColor(context, LinkText);
    } else if (label_.Has(toolkit::Quiet) && ::GetSysColor(COLOR_WINDOWTEXT) == 0) {
        ::SetTextColor(context, QuietText);
    }
    return nullptr;
}

void NativeLabel::OnCommand(WORD code) {
    if (code == STN_CLICKED) {
        label_.UserClicks();
    }
}

void NativeLabel::OnDraw(Property property, int row) {
    NativeControl::OnDraw(property, row);
    if (property == Property::Caption && IsOnBand()) {
        ::InvalidateRect(Handle(), nullptr, TRUE);
    }
}

HCURSOR NativeLabel::Pointer() const {
    return label_.Has(toolkit::Link) ? ::LoadCursorW(nullptr, IDC_HAND) : nullptr;
}

}  // namespace

std::unique_ptr<NativeControl> MakeLabel(NativeWindow& parent, toolkit::Label& label) {
    return std::make_unique<NativeLabel>(parent, label);
}

}  // namespace desktop
