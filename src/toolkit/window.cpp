#include "toolkit/window.h"

#include "platform/desktop.h"
#include "toolkit/control.h"

namespace toolkit {

void Window::Load() {
    if (loaded_) {
        return;
    }
    caption_ = table_.caption;
    for (Control* control : controls_) {
        control->Reset();
    }
    loaded_ = true;
    platform::LoadWindow(*this);
    if (OnLoad) {
        OnLoad();
    }
}

void Window::Unload() {
    if (!loaded_) {
        return;
    }
    Hide();
    platform::UnloadWindow(*this);
    loaded_ = false;
}

void Window::Show() {
    if (!visible_) {
        visible_ = true;
        platform::ShowWindow(*this);
    }
}

void Window::Hide() {
    if (visible_) {
        visible_ = false;
        platform::HideWindow(*this);
    }
}

void Window::ShowModal() {
    if (visible_) {
        return;
    }
    if (OnShow) {
        OnShow();
    }
    visible_ = true;
    platform::RunModal(*this);
}

void Window::Repaint() {
    platform::RepaintWindow(*this);
}

void Window::SetCaption(std::string caption) {
    if (caption != caption_) {
        caption_ = std::move(caption);
        platform::DrawCaption(*this);
    }
}

Control* Window::Find(std::string_view name) const {
    for (Control* control : controls_) {
        if (control->Row().name == name) {
            return control;
        }
    }
    return nullptr;
}

void Window::UserCloses() {
    if (OnCloseRequest) {
        OnCloseRequest();
    }
}

void Window::UserMovesPointer() {
    if (OnPointerMoved) {
        OnPointerMoved();
    }
}

}  // namespace toolkit
