// Creates the widget of each kind of control, with the control's current state. The widget belongs
// to `parent` and reports to the control what the user does.
#pragma once

#include "toolkit/lists.h"
#include "toolkit/qt/native_control.h"

namespace desktop {

NativeControl* MakeLabel(toolkit::Label& label, QWidget& parent);
NativeControl* MakeButton(toolkit::Button& button, QWidget& parent);
NativeControl* MakeCheckBox(toolkit::CheckBox& box, QWidget& parent);
NativeControl* MakeTextBox(toolkit::TextBox& box, QWidget& parent);
NativeControl* MakeListBox(toolkit::ListBox& list, QWidget& parent);
NativeControl* MakeDropDownList(toolkit::DropDownList& combo, QWidget& parent);
NativeControl* MakeComboBox(toolkit::ComboBox& combo, QWidget& parent);
NativeControl* MakeListView(toolkit::ListView& list, QWidget& parent);
NativeControl* MakeFrame(toolkit::Control& frame, QWidget& parent);
NativeControl* MakeDivider(toolkit::Control& divider, QWidget& parent);
NativeControl* MakePicture(toolkit::Control& picture, QWidget& parent);

/// Implements ItemFromPoint.
std::uint32_t RowUnderPoint(const NativeControl& listBox, QPoint point);

}  // namespace desktop
