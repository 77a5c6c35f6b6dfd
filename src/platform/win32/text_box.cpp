// EDIT: one line of text.
#include "platform/win32/controls.h"
#include "platform/win32/text.h"

namespace platform {
namespace {

class NativeTextBox : public NativeControl {
  public:
    NativeTextBox(NativeWindow& parent, toolkit::TextBox& box)
        : NativeControl(parent, box, {WC_EDITW, ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}), box_(box) {
        Send(EM_SETLIMITTEXT);  // none
    }

    void Lay(const Metrics& metrics) override {
        NativeControl::Lay(metrics);
        LayInMiddle(metrics, metrics.FieldHeight(), 0);  // its text would stay at the top
    }

  protected:
    void OnCommand(WORD code) override {
        if (code == EN_CHANGE) {
            box_.UserTypes(NativeText());
        }
    }

    void OnDraw(Aspect aspect, int row) override {
        if (aspect == Aspect::Text) {
            ::SetWindowTextW(Handle(), Wide(box_.Text()).c_str());
        } else if (aspect != Aspect::Caption) {  // for this control its text
            NativeControl::OnDraw(aspect, row);
        }
    }

    void OnDrawAll() override { OnDraw(Aspect::Text, -1); }

  private:
    toolkit::TextBox& box_;
};

}  // namespace

std::unique_ptr<NativeControl> MakeTextBox(NativeWindow& parent, toolkit::TextBox& box) {
    return std::make_unique<NativeTextBox>(parent, box);
}

}  // namespace platform
