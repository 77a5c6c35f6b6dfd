// The kinds of controls, each made by the file of its name.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/lists.h"
#include "toolkit/win32/native_control.h"

namespace desktop {

/// The native control for one of the toolkit, of whatever kind.
std::unique_ptr<NativeControl> MakeControl(NativeWindow& parent, toolkit::Control& control);

std::unique_ptr<NativeControl> MakeLabel(NativeWindow& parent, toolkit::Label& label);
std::unique_ptr<NativeControl> MakeButton(NativeWindow& parent, toolkit::Button& button);
/// A button in the colour of the program.
std::unique_ptr<NativeControl> MakeAccentButton(NativeWindow& parent, toolkit::Button& button);
std::unique_ptr<NativeControl> MakeCheckBox(NativeWindow& parent, toolkit::CheckBox& box);
std::unique_ptr<NativeControl> MakeTextBox(NativeWindow& parent, toolkit::TextBox& box);
std::unique_ptr<NativeControl> MakeListBox(NativeWindow& parent, toolkit::ListBox& list);
std::unique_ptr<NativeControl> MakeDropDownList(NativeWindow& parent, toolkit::DropDownList& list);
std::unique_ptr<NativeControl> MakeComboBox(NativeWindow& parent, toolkit::ComboBox& box);
std::unique_ptr<NativeControl> MakeListView(NativeWindow& parent, toolkit::ListView& list);
std::unique_ptr<NativeControl> MakeFrame(NativeWindow& parent, toolkit::Control& frame);
std::unique_ptr<NativeControl> MakeDivider(NativeWindow& parent, toolkit::Control& divider);
std::unique_ptr<NativeControl> MakePicture(NativeWindow& parent, toolkit::Control& picture);

/// Whether the Tab key stops at a control: what only shows is passed over.
bool IsInTabOrder(const toolkit::Control& control);

/// A window's controls from the front to the back, which is the order of the Tab key as well: first
/// those that it reaches, each behind the label that names it to a screen reader, then the others,
/// of which a later row of the table covers an earlier one, with the frames at the back.
std::vector<toolkit::Control*> InStackingOrder(const toolkit::Window& window);

/// A caption in which `&` stands for itself and marks no key.
std::wstring WithoutMnemonics(const std::string& caption);

}  // namespace desktop
