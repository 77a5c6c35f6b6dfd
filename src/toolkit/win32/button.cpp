// BUTTON: a push button with a caption or an icon.
#include "platform/win32/text.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"
#include "toolkit/win32/pictures.h"

namespace desktop {
namespace {

class NativeButton : public NativeControl {
  public:
    NativeButton(NativeWindow& parent, toolkit::Button& button)
        : NativeControl(parent, button,
                        {WC_BUTTONW, StyleOf(button, button.Has(toolkit::Default))}),
          button_(button) {}

    bool IsPushButton() const override { return true; }
    void ShowDefault(bool isDefault) override {
        Send(BM_SETSTYLE, StyleOf(button_, isDefault), TRUE);
    }

  protected:
    void OnLayout() override;
    void OnCommand(WORD code) override;
    std::wstring CaptionText() const override;

  private:
    static DWORD StyleOf(const toolkit::Button& button, bool isDefault) {
        const DWORD kind = isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        return kind | BS_NOTIFY | (button.Spec().picture.empty() ? 0 : BS_ICON);
    }

    toolkit::Button& button_;
    OwnedIcon icon_;
};

void NativeButton::OnLayout() {
    if (!button_.Spec().picture.empty()) {
        constexpr int Size = 16;
        OwnedIcon icon = LoadPicture(button_.Spec().picture, GetMetrics().Scaled(Size));
        Send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.get()));
        icon_ = std::move(icon);
    }
}

void NativeButton::OnCommand(WORD code) {
    if (code == BN_CLICKED) {
        button_.UserClicks();
    }
}

std::wstring NativeButton::CaptionText() const {
    // The text of a button with a picture is not shown, but screen readers read it.
    const bool isPicture = button_.Caption().empty();
    return MarkAccessKey(isPicture ? std::string(button_.Spec().accessibleName) : button_.Caption(),
                         button_.Access());
}

}  // namespace

std::unique_ptr<NativeControl> MakeButton(NativeWindow& parent, toolkit::Button& button) {
    return std::make_unique<NativeButton>(parent, button);
}

}  // namespace desktop
