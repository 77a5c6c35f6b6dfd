// zorvane_tour PART FOLDER PICTURES: the program itself, which plays a part by its own widgets:
// `journey` from nothing to a recorded game, `return` on the day after, or the name of a look. It
// ends by its own Exit button, so an end without error means that every step was as it should be.
#include <QTimer>
#include <iostream>

#include "mainwindow/application.h"
#include "platform/desktop.h"
#include "platform/facts.h"
#include "state/startup.h"
#include "tour.h"

namespace {

void Play(const std::string& part, const std::string& folder) {
    if (part == "journey") {
        tour::Journey(folder);
    } else if (part == "return") {
        tour::Return(folder);
    } else {
        tour::Looks(part);
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    platform::StartDesktop(argumentCount, arguments);
    constexpr int partFolderPictures = 4;
    if (argumentCount != partFolderPictures) {
        std::cerr << "zorvane_tour PART FOLDER PICTURES\n";
        return 1;
    }
    platform::RememberArguments(1, arguments);
    tour::SetPictureFolder(arguments[3]);
    TieApplication();
    Main();
    constexpr int longest = 80000;
    QTimer::singleShot(longest, [] { tour::Check(false, "the tour comes to its end"); });
    QTimer::singleShot(0, [=] { Play(arguments[1], arguments[2]); });
    return platform::RunEventLoop() + 1;
}
