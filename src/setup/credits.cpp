#include "setup/credits.h"

#include <string>

#include "launch/run_program.h"

namespace {

/// The caption of a link is its address.
void Open(const toolkit::Label& link) {
    std::string url = link.Caption();
    RunProgram(url, "", ShowMaximized, false);
}

}  // namespace

CreditsWindow frmCredits;

CreditsWindow::CreditsWindow()
    : Window({.caption = "Zorvane credits", .width = 294, .height = 160, .dialog = true}) {
    lblLinkCoder.OnClick = [this] { Open(lblLinkCoder); };
    lblLinkArtist.OnClick = [this] { Open(lblLinkArtist); };
    cmdOK.OnClick = [this] { Hide(); };
    OnCloseRequest = [this] { Hide(); };
}
