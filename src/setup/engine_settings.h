// The dialog that turns an engine's switches on and off.
#pragma once

#include <array>
#include <memory>

#include "state/records.h"
#include "toolkit/control.h"
#include "toolkit/window.h"

/// Shows the switches of one engine as check boxes, with the text that they give on the command
/// line. A click changes the record at once.
class EngineSettingsWindow : public toolkit::Window {
  public:
    EngineSettingsWindow();

    /// Prepares the window for one engine, by its index in Engines. The caller shows it then.
    void PassEngine(int EngineNum);

    std::array<std::unique_ptr<toolkit::CheckBox>, OptionCount> chkOptions;
    toolkit::Label lblParameters{*this, "lblParameters"};
    toolkit::Button cmdAccept{*this, "cmdAccept"};
    toolkit::Frame Frame1{*this, "Frame1"};
    toolkit::Label lblParametersCaption{*this, "lblParametersCaption"};

  private:
    void ShowEngineOptions();
    void OptionClicked(std::size_t index);

    int engineNum_ = 0;
};

extern EngineSettingsWindow frmEngineSettings;
