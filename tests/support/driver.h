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

/// Presses and releases the left button on a button, a check box or a link.
void Click(toolkit::Control& control);
/// Chooses a row, counted as the control counts.
void Choose(toolkit::ItemControl& list, int row);
void Choose(toolkit::ListView& list, int row);
/// Double clicks a row.
void DoubleClick(toolkit::ListBox& list, int row);
void DoubleClick(toolkit::ListView& list, int row);
/// Clicks a row of a list box with the right button.
void RightClick(toolkit::ListBox& list, int row);
/// Replaces the text of a text box or an edit field by typing.
void Type(toolkit::Control& control, const std::string& text);
/// Moves the pointer over a control, for a list box over the given row; over the bare window.
void PointAt(toolkit::Control& control, int row = 0);
void PointAt(toolkit::Window& window);
/// Keys, sent to whatever has the focus in the window.
void PressEnter(toolkit::Window& window);
void PressEscape(toolkit::Window& window);
void PressTab(toolkit::Window& window);
/// Asks to close the window by its frame.
void Close(toolkit::Window& window);

/// Runs `steps` inside the next modal window, once it is shown. Queued calls go to one window each.
void InNextModal(std::function<void()> steps);
/// Runs `steps` while the next pop-up menu is shown; `row` of its items is chosen, -1 leaves it.
void AtNextMenu(int row);

/// What the screen shows of a control. Paths are native, as they are drawn.
std::string ShownText(const toolkit::Control& control);
std::vector<std::string> ShownItems(const toolkit::Control& control);
int ShownIndex(const toolkit::Control& control);
bool ShownChecked(const toolkit::CheckBox& box);
bool ShownEnabled(const toolkit::Control& control);
bool ShownVisible(const toolkit::Control& control);
bool ShownWindow(const toolkit::Window& window);
std::string ShownCaption(const toolkit::Window& window);
/// Name of the control that has the focus, empty when none has it.
std::string Focused(const toolkit::Window& window);

}  // namespace driver
