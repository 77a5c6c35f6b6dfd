#include "toolkit/control.h"

#include <cstdlib>

namespace toolkit {
namespace {

/// A control without a row is a slip of its window's author, found at the first start.
const ControlSpec& RowOf(const Window& window, std::string_view name) {
    for (const ControlSpec& row : window.Spec().rows) {
        if (row.name == name) {
            return row;
        }
    }
    std::abort();
}

void Run(const std::function<void()>& handler) {
    if (handler) {
        handler();
    }
}

}  // namespace

Control::Control(Window& window, Kind kind, std::string_view name)
    : window_(window), row_(RowOf(window, name)), kind_(kind), caption_(row_.caption) {
    window.controls_.push_back(this);
}

void Control::Reset() {
    caption_ = row_.caption;
    toolTip_.clear();
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
    if (OnPointerMoved) {
        OnPointerMoved(x, y);
    }
}

void Control::UserReleasesButton(int button, double x, double y) {
    if (OnButtonReleased) {
        OnButtonReleased(button, x, y);
    }
}

void Label::UserClicks() {
    Run(OnClick);
}

Button::Button(Window& window, std::string_view name)
    : Control(window, RowOf(window, name).picture.empty() ? Kind::Button : Kind::PictureButton,
              name) {}

void Button::UserClicks() {
    if (Enabled() && Visible()) {
        Run(OnClick);
    }
}

void CheckBox::SetChecked(bool checked) {
    if (checked != checked_) {
        checked_ = checked;
        Changed(desktop::Property::Checked);
        Run(OnClick);
    }
}

void CheckBox::Reset() {
    Control::Reset();
    checked_ = false;
}

void TextBox::SetText(std::string text) {
    if (text != text_) {
        text_ = std::move(text);
        Changed(desktop::Property::Text);
        Run(OnChange);
    }
}

void TextBox::UserTypes(std::string text) {
    if (text != text_) {
        text_ = std::move(text);
        Run(OnChange);
    }
}

void TextBox::Reset() {
    Control::Reset();
    text_.clear();
}

}  // namespace toolkit
