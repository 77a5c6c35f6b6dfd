// A window with a control of each kind, and a dialog.
#pragma once

#include "toolkit/control.h"
#include "toolkit/lists.h"

// clang-format off
inline constexpr toolkit::ControlSpec FormRows[] = {
    {.name = "framAll", .caption = "All", .place = {4, 4, 292, 192}},
    {.name = "lblRows", .caption = "Files & more", .place = {10, 16, 48, 12}, .names = "lstRows"},
    {.name = "lblLink", .caption = "R&D", .place = {180, 36, 60, 12}, .flags = toolkit::Link},
    {.name = "txtName", .place = {60, 16, 100, 14}, .tab = 0},
    {.name = "cmbFixed", .place = {60, 36, 100, 14}, .tab = 2},
    {.name = "cmbFree", .place = {60, 56, 100, 14}, .tab = 1},
    {.name = "chkBox", .caption = "Box", .place = {180, 16, 60, 12}, .tab = 3},
    {.name = "lstRows", .place = {10, 80, 120, 60}, .tab = 4},
    {.name = "lvwRows", .caption = "Name|File", .place = {140, 80, 150, 60}, .tab = 5},
    {.name = "cmdYes", .caption = "Yes & more", .place = {10, 160, 50, 14}, .tab = 6,
     .flags = toolkit::Default},
    {.name = "cmdNo", .place = {70, 160, 20, 14}, .tab = 7, .flags = toolkit::Cancel,
     .picture = "map", .spoken = "No"},
    {.name = "txtPath", .place = {140, 160, 100, 14}, .tab = 8, .flags = toolkit::IsPath},
};
inline constexpr toolkit::WindowSpec FormTable = {
    .name = "frmForm", .caption = "Form", .width = 300, .height = 200, .rows = FormRows};

inline constexpr toolkit::ControlSpec DialogRows[] = {
    {.name = "cmdOK", .caption = "OK", .place = {10, 10, 50, 14}, .tab = 0,
     .flags = toolkit::Default},
};
inline constexpr toolkit::WindowSpec DialogTable = {
    .name = "frmDialog", .caption = "Dialog", .width = 100, .height = 40, .dialog = true,
    .rows = DialogRows};
// clang-format on

struct Form : toolkit::Window {
    Form() : Window(FormTable) {}
    toolkit::Frame framAll{*this, "framAll"};
    toolkit::Label lblRows{*this, "lblRows"};
    toolkit::Label lblLink{*this, "lblLink"};
    toolkit::TextBox txtName{*this, "txtName"};
    toolkit::DropDownList cmbFixed{*this, "cmbFixed"};
    toolkit::ComboBox cmbFree{*this, "cmbFree"};
    toolkit::CheckBox chkBox{*this, "chkBox"};
    toolkit::ListBox lstRows{*this, "lstRows"};
    toolkit::ListView lvwRows{*this, "lvwRows"};
    toolkit::Button cmdYes{*this, "cmdYes"};
    toolkit::Button cmdNo{*this, "cmdNo"};
    toolkit::TextBox txtPath{*this, "txtPath"};
};

struct Dialog : toolkit::Window {
    Dialog() : Window(DialogTable) {}
    toolkit::Button cmdOK{*this, "cmdOK"};
};
