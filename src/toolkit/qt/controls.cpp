#include "toolkit/qt/controls.h"

#include <QTextDocument>

#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// Qt takes some file names for rich text; these are escaped.
QString PlainToolTip(const std::string& text) {
    const QString shown = DisplayText(text);
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

}  // namespace

NativeControl* MakeControl(toolkit::Control& control, QWidget& parent) {
    using toolkit::Kind;
    switch (control.GetKind()) {
        case Kind::Label:
            return MakeLabel(static_cast<toolkit::Label&>(control), parent);
        case Kind::Button:
            return MakeButton(static_cast<toolkit::Button&>(control), parent);
        case Kind::CheckBox:
            return MakeCheckBox(static_cast<toolkit::CheckBox&>(control), parent);
        case Kind::TextBox:
            return MakeTextBox(static_cast<toolkit::TextBox&>(control), parent);
        case Kind::ListBox:
            return MakeListBox(static_cast<toolkit::ListBox&>(control), parent);
        case Kind::DropDownList:
            return MakeDropDownList(static_cast<toolkit::DropDownList&>(control), parent);
        case Kind::ComboBox:
            return MakeComboBox(static_cast<toolkit::ComboBox&>(control), parent);
        case Kind::ListView:
            return MakeListView(static_cast<toolkit::ListView&>(control), parent);
        case Kind::Frame:
            return MakeFrame(control, parent);
        case Kind::Divider:
            return MakeDivider(control, parent);
        case Kind::Picture:
            return MakePicture(control, parent);
    }
    return nullptr;
}

void ApplyProperty(NativeControl& native, const toolkit::Control& control, Property property,
                   int row) {
    QWidget& widget = native.Widget();
    switch (property) {
        case Property::Enabled:
            widget.setEnabled(control.Enabled());
            break;
        case Property::Visible:
            widget.setVisible(control.Visible());
            break;
        case Property::ToolTip:
            widget.setToolTip(PlainToolTip(control.ToolTip()));
            break;
        case Property::Focus:
            widget.setFocus(Qt::OtherFocusReason);
            break;
        default:
            native.Apply(property, row);
    }
}

}  // namespace desktop
