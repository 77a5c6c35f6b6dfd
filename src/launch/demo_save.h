// The dialog shown after a recording.
#pragma once

#include <string>

#include "toolkit/control.h"
#include "toolkit/window.h"

/// Filter of the demo dialogs for an extension without a dot.
std::string DemoFilter(const std::string& extension);

/// Copies a recorded demo to the file that the user names, or discards it. The temporary file is
/// deleted only after the demo has been saved, or by Discard.
class DemoSaveWindow : public toolkit::Window {
  public:
    DemoSaveWindow();

    std::string DemoFileName;  // the temporary file, set before the dialog is shown
    std::string DemoExt;       // extension of the demo, without a dot

    // clang-format off
    toolkit::Label lblSaveDemo{*this, {.caption = "Save demo to...", .place = {9, 9, 220, 9}}};
    toolkit::TextBox txtDemoFile{*this, {
        .place = {9, 21, 208, 14}, .tab = 0, .access = 'T', .flags = toolkit::IsPath,
        .label = &lblSaveDemo}};
    toolkit::Button cmdBrowse{*this, {
        .caption = "Browse...", .place = {222, 21, 50, 14}, .tab = 1, .access = 'B'}};
    toolkit::Button cmdSave{*this, {
        .caption = "Save", .place = {168, 45, 50, 14}, .tab = 2, .access = 'S',
        .flags = toolkit::Default}};
    toolkit::Button cmdDiscard{*this, {
        .caption = "Discard", .place = {222, 45, 50, 14}, .tab = 3, .access = 'D',
        .flags = toolkit::Cancel}};
    // clang-format on

  private:
    void Propose();
    void Browse();
    void Save();
    void Discard();
    std::string WithDemoExtension(const std::string& path) const;
};

extern DemoSaveWindow frmDemoSave;
