// The About box.
#pragma once

#include "toolkit/control.h"
#include "toolkit/window.h"

/// A static page with two links to the web.
class CreditsWindow : public toolkit::Window {
  public:
    CreditsWindow();

    toolkit::Label lblCreditType0{*this, "lblCreditType0"};
    toolkit::Label lblProgrammer{*this, "lblProgrammer"};
    toolkit::Label lblCreditType1{*this, "lblCreditType1"};
    toolkit::Label lblCoder{*this, "lblCoder"};
    toolkit::Label lblLinkCoder{*this, "lblLinkCoder"};
    toolkit::Label lblThingy1{*this, "lblThingy1"};
    toolkit::Label lblCreditType2{*this, "lblCreditType2"};
    toolkit::Label lblTester1{*this, "lblTester1"};
    toolkit::Label lblTester2{*this, "lblTester2"};
    toolkit::Label lblCreditType3{*this, "lblCreditType3"};
    toolkit::Label lblArtist{*this, "lblArtist"};
    toolkit::Label lblLinkArtist{*this, "lblLinkArtist"};
    toolkit::Label lblThingy2{*this, "lblThingy2"};
    toolkit::Button cmdOK{*this, "cmdOK"};
};

extern CreditsWindow frmCredits;
