// A window with a control of each kind, and a dialog.
#pragma once

#include "toolkit/control.h"
#include "toolkit/lists.h"

// clang-format off
struct Form : toolkit::Window {
    Form() : Window({.caption = "Form", .width = 300, .height = 200}) {}
    toolkit::Frame framAll{*this, {.caption = "All", .place = {4, 4, 292, 192}}};
    toolkit::Label lblRows{*this, {.caption = "Files & more", .place = {10, 16, 48, 12}}};
    toolkit::Label lblLink{*this, {
        .caption = "R&D", .place = {180, 36, 60, 12}, .flags = toolkit::Link}};
    toolkit::TextBox txtName{*this, {.place = {60, 16, 100, 14}, .tab = 0}};
    toolkit::DropDownList cmbFixed{*this, {.place = {60, 36, 100, 14}, .tab = 2}};
    toolkit::ComboBox cmbFree{*this, {.place = {60, 56, 100, 14}, .tab = 1}};
    toolkit::CheckBox chkBox{*this, {.caption = "Box", .place = {180, 16, 60, 12}, .tab = 3}};
    toolkit::ListBox lstRows{*this, {
        .place = {10, 80, 120, 60}, .tab = 4, .access = 'M', .label = &lblRows}};
    toolkit::ListView lvwRows{*this, {
        .caption = "Name|File", .place = {140, 80, 150, 60}, .tab = 5}};
    toolkit::Button cmdYes{*this, {
        .caption = "Yes & more", .place = {10, 160, 50, 14}, .tab = 6, .access = 'R',
        .flags = toolkit::Default}};
    toolkit::Button cmdNo{*this, {
        .place = {70, 160, 20, 14}, .tab = 7, .access = 'N', .flags = toolkit::Cancel,
        .picture = "map", .accessibleName = "No"}};
    toolkit::TextBox txtPath{*this, {
        .place = {140, 160, 100, 14}, .tab = 8, .flags = toolkit::IsPath}};
};

struct Dialog : toolkit::Window {
    Dialog() : Window({.caption = "Dialog", .width = 100, .height = 40, .dialog = true}) {}
    toolkit::Button cmdOK{*this, {
        .caption = "OK", .place = {10, 10, 50, 14}, .tab = 0, .flags = toolkit::Default}};
};
// clang-format on
