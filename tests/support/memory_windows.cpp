// Windows in memory, and what a person does there.
#include "driver.h"
#include "memory.h"
#include "toolkit/desktop.h"

using memory::machine;

namespace {

toolkit::Control* focused = nullptr;

constexpr int RowHeight = 16;

template <class Kind>
Kind* As(const toolkit::Control& control) {
    return dynamic_cast<Kind*>(const_cast<toolkit::Control*>(&control));
}

/// The control after `tab` in the tab order, or the first one.
toolkit::Control* NextInTabOrder(const toolkit::Window& window, int tab) {
    toolkit::Control* next = nullptr;
    for (toolkit::Control* control : window.Controls()) {
        const bool takesFocus =
            control->Enabled() && control->Visible() && control->GetKind() != toolkit::Kind::Label;
        if (takesFocus && control->Spec().tab > tab &&
            (next == nullptr || control->Spec().tab < next->Spec().tab)) {
            next = control;
        }
    }
    return next == nullptr && tab >= 0 ? NextInTabOrder(window, -1) : next;
}

}  // namespace

namespace desktop {

void LoadWindow(toolkit::Window&) {}
void UnloadWindow(toolkit::Window&) {
    focused = nullptr;
}
void ShowWindow(toolkit::Window& window) {
    focused = NextInTabOrder(window, -1);
}
void HideWindow(toolkit::Window&) {}
void RepaintWindow(toolkit::Window&) {
    ++machine.repaints;
}
void CaptionChanged(toolkit::Window&) {}
void RunModal(toolkit::Window& window) {
    toolkit::Control* opener = focused;
    focused = NextInTabOrder(window, -1);
    memory::Take(machine.steps, window.Caption(), std::function<void()>([] {}))();
    if (window.Visible()) {
        ADD_FAILURE() << "still open: " << window.Caption();
        window.Hide();
    }
    focused = opener;
}

void PropertyChanged(toolkit::Control& control, Property property, int) {
    if (property == Property::Focus) {
        focused = &control;
    }
}

std::uint32_t ItemFromPoint(const toolkit::ListBox&, int x, int y) {
    constexpr std::uint32_t Outside = 0x10000;
    return x < 0 || y < 0 ? Outside : static_cast<std::uint32_t>(y / RowHeight);
}

void ShowPopupMenu(toolkit::Window&, toolkit::PopupMenu& menu) {
    if (const int choice = memory::Take(machine.menus, menu.Caption(), -1); choice >= 0) {
        menu.Items().at(static_cast<std::size_t>(choice))->UserClicks();
    }
}

void DoEvents() {
    if (machine.onEvents) {
        machine.onEvents();
    }
}

void RunEventsUntilEnd(const platform::ProcessHandle&) {
    while (machine.rounds-- > 0) {
        DoEvents();
    }
}

}  // namespace desktop

namespace driver {

void Use(Mouse gesture, toolkit::Control& control, int row) {
    const double height = row * RowHeight + 1;
    if (gesture == Mouse::Move) {
        control.UserMovesPointer(1, height);
    } else if (gesture == Mouse::RightClick) {
        As<toolkit::ListBox>(control)->UserReleasesButton(toolkit::MouseButton::Right, 1, height);
    } else if (auto* box = As<toolkit::CheckBox>(control)) {
        box->UserChecks(!box->Checked());
    } else if (auto* label = As<toolkit::Label>(control)) {
        label->UserClicks();
    } else if (auto* button = As<toolkit::Button>(control)) {
        button->UserClicks();
    } else {
        Choose(control, row);
        auto* view = As<toolkit::ListView>(control);
        view != nullptr ? view->UserDoubleClicks()
                        : As<toolkit::ListBox>(control)->UserDoubleClicks();
    }
}

void PointAt(toolkit::Window& window) {
    window.UserMovesPointer();
}

void Choose(toolkit::Control& list, int row) {
    if (auto* view = As<toolkit::ListView>(list)) {
        view->UserSelects(row);
    } else {
        dynamic_cast<toolkit::ItemControl&>(list).UserSelects(row);
    }
}

void Type(toolkit::Control& control, const std::string& text) {
    if (auto* combo = As<toolkit::ComboBox>(control)) {
        combo->UserTypes(text);
    } else {
        dynamic_cast<toolkit::TextBox&>(control).UserTypes(text);
    }
}

void Press(toolkit::Window& window, Key key) {
    if (key == Key::Tab) {
        focused = NextInTabOrder(window, focused == nullptr ? -1 : focused->Spec().tab);
        return;
    }
    const bool isEnter = key == Key::Enter;
    auto* button = isEnter && focused != nullptr ? As<toolkit::Button>(*focused) : nullptr;
    for (toolkit::Control* control : window.Controls()) {
        if (button == nullptr && control->Has(isEnter ? toolkit::Default : toolkit::Cancel)) {
            button = As<toolkit::Button>(*control);
        }
    }
    if (button != nullptr) {
        button->UserClicks();
    } else if (!isEnter) {
        window.UserCloses();
    }
}

void Close(toolkit::Window& window) {
    window.UserCloses();
}
void InNextModal(std::function<void()> steps) {
    machine.steps.push_back(std::move(steps));
}
void AtNextMenu(int row) {
    machine.menus.push_back(row);
}

Look LookAt(const toolkit::Control& control) {
    Look look = {.text = control.Caption(),
                 .enabled = control.Enabled(),
                 .visible = control.Visible(),
                 .focused = focused == &control};
    if (const auto* box = As<toolkit::CheckBox>(control)) {
        look.checked = box->Checked();
    } else if (const auto* field = As<toolkit::TextBox>(control)) {
        look.text = field->Text();
    } else if (const auto* view = As<toolkit::ListView>(control)) {
        look.text.clear();
        look.index = view->SelectedRow() - 1;
        for (int row = 1; row <= view->RowCount(); ++row) {
            look.items.push_back(view->At(row).first + "|" + view->At(row).second);
        }
    } else if (const auto* list = As<toolkit::ItemControl>(control)) {
        look.index = list->ListIndex();
        for (int row = 0; row < list->ListCount(); ++row) {
            look.items.push_back(list->List(row));
        }
        const auto* combo = As<toolkit::ComboBox>(control);
        const std::string chosen = look.index >= 0 ? list->List(look.index) : std::string();
        look.text = combo != nullptr ? combo->Text() : chosen;
    }
    return look;
}

std::string ShownCaption(const toolkit::Window& window) {
    return window.Visible() ? window.Caption() : std::string();
}

}  // namespace driver
