#include "toolkit/window.h"

#include "toolkit/control.h"
#include "toolkit/desktop.h"

namespace toolkit {

void Window::Load() {
    if (loaded_) {
        return;
    }
    caption_ = spec_.caption;
    for (Control* control : controls_) {
        control->Reset();
    }
    loaded_ = true;
    desktop::LoadWindow(*this);
    Run(OnLoad);
}

void Window::Unload() {
    if (!loaded_) {
        return;
    }
    Hide();
    desktop::UnloadWindow(*this);
    loaded_ = false;
}

void Window::Show() {
    if (!visible_) {
        visible_ = true;
        desktop::ShowWindow(*this);
    }
}

void Window::Hide() {
    if (visible_) {
        visible_ = false;
        desktop::HideWindow(*this);
    }
}

void Window::ShowModal() {
    if (visible_) {
        return;
    }
    Run(OnShowModal);
    visible_ = true;
    desktop::RunModal(*this);
}

void Window::Repaint() {
    desktop::RepaintWindow(*this);
}

void Window::SetCaption(std::string caption) {
    if (caption != caption_) {
        caption_ = std::move(caption);
        desktop::CaptionChanged(*this);
    }
}

void Window::RestoreValues() {
    for (Control* control : controls_) {
        if (!control->Spec().key.empty()) {
            control->RestoreValue();
        }
    }
}

}  // namespace toolkit
