#include <QLineEdit>
#include <QSignalBlocker>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// The shown text may differ from the exact one, which the control keeps until the user types.
class TextBoxWidget final : public QLineEdit, public NativeControl {
  public:
    TextBoxWidget(toolkit::TextBox& box, QWidget& parent) : QLineEdit(&parent), box_(box) {
        Apply(Property::Text, -1);
        connect(this, &QLineEdit::textChanged, this,
                [this](const QString& typed) { box_.UserTypes(Encode(typed)); });
    }

    QWidget& Widget() override { return *this; }

    void Apply(Property property, int) override {
        if (property != Property::Text) {
            return;
        }
        const QString shown =
            box_.Has(toolkit::IsPath) ? DisplayText(box_.Text()) : Decode(box_.Text());
        if (shown != text()) {
            const QSignalBlocker guard(this);
            setText(shown);
        }
        if (box_.Has(toolkit::IsPath)) {
            const auto name = static_cast<int>(shown.lastIndexOf(QLatin1Char('/')) + 1);
            setSelection(name, static_cast<int>(shown.lastIndexOf(QLatin1Char('.'))) - name);
        }
    }

  private:
    toolkit::TextBox& box_;
};

}  // namespace

NativeControl* MakeTextBox(toolkit::TextBox& box, QWidget& parent) {
    return new TextBoxWidget(box, parent);
}

}  // namespace desktop
