// What a person does at a window and what a person sees there, in the words of the tests. Each back
// end has its own implementation: on real widgets these go through the widgets' own input and are
// read back from the widgets, in memory they go through the controls.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/lists.h"
#include "toolkit/menu.h"
#include "toolkit/window.h"

namespace driver {

enum class Mouse { Move, Click, RightClick, DoubleClick };
/// Uses the mouse over a row of a list, counted as the control counts, over any other control near
/// its left end, where a check box can be pressed.
void Use(Mouse gesture, toolkit::Control& control, int row = 0);
/// Moves the pointer over the bare window.
void PointAt(toolkit::Window& window);
/// Chooses a row of any kind of list.
void Choose(toolkit::Control& list, int row);
/// Replaces the text of a text box or an edit field by typing.
void Type(toolkit::Control& control, const std::string& text);
/// Presses a key, sent to whatever has the focus in the window.
enum class Key : char { Tab = '\t', Enter = '\r', Escape = '\x1b' };
void Press(toolkit::Window& window, Key key);
/// Asks to close the window by its frame.
void Close(toolkit::Window& window);

/// Runs `steps` inside the next modal window, once it is shown. Queued calls go to one window each.
void InNextModal(std::function<void()> steps);
/// Chooses a row of the next pop-up menu; -1 leaves the menu.
void AtNextMenu(int row);

/// What the screen shows of a control. Paths are native, as they are drawn.
struct Look {
    std::string text = {};                // caption, or text of a field
    std::vector<std::string> items = {};  // columns are parted by |
    int index = -1;                       // of the selected one of them, below 0 for none
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    bool focused = false;
};
Look LookAt(const toolkit::Control& control);
/// The caption on the frame of a window, nothing while the window is hidden.
std::string ShownCaption(const toolkit::Window& window);

/// The control that has the focus, null if none has it.
inline const toolkit::Control* Focused(const toolkit::Window& window) {
    for (const toolkit::Control* control : window.Controls()) {
        if (LookAt(*control).focused) {
            return control;
        }
    }
    return nullptr;
}
inline void Click(toolkit::Control& control) {
    Use(Mouse::Click, control);
}
inline void RightClick(toolkit::Control& list, int row) {
    Use(Mouse::RightClick, list, row);
}
inline void DoubleClick(toolkit::Control& list, int row) {
    Use(Mouse::DoubleClick, list, row);
}
inline void PointAt(toolkit::Control& control, int row = 0) {
    Use(Mouse::Move, control, row);
}
inline std::string ShownText(const toolkit::Control& control) {
    return LookAt(control).text;
}
inline std::vector<std::string> ShownItems(const toolkit::Control& control) {
    return LookAt(control).items;
}

}  // namespace driver
