// Windows in memory, and what a person does there.
#include <gtest/gtest.h>

#include <deque>

#include "driver.h"
#include "memory.h"
#include "platform/desktop.h"

namespace {

std::deque<std::function<void()>> modalSteps;
std::deque<int> menuChoices;
const toolkit::Control* focused = nullptr;

/// Rows of a list box are this high, for the hit test.
constexpr int RowHeight = 16;
constexpr int ListWidth = 200;
constexpr int ListHeight = 160;

template <typename Queue>
auto TakeFront(Queue& queue) {
    auto front = queue.front();
    queue.pop_front();
    return front;
}

toolkit::Button* ButtonWith(const toolkit::Window& window, toolkit::Flag flag) {
    for (toolkit::Control* control : window.Controls()) {
        if (control->Has(flag)) {
            return dynamic_cast<toolkit::Button*>(control);
        }
    }
    return nullptr;
}

/// The control behind `tab` in the tab order, or the first one.
const toolkit::Control* NextInTabOrder(const toolkit::Window& window, int tab) {
    using toolkit::Kind;
    const toolkit::Control* next = nullptr;
    for (const toolkit::Control* control : window.Controls()) {
        const bool takesFocus = control->Row().tab > tab && control->Enabled() &&
                                control->Visible() && control->GetKind() != Kind::Label &&
                                control->GetKind() != Kind::Frame;
        if (takesFocus && (next == nullptr || control->Row().tab < next->Row().tab)) {
            next = control;
        }
    }
    return next == nullptr && tab >= 0 ? NextInTabOrder(window, -1) : next;
}

}  // namespace

namespace platform {

void LoadWindow(toolkit::Window&) {}
void UnloadWindow(toolkit::Window&) {
    focused = nullptr;
}
void ShowWindow(toolkit::Window& window) {
    focused = NextInTabOrder(window, -1);
}
void HideWindow(toolkit::Window&) {}
void RepaintWindow(toolkit::Window&) {}
void DrawCaption(toolkit::Window&) {}
void StartDesktop(int&, char**) {}
int RunEventLoop() {
    return 0;
}
double UnitsPerPixelX() {
    return 1;
}
double UnitsPerPixelY() {
    return 1;
}

void RunModal(toolkit::Window& window) {
    const toolkit::Control* opener = focused;
    focused = NextInTabOrder(window, -1);
    if (modalSteps.empty()) {
        ADD_FAILURE() << "unexpected window: " << window.Caption();
    } else {
        TakeFront(modalSteps)();
    }
    if (window.Visible()) {
        ADD_FAILURE() << "still open: " << window.Caption();
        window.Hide();
    }
    focused = opener;
}

void Draw(toolkit::Control& control, Aspect aspect, int) {
    if (aspect == Aspect::Focus) {
        focused = &control;
    }
}

std::uint32_t ItemFromPoint(const toolkit::ListBox& list, int x, int y) {
    constexpr std::uint32_t Outside = 0x10000;
    if (x < 0 || y < 0 || x >= ListWidth || y >= ListHeight) {
        return Outside;
    }
    (void)list;
    return static_cast<std::uint32_t>(y / RowHeight);
}

void ShowPopupMenu(toolkit::Window&, toolkit::PopupMenu& menu) {
    if (menuChoices.empty()) {
        ADD_FAILURE() << "unexpected menu: " << menu.Caption();
    } else if (const int choice = TakeFront(menuChoices); choice >= 0) {
        menu.Items().at(static_cast<std::size_t>(choice))->UserClicks();
    }
}

void DoEvents() {
    if (memory::machine.onEvents) {
        memory::machine.onEvents();
    }
}

}  // namespace platform

namespace driver {

void Click(toolkit::Control& control) {
    if (auto* box = dynamic_cast<toolkit::CheckBox*>(&control)) {
        box->UserChecks(!box->Checked());
    } else if (auto* label = dynamic_cast<toolkit::Label*>(&control)) {
        label->UserClicks();
    } else {
        dynamic_cast<toolkit::Button&>(control).UserClicks();
    }
}

void Choose(toolkit::ItemControl& list, int row) {
    list.UserSelects(row);
}
void Choose(toolkit::ListView& list, int row) {
    list.UserSelects(row);
}

void DoubleClick(toolkit::ListBox& list, int row) {
    list.UserSelects(row);
    list.UserDoubleClicks();
}

void DoubleClick(toolkit::ListView& list, int row) {
    list.UserSelects(row);
    list.UserDoubleClicks();
}

void RightClick(toolkit::ListBox& list, int row) {
    list.UserReleasesButton(2, 1, row * RowHeight + 1);
}

void Type(toolkit::Control& control, const std::string& text) {
    if (auto* combo = dynamic_cast<toolkit::ComboBox*>(&control)) {
        combo->UserTypes(text);
    } else {
        dynamic_cast<toolkit::TextBox&>(control).UserTypes(text);
    }
}

void PointAt(toolkit::Control& control, int row) {
    control.UserMovesPointer(1, row * RowHeight + 1);
}

void PointAt(toolkit::Window& window) {
    window.UserMovesPointer();
}

void PressEnter(toolkit::Window& window) {
    auto* button = dynamic_cast<const toolkit::Button*>(focused);
    toolkit::Button* pressed = button != nullptr
                                   ? dynamic_cast<toolkit::Button*>(window.Find(button->Row().name))
                                   : ButtonWith(window, toolkit::Default);
    if (pressed != nullptr) {
        pressed->UserClicks();
    }
}

void PressEscape(toolkit::Window& window) {
    if (toolkit::Button* cancel = ButtonWith(window, toolkit::Cancel)) {
        cancel->UserClicks();
    } else {
        window.UserCloses();
    }
}

void PressTab(toolkit::Window& window) {
    focused = NextInTabOrder(window, focused == nullptr ? -1 : focused->Row().tab);
}

void Close(toolkit::Window& window) {
    window.UserCloses();
}
void InNextModal(std::function<void()> steps) {
    modalSteps.push_back(std::move(steps));
}
void AtNextMenu(int row) {
    menuChoices.push_back(row);
}

std::string ShownText(const toolkit::Control& control) {
    if (const auto* combo = dynamic_cast<const toolkit::ComboBox*>(&control)) {
        return combo->Text();
    }
    if (const auto* list = dynamic_cast<const toolkit::DropDownList*>(&control)) {
        return list->Text();
    }
    const auto* text = dynamic_cast<const toolkit::TextBox*>(&control);
    return text != nullptr ? text->Text() : control.Caption();
}

std::vector<std::string> ShownItems(const toolkit::Control& control) {
    std::vector<std::string> items;
    if (const auto* view = dynamic_cast<const toolkit::ListView*>(&control)) {
        for (int row = 1; row <= view->RowCount(); ++row) {
            items.push_back(view->At(row).first + "|" + view->At(row).second);
        }
    } else {
        const auto& list = dynamic_cast<const toolkit::ItemControl&>(control);
        for (int row = 0; row < list.ListCount(); ++row) {
            items.push_back(list.List(row));
        }
    }
    return items;
}

int ShownIndex(const toolkit::Control& control) {
    const auto* view = dynamic_cast<const toolkit::ListView*>(&control);
    return view != nullptr ? view->SelectedRow()
                           : dynamic_cast<const toolkit::ItemControl&>(control).ListIndex();
}

bool ShownChecked(const toolkit::CheckBox& box) {
    return box.Checked();
}
bool ShownEnabled(const toolkit::Control& control) {
    return control.Enabled();
}
bool ShownVisible(const toolkit::Control& control) {
    return control.Visible();
}
bool ShownWindow(const toolkit::Window& window) {
    return window.Visible();
}
std::string ShownCaption(const toolkit::Window& window) {
    return window.Caption();
}

std::string Focused(const toolkit::Window& window) {
    return focused != nullptr && &focused->Owner() == &window ? std::string(focused->Row().name)
                                                              : std::string();
}

}  // namespace driver
