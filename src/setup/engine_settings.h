// The dialog that switches an engine's options on and off.
#pragma once

#include <array>

#include "state/records.h"
#include "toolkit/control.h"
#include "toolkit/window.h"

/// Shows the options of one engine as check boxes, and their text on the command line. A click
/// changes the engine's record immediately.
class EngineSettingsWindow : public toolkit::Window {
  public:
    EngineSettingsWindow();

    /// Fills the window for the engine at an index of Engines. The caller shows it.
    void ShowEngine(int engineNum);

    // clang-format off
    toolkit::Frame Frame1{*this, {.caption = "Options", .place = {9, 8, 340, 122}, .tab = 18}};
    std::array<toolkit::CheckBox, OptionCount> chkOptions;
    toolkit::Label lblParametersCaption{*this, {
        .caption = "Command line parameters", .place = {9, 137, 340, 9}, .tab = 19}};
    toolkit::Label lblParameters{*this, {
        .place = {9, 148, 340, 34}, .tab = 16, .flags = toolkit::Sunken,
        .label = &lblParametersCaption}};
    toolkit::Button cmdAccept{*this, {
        .caption = "Accept", .place = {299, 190, 50, 14}, .tab = 17, .access = 'A',
        .flags = toolkit::Default}};
    // clang-format on

  private:
    void ShowEngineOptions();
    void OptionClicked(std::size_t index);

    int engineNum_ = 0;
};

extern EngineSettingsWindow frmEngineSettings;
