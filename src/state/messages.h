// Messages to the user.
#pragma once

#include <string>

#include "state/records.h"
#include "toolkit/dialogs.h"

/// Shows a message about something that the user can put right.
inline void Warn(const std::string& text) {
    desktop::ShowMessage(text, ProgramTitle, desktop::MessageIcon::Exclamation);
}

/// Shows a message about something that stops the program or that it has lost.
inline void Fail(const std::string& text) {
    desktop::ShowMessage(text, ProgramTitle, desktop::MessageIcon::Critical);
}
