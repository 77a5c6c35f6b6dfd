// EDIT: one line of text.
#include "platform/win32/text.h"
#include "toolkit/win32/centered_edit.h"
#include "toolkit/win32/controls.h"

namespace desktop {
namespace {

class NativeTextBox : public NativeControl {
  public:
    NativeTextBox(NativeWindow& parent, toolkit::TextBox& box)
        : NativeControl(parent, box, {WC_EDITW, ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}), box_(box) {}

  protected:
    void OnCommand(WORD code) override {
        if (code == EN_CHANGE) {
            box_.UserTypes(WindowText());
        }
    }

    void OnPropertyChanged(Property property, int row) override {
        NativeControl::OnPropertyChanged(property == Property::Text ? Property::Caption : property,
                                         row);
        if (property == Property::Text && box_.Has(toolkit::IsPath)) {
            const std::wstring shown = CaptionText();
            Send(EM_SETSEL, shown.rfind(L'\\') + 1, static_cast<LPARAM>(shown.rfind(L'.')));
        }
    }

    void OnCreated() override { Send(EM_SETLIMITTEXT); }  // no limit

    void OnLayout() override { CenterLine(Handle(), GetMetrics()); }

    std::wstring CaptionText() const override { return platform::Wide(box_.Text()); }

  private:
    toolkit::TextBox& box_;
};

}  // namespace

std::unique_ptr<NativeControl> MakeTextBox(NativeWindow& parent, toolkit::TextBox& box) {
    return std::make_unique<NativeTextBox>(parent, box);
}

}  // namespace desktop
