#include "setup/credits.h"

#include <string>

#include "launch/run_program.h"

namespace {

using toolkit::Bold;
using toolkit::Follows;
using toolkit::Link;

// clang-format off
constexpr toolkit::ControlSpec Rows[] = {
    {.name = "lblCreditType0", .caption = "Programming", .place = {12, 10, 230, 9}, .flags = Bold},
    {.name = "lblProgrammer", .caption = "The authors of Zorvane", .place = {12, 21, 230, 9}},
    {.name = "lblCreditType1", .caption = "Additional code", .place = {12, 38, 230, 9},
     .flags = Bold},
    {.name = "lblCoder", .caption = "Qt, on Linux (", .place = {12, 49, 60, 9}},
    {.name = "lblLinkCoder", .caption = "https://www.qt.io", .place = {72, 49, 90, 9},
     .flags = Link | Follows},
    {.name = "lblThingy1", .caption = ")", .place = {162, 49, 10, 9}, .flags = Follows},
    {.name = "lblCreditType2", .caption = "Beta testing", .place = {12, 66, 230, 9}, .flags = Bold},
    {.name = "lblTester1", .caption = "Chocolate Doom, Crispy Doom, DSDA-Doom and Woof!",
     .place = {12, 77, 230, 9}},
    {.name = "lblTester2", .caption = "Freedoom and FreeDM", .place = {12, 88, 230, 9}},
    {.name = "lblCreditType3", .caption = "Icon art", .place = {12, 105, 230, 9}, .flags = Bold},
    {.name = "lblArtist", .caption = "The authors of Zorvane, with librsvg (",
     .place = {12, 116, 130, 9}},
    {.name = "lblLinkArtist", .caption = "https://gitlab.gnome.org/GNOME/librsvg",
     .place = {142, 116, 90, 9}, .flags = Link | Follows},
    {.name = "lblThingy2", .caption = ")", .place = {232, 116, 10, 9}, .flags = Follows},
    {.name = "cmdOK", .caption = "OK", .place = {232, 136, 50, 14}, .tab = 0,
     .flags = toolkit::Default},
};
// clang-format on

constexpr toolkit::WindowSpec WindowRow = {.name = "frmCredits",
                                           .caption = "Zorvane credits",
                                           .width = 294,
                                           .height = 160,
                                           .dialog = true,
                                           .rows = Rows};

/// A link shows its own address.
void Open(const toolkit::Label& link) {
    std::string url = link.Caption();
    RunProgram(url, "", ShowMaximized, false);
}

}  // namespace

CreditsWindow frmCredits;

CreditsWindow::CreditsWindow() : Window(WindowRow) {
    lblLinkCoder.OnClick = [this] { Open(lblLinkCoder); };
    lblLinkArtist.OnClick = [this] { Open(lblLinkArtist); };
    cmdOK.OnClick = [this] { Hide(); };
    OnCloseRequest = [this] { Hide(); };
}
