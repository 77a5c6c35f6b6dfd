#include "toolkit/control.h"

#include <algorithm>

namespace toolkit {

Control::Control(Window& window, Kind kind, const ControlSpec& spec)
    : window_(window),
      spec_(spec),
      index_(static_cast<int>(window.controls_.size())),
      kind_(kind),
      caption_(spec.caption),
      access_(spec.access) {
    window.controls_.push_back(this);
}

void Control::Reset() {
    caption_ = spec_.caption;
    toolTip_.clear();
    access_ = spec_.access;
    enabled_ = true;
    visible_ = true;
}

void Control::Changed(desktop::Property property, int row) {
    if (window_.Loaded()) {
        desktop::PropertyChanged(*this, property, row);
    }
}

void Control::SetCaption(std::string caption) {
    if (caption != caption_) {
        caption_ = std::move(caption);
        Changed(desktop::Property::Caption);
    }
}

void Control::SetAccess(char letter) {
    if (letter != access_) {
        access_ = letter;
        Changed(desktop::Property::Caption);
    }
}

void Control::SetEnabled(bool enabled) {
    if (enabled != enabled_) {
        enabled_ = enabled;
        Changed(desktop::Property::Enabled);
    }
}

void Control::SetVisible(bool visible) {
    if (visible != visible_) {
        visible_ = visible;
        Changed(desktop::Property::Visible);
    }
}

void Control::SetToolTip(std::string toolTip) {
    if (toolTip != toolTip_) {
        toolTip_ = std::move(toolTip);
        Changed(desktop::Property::ToolTip);
    }
}

void Control::SetFocus() {
    Changed(desktop::Property::Focus);
}

void Control::UserMovesPointer(double x, double y) {
    if (spec_.tip) {
        Run(window_.OnTip, *spec_.tip);
    }
    Run(OnPointerMoved, x, y);
}

void Control::StoreValue(int number) {
    if (!spec_.key.empty()) {
        window_.Spec().values->storeNumber(spec_.key, number);
    }
}

void Control::StoreValue(const std::string& text) {
    if (!spec_.key.empty()) {
        window_.Spec().values->storeText(spec_.key, text);
    }
}

const Control* Label::Named() const {
    const auto& controls = Owner().Controls();
    const auto found = std::ranges::find_if(
        controls, [this](const Control* control) { return control->Spec().label == this; });
    return found != controls.end() ? *found : nullptr;
}

void Button::UserClicks() {
    if (Enabled() && Visible()) {
        Run(OnClick);
    }
}

void CheckBox::SetChecked(bool checked) {
    if (checked != checked_) {
        checked_ = checked;
        Changed(desktop::Property::Checked);
        StoreValue(checked ? 1 : 0);
        Run(OnClick);
    }
}

void CheckBox::Reset() {
    Control::Reset();
    checked_ = false;
}

void CheckBox::RestoreValue() {
    SetChecked(Owner().Spec().values->number(Spec().key) != 0);
}

void TextBox::SetText(std::string text) {
    if (text != text_) {
        text_ = std::move(text);
        Changed(desktop::Property::Text);
        ReportChange();
    }
}

void TextBox::UserTypes(std::string text) {
    if (text != text_) {
        text_ = std::move(text);
        ReportChange();
    }
}

void TextBox::ReportChange() {
    StoreValue(text_);
    Run(OnChange);
}

void TextBox::Reset() {
    Control::Reset();
    text_.clear();
}

void TextBox::RestoreValue() {
    SetText(Owner().Spec().values->text(Spec().key));
}

}  // namespace toolkit
