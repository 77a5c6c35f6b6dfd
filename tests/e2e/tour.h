// Tools of the tour: they drive the desktop's dialogs and check games. A failed check prints its
// reason and ends the tour.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tour {

inline std::string folder;         // the program directory
inline std::string pictureFolder;  // where the pictures go

void Check(bool fine, const std::string& what);
void CheckEqual(const std::string& actual, const std::string& expected);
/// Handles events until `ready` returns true, for half a minute at most.
void Until(const std::function<bool()>& ready, const std::string& what);
/// The window in front.
QWidget& Front();
/// Take a numbered picture of the screen, or of the window in front without its frame.
void Picture(const std::string& name);
void Portrait(const std::string& name);

/// How to answer a dialog. Its message, or the text in its field, must begin with `shown`; `typed`
/// replaces that text; a picture of that name is taken; Enter closes it.
struct Answer {
    std::string shown = {};
    std::string typed = {};
    std::string picture = {};
};
/// Presses a button and answers the dialogs that open, one after the other.
void Press(toolkit::Button& button, const std::vector<Answer>& answers = {});

/// Waits until the engine shows a game, and checks its arguments, separated by spaces. Moves its
/// window next to ours, takes a picture, and kills its process group.
void WatchGame(const std::string& engine, const std::string& arguments);

}  // namespace tour
