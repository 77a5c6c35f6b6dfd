// The small dialog that follows a recording.
#pragma once

#include <string>

#include "toolkit/control.h"
#include "toolkit/window.h"

/// The filter of both demo dialogs for files of one extension, without a point.
std::string DemoFilter(const std::string& extension);

/// Files a recorded demo under the name that the user gives, or throws it away. The temporary file
/// goes only when the demo has been saved, or by Discard.
class DemoSaveWindow : public toolkit::Window {
  public:
    DemoSaveWindow();

    std::string DemoFileName;  // the temporary file, set before the dialog is shown
    std::string DemoExt;       // extension of the demo, without a point

    toolkit::Label lblSaveDemo{*this, "lblSaveDemo"};
    toolkit::TextBox txtDemoFile{*this, "txtDemoFile"};
    toolkit::Button cmdBrowse{*this, "cmdBrowse"};
    toolkit::Button cmdSave{*this, "cmdSave"};
    toolkit::Button cmdDiscard{*this, "cmdDiscard"};

  private:
    void Propose();
    void Browse();
    void Save();
    void Discard();
    std::string WithDemoExtension(const std::string& path) const;
};

extern DemoSaveWindow frmDemoSave;
