// The kinds of controls. Each makes the widget of a control with the content that it has now; the
// widget belongs to `parent` and reports what the user does to the control.
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

/// Row of a list box under a point of its client area, as ItemFromPoint of platform/desktop.h.
std::uint32_t RowUnderPoint(const NativeControl& listBox, QPoint point);

}  // namespace desktop
