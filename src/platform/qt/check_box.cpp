#include <QCheckBox>
#include <QSignalBlocker>

#include "platform/qt/controls.h"
#include "platform/qt/text.h"

namespace platform::qt {
namespace {

class CheckBoxWidget final : public QCheckBox, public NativeControl {
  public:
    CheckBoxWidget(toolkit::CheckBox& box, QWidget& parent) : QCheckBox(&parent), box_(box) {
        DrawContent(Aspect::Caption, -1);
        DrawContent(Aspect::Checked, -1);
        connect(this, &QCheckBox::toggled, this,
                [this](bool checked) { box_.UserChecks(checked); });
    }

    QWidget& Widget() override { return *this; }

    void DrawContent(Aspect aspect, int) override {
        if (aspect == Aspect::Caption) {
            setText(WithoutAccessKeys(Shown(box_.Caption())));
        } else if (aspect == Aspect::Checked) {
            const QSignalBlocker silence(this);
            setChecked(box_.Checked());
        }
    }

  private:
    toolkit::CheckBox& box_;
};

}  // namespace

NativeControl* MakeCheckBox(toolkit::CheckBox& box, QWidget& parent) {
    return new CheckBoxWidget(box, parent);
}

}  // namespace platform::qt
