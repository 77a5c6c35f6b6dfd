// STATIC: a label, on the window or on the title band.
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"

namespace desktop {
namespace {

constexpr COLORREF OnBand = RGB(0xff, 0xff, 0xff);
constexpr COLORREF OnBandSmall = RGB(0xf0, 0xd4, 0xc8);
constexpr COLORREF QuietText = RGB(0x50, 0x4a, 0x46);  // 8 to 1 on the grey of a window

Face FaceOf(const toolkit::Control& label) {
    constexpr struct {
        toolkit::Flag flag;
        Face face;
    } faces[] = {
        {toolkit::Title, Face::Title},
        {toolkit::Small, Face::Small},
        {toolkit::Bold, Face::Bold},
    };
    for (const auto& [flag, face] : faces) {
        if (label.Has(flag)) {
            return face;
        }
    }
    return Face::Body;
}

/// The control after (1) or before (-1) a control in its window; null if there is none.
const toolkit::Control* Neighbor(const toolkit::Control& control, int distance) {
    const auto& controls = control.Owner().Controls();
    const auto index = static_cast<std::size_t>(control.Index() + distance);
    return index < controls.size() ? controls[index] : nullptr;
}

/// Horizontal start of a label's text. A label that follows another starts where its text ends.
int TextStart(const toolkit::Control& label, const Metrics& metrics) {
    const toolkit::Control* before = label.Has(toolkit::Follows) ? Neighbor(label, -1) : nullptr;
    if (before == nullptr) {
        return static_cast<int>(metrics.Pixels(label.Spec().place).left);
    }
    return TextStart(*before, metrics) + metrics.TextWidth(FaceOf(*before), before->Caption());
}

/// Whether a label is only as wide as its text: other labels may follow it, and only the text of a
/// link is a link.
bool FitsItsText(const toolkit::Control& label) {
    const toolkit::Control* next = Neighbor(label, 1);
    const bool isFollowed = next != nullptr && next->Has(toolkit::Follows);
    return isFollowed || label.Has(toolkit::Follows) || label.Has(toolkit::Link);
}

class NativeLabel : public NativeControl {
  public:
    NativeLabel(NativeWindow& parent, toolkit::Label& label)
        : NativeLabel(parent, label, {WC_STATICW, StyleOf(label), 0, FaceOf(label)}) {}

    HBRUSH Colors(HDC context) override;

  protected:
    NativeLabel(NativeWindow& parent, toolkit::Label& label, const NativeClass& nativeClass)
        : NativeControl(parent, label, nativeClass), label_(label) {}
    void OnPropertyChanged(Property property, int row) override;
    RECT Place() const override;
    std::wstring CaptionText() const override {
        return HasAccessKey(label_) ? MarkAccessKey(label_.Caption(), label_.Named()->Access())
                                    : NativeControl::CaptionText();
    }

  private:
    static DWORD StyleOf(const toolkit::Label& label);
    static bool HasAccessKey(const toolkit::Label& label) {
        return label.Named() != nullptr && label.Named()->Access() != '\0';
    }
    bool IsOnBand() const { return label_.Has(toolkit::Title) || label_.Has(toolkit::Small); }

    toolkit::Label& label_;
};

DWORD NativeLabel::StyleOf(const toolkit::Label& label) {
    // Without SS_NOTIFY, movements over a label go to the window.
    const DWORD common = SS_NOTIFY | (HasAccessKey(label) ? 0 : SS_NOPREFIX);
    constexpr int TwoLines = 16;
    const bool isOneLine = label.Spec().place.height < TwoLines || label.Has(toolkit::Title);
    if (label.Has(toolkit::Small)) {
        return common | SS_RIGHT;
    }
    return common |
           (isOneLine ? SS_CENTERIMAGE : SS_EDITCONTROL);  // SS_EDITCONTROL breaks long words
}

RECT NativeLabel::Place() const {
    RECT place = NativeControl::Place();
    if (FitsItsText(label_)) {
        place.left = TextStart(label_, GetMetrics());
        place.right = place.left + GetMetrics().TextWidth(FaceOf(label_), label_.Caption());
    }
    return place;
}

HBRUSH NativeLabel::Colors(HDC context) {
    if (IsOnBand()) {
        const COLORREF text = label_.Has(toolkit::Title) ? OnBand : OnBandSmall;
        ::SetTextColor(context, IsHighContrast() ? ::GetSysColor(COLOR_WINDOWTEXT) : text);
        ::SetBkMode(context, TRANSPARENT);
        return Parent().GetBackdrop().BandBrush(Handle(), context);
    }
    if (label_.Has(toolkit::Quiet) && ::GetSysColor(COLOR_WINDOWTEXT) == 0) {
        ::SetTextColor(context, QuietText);
    }
    return nullptr;
}

void NativeLabel::OnPropertyChanged(Property property, int row) {
    NativeControl::OnPropertyChanged(property, row);
    if (property == Property::Caption && IsOnBand()) {
        ::InvalidateRect(Handle(), nullptr, TRUE);
    }
}

/// EDIT that cannot be changed: its text can be marked and copied.
class NativePreview : public NativeLabel {
  public:
    NativePreview(NativeWindow& parent, toolkit::Label& label)
        : NativeLabel(parent, label,
                      {WC_EDITW, ES_MULTILINE | ES_READONLY, WS_EX_CLIENTEDGE, Face::Body}) {}

  protected:
    void OnLayout() override {
        RECT inside = {};
        ::GetClientRect(Handle(), &inside);
        ::InflateRect(&inside, -GetMetrics().Scaled(5), -GetMetrics().Scaled(3));
        Send(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    }
};

/// SysLink: can be focused and pressed by the keyboard, and has the role of a link.
class NativeLink : public NativeLabel {
  public:
    NativeLink(NativeWindow& parent, toolkit::Label& label)
        : NativeLabel(parent, label, {WC_LINK, 0, 0, Face::Body}), label_(label) {}

  protected:
    LRESULT OnNotify(const NMHDR& notice) override {
        if (notice.code == static_cast<UINT>(NM_CLICK) ||
            notice.code == static_cast<UINT>(NM_RETURN)) {
            label_.UserClicks();
        }
        return 0;
    }
    // It draws its text at the top, labels in their middle.
    RECT Place() const override {
        return WithHeight(NativeLabel::Place(), GetMetrics().LineHeight());
    }
    std::wstring CaptionText() const override {
        return L"<a>" + NativeLabel::CaptionText() + L"</a>";
    }

  private:
    toolkit::Label& label_;
};

}  // namespace

std::unique_ptr<NativeControl> MakeLabel(NativeWindow& parent, toolkit::Label& label) {
    if (label.Has(toolkit::Link)) {
        return std::make_unique<NativeLink>(parent, label);
    }
    if (label.Has(toolkit::Sunken)) {
        return std::make_unique<NativePreview>(parent, label);
    }
    return std::make_unique<NativeLabel>(parent, label);
}

}  // namespace desktop
