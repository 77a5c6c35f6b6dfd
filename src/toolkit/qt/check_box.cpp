#include <QCheckBox>
#include <QSignalBlocker>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

class CheckBoxWidget final : public QCheckBox, public NativeControl {
  public:
    CheckBoxWidget(toolkit::CheckBox& box, QWidget& parent) : QCheckBox(&parent), box_(box) {
        Apply(Property::Caption, -1);
        Apply(Property::Checked, -1);
        connect(this, &QCheckBox::toggled, this,
                [this](bool checked) { box_.UserChecks(checked); });
    }

    QWidget& Widget() override { return *this; }

    void Apply(Property property, int) override {
        if (property == Property::Caption) {
            setText(MarkAccessKey(DisplayText(box_.Caption()), box_.Access()));
        } else if (property == Property::Checked) {
            const QSignalBlocker guard(this);
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

}  // namespace desktop
