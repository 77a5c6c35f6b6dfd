// Messages to the player.
#pragma once

#include <string>

#include "state/records.h"
#include "toolkit/dialogs.h"

/// Shows a message about something that the player can put right.
inline void Warn(const std::string& text) {
    desktop::ShowMessage(text, ProgramTitle, desktop::MessageIcon::Exclamation);
}
