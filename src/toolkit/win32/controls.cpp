#include "toolkit/win32/controls.h"

#include <algorithm>
#include <utility>

#include "platform/win32/text.h"
#include "text/ascii.h"

namespace desktop {
namespace {

template <typename Kind>
Kind& As(toolkit::Control& control) {
    return static_cast<Kind&>(control);
}

std::unique_ptr<NativeControl> MakeAnyButton(NativeWindow& parent, toolkit::Button& button) {
    return button.Has(toolkit::Accent) ? MakeAccentButton(parent, button)
                                       : MakeButton(parent, button);
}

/// The control in whose place of the order a control stands: itself, or for a label the one that it
/// names.
const toolkit::Control& Leading(const toolkit::Window& window, const toolkit::Control& control) {
    const toolkit::Control* named =
        control.Spec().names.empty() ? nullptr : window.Find(control.Spec().names);
    return named != nullptr ? *named : control;
}

}  // namespace

std::unique_ptr<NativeControl> MakeControl(NativeWindow& parent, toolkit::Control& control) {
    switch (control.GetKind()) {
        case toolkit::Kind::Label:
            return MakeLabel(parent, As<toolkit::Label>(control));
        case toolkit::Kind::Button:
        case toolkit::Kind::PictureButton:
            return MakeAnyButton(parent, As<toolkit::Button>(control));
        case toolkit::Kind::CheckBox:
            return MakeCheckBox(parent, As<toolkit::CheckBox>(control));
        case toolkit::Kind::TextBox:
            return MakeTextBox(parent, As<toolkit::TextBox>(control));
        case toolkit::Kind::ListBox:
            return MakeListBox(parent, As<toolkit::ListBox>(control));
        case toolkit::Kind::DropDownList:
            return MakeDropDownList(parent, As<toolkit::DropDownList>(control));
        case toolkit::Kind::ComboBox:
            return MakeComboBox(parent, As<toolkit::ComboBox>(control));
        case toolkit::Kind::ListView:
            return MakeListView(parent, As<toolkit::ListView>(control));
        case toolkit::Kind::Frame:
            return MakeFrame(parent, control);
        case toolkit::Kind::Divider:
            return MakeDivider(parent, control);
        case toolkit::Kind::Picture:
            break;
    }
    return MakePicture(parent, control);
}

bool IsInTabOrder(const toolkit::Control& control) {
    switch (control.GetKind()) {
        case toolkit::Kind::Label:
        case toolkit::Kind::Frame:
        case toolkit::Kind::Divider:
        case toolkit::Kind::Picture:
            return false;
        default:
            return control.Spec().tab >= 0;
    }
}

std::vector<toolkit::Control*> InStackingOrder(const toolkit::Window& window) {
    const toolkit::ControlSpec* first = window.Spec().rows.data();
    // Layer, place in it, and the label before what it names.
    const auto key = [&](const toolkit::Control* control) {
        const toolkit::Control& leading = Leading(window, *control);
        const int row = static_cast<int>(&control->Spec() - first);
        if (IsInTabOrder(leading)) {
            return std::tuple(0, leading.Spec().tab, &leading == control ? 1 : 0);
        }
        return std::tuple(control->GetKind() == toolkit::Kind::Frame ? 2 : 1, -row, 0);
    };
    std::vector<toolkit::Control*> controls = window.Controls();
    std::ranges::stable_sort(controls, {}, key);
    return controls;
}

std::wstring WithoutMnemonics(const std::string& caption) {
    return platform::Wide(ReplaceAll(caption, "&", "&&"));
}

}  // namespace desktop
