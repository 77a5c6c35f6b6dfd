// BUTTON: a check box.
#include "toolkit/win32/controls.h"

namespace desktop {
namespace {

class NativeCheckBox : public NativeControl {
  public:
    NativeCheckBox(NativeWindow& parent, toolkit::CheckBox& box)
        : NativeControl(parent, box, {WC_BUTTONW, BS_AUTOCHECKBOX}), box_(box) {}

  protected:
    void OnCommand(WORD code) override {
        if (code == BN_CLICKED) {
            box_.UserChecks(Send(BM_GETCHECK) == BST_CHECKED);
        }
    }

    void OnPropertyChanged(Property property, int row) override {
        if (property == Property::Checked) {
            Send(BM_SETCHECK, box_.Checked() ? BST_CHECKED : BST_UNCHECKED);
        } else {
            NativeControl::OnPropertyChanged(property, row);
        }
    }

    void OnCreated() override { OnPropertyChanged(Property::Checked, -1); }

    std::wstring CaptionText() const override {
        return MarkAccessKey(box_.Caption(), box_.Access());
    }

  private:
    toolkit::CheckBox& box_;
};

}  // namespace

std::unique_ptr<NativeControl> MakeCheckBox(NativeWindow& parent, toolkit::CheckBox& box) {
    return std::make_unique<NativeCheckBox>(parent, box);
}

}  // namespace desktop
