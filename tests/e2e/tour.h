// The tour's tools: what works the dialogs of the windowing system and what proves a game. Whatever
// is not as it should be ends the tour and says so.
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
/// Lets the program run until `ready`, for half a minute at most.
void Until(const std::function<bool()>& ready, const std::string& what);
/// The window in front.
QWidget& Front();
/// A numbered picture of the whole screen, or of one window without its frame.
void Picture(const std::string& name);
void Portrait(const std::string& name);

/// What becomes of a dialog: its message, or what its field proposes, begins with `shown`; `typed`
/// replaces what is proposed; it is pictured when there is a name; Enter closes it.
struct Answer {
    std::string shown = {};
    std::string typed = {};
    std::string picture = {};
};
/// Presses a button and answers what comes up, one dialog after the other.
void Press(toolkit::Button& button, const std::vector<Answer>& answers = {});

/// Waits until that engine plays, with these arguments and one blank between two; moves its window
/// beside ours, takes the picture, and ends it with all of its own, if it does not go on.
void WatchGame(const std::string& engine, const std::string& arguments, const std::string& picture,
               bool goesOn = false);

}  // namespace tour
