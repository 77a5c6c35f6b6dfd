#include "toolkit/win32/controls.h"

#include <algorithm>
#include <limits>
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

/// The control that `label` names, or `label` itself if it names none.
const toolkit::Control& NamedBy(const toolkit::Control& label) {
    for (const toolkit::Control* control : label.Owner().Controls()) {
        if (control->Spec().label == &label) {
            return *control;
        }
    }
    return label;
}

}  // namespace

std::unique_ptr<NativeControl> MakeControl(NativeWindow& parent, toolkit::Control& control) {
    switch (control.GetKind()) {
        case toolkit::Kind::Label:
            return MakeLabel(parent, As<toolkit::Label>(control));
        case toolkit::Kind::Button:
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
        case toolkit::Kind::Picture:
            break;
    }
    return nullptr;
}

bool IsInTabOrder(const toolkit::Control& control) {
    switch (control.GetKind()) {
        case toolkit::Kind::Label:
            return control.Has(toolkit::Link);
        case toolkit::Kind::Frame:
        case toolkit::Kind::Divider:
        case toolkit::Kind::Picture:
            return false;
        default:
            return control.Spec().tab >= 0;
    }
}

std::vector<toolkit::Control*> InStackingOrder(const toolkit::Window& window) {
    // Layer, position in it (links last in the tab order), and the label before the control that it
    // names.
    const auto key = [](const toolkit::Control* control) {
        const toolkit::Control& named = NamedBy(*control);
        if (IsInTabOrder(named)) {
            const int tab =
                named.Spec().tab >= 0 ? named.Spec().tab : std::numeric_limits<int>::max();
            return std::tuple(0, tab, &named == control ? 1 : 0);
        }
        return std::tuple(control->GetKind() == toolkit::Kind::Frame ? 2 : 1, -control->Index(), 0);
    };
    std::vector<toolkit::Control*> controls = window.Controls();
    std::ranges::stable_sort(controls, {}, key);
    return controls;
}

std::wstring EscapeAmpersands(const std::string& caption) {
    return platform::Wide(ReplaceAll(caption, "&", "&&"));
}

std::wstring MarkAccessKey(const std::string& caption, char letter) {
    const std::size_t at = UpperCase(caption).find(letter);
    return at == std::string::npos ? EscapeAmpersands(caption)
                                   : EscapeAmpersands(caption.substr(0, at)) + L'&' +
                                         EscapeAmpersands(caption.substr(at));
}

}  // namespace desktop
