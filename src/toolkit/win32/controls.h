// Creates the native control of each kind of control, in the file of the same name.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/lists.h"
#include "toolkit/win32/native_control.h"

namespace desktop {

/// Creates the native control of any kind of control. Returns null for a part of the backdrop.
std::unique_ptr<NativeControl> MakeControl(NativeWindow& parent, toolkit::Control& control);

std::unique_ptr<NativeControl> MakeLabel(NativeWindow& parent, toolkit::Label& label);
std::unique_ptr<NativeControl> MakeButton(NativeWindow& parent, toolkit::Button& button);
/// A button in the color of the program.
std::unique_ptr<NativeControl> MakeAccentButton(NativeWindow& parent, toolkit::Button& button);
std::unique_ptr<NativeControl> MakeCheckBox(NativeWindow& parent, toolkit::CheckBox& box);
std::unique_ptr<NativeControl> MakeTextBox(NativeWindow& parent, toolkit::TextBox& box);
std::unique_ptr<NativeControl> MakeListBox(NativeWindow& parent, toolkit::ListBox& list);
std::unique_ptr<NativeControl> MakeDropDownList(NativeWindow& parent, toolkit::DropDownList& list);
std::unique_ptr<NativeControl> MakeComboBox(NativeWindow& parent, toolkit::ComboBox& box);
std::unique_ptr<NativeControl> MakeListView(NativeWindow& parent, toolkit::ListView& list);
std::unique_ptr<NativeControl> MakeFrame(NativeWindow& parent, toolkit::Control& frame);

/// Whether the Tab key stops at a control.
bool IsInTabOrder(const toolkit::Control& control);

/// Returns a window's controls in z-order from front to back, which is also the tab order: first
/// those that the Tab key reaches, each after the label that names it to screen readers; then the
/// others, of which a later declared one covers an earlier one; the frames are last.
std::vector<toolkit::Control*> InStackingOrder(const toolkit::Window& window);

/// Converts a caption, doubling each "&": Windows takes a single one for the mark of an access key.
std::wstring EscapeAmpersands(const std::string& caption);

/// The same with a mark at the first `letter`, in either case; without one if the caption lacks it.
std::wstring MarkAccessKey(const std::string& caption, char letter);

}  // namespace desktop
