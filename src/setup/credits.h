// The About box.
#pragma once

#include "toolkit/control.h"
#include "toolkit/window.h"

/// A static page with two links to the web.
class CreditsWindow : public toolkit::Window {
  public:
    CreditsWindow();

    // clang-format off
    toolkit::Label lblCreditType0{*this, {
        .caption = "Programming", .place = {12, 10, 230, 9}, .flags = toolkit::Bold}};
    toolkit::Label lblProgrammer{*this, {
        .caption = "The authors of Zorvane", .place = {12, 21, 230, 9}}};
    toolkit::Label lblCreditType1{*this, {
        .caption = "Additional code", .place = {12, 38, 230, 9}, .flags = toolkit::Bold}};
    toolkit::Label lblCoder{*this, {.caption = "Qt, on Linux (", .place = {12, 49, 60, 9}}};
    toolkit::Label lblLinkCoder{*this, {
        .caption = "https://www.qt.io", .place = {72, 49, 90, 9}, .tab = 1, .access = 'Q',
        .flags = toolkit::Link | toolkit::Follows}};
    toolkit::Label lblThingy1{*this, {
        .caption = ")", .place = {162, 49, 10, 9}, .flags = toolkit::Follows}};
    toolkit::Label lblCreditType2{*this, {
        .caption = "Beta testing", .place = {12, 66, 230, 9}, .flags = toolkit::Bold}};
    toolkit::Label lblTester1{*this, {
        .caption = "Chocolate Doom, Crispy Doom, DSDA-Doom and Woof!",
        .place = {12, 77, 230, 9}}};
    toolkit::Label lblTester2{*this, {
        .caption = "Freedoom and FreeDM", .place = {12, 88, 230, 9}}};
    toolkit::Label lblCreditType3{*this, {
        .caption = "Icon art", .place = {12, 105, 230, 9}, .flags = toolkit::Bold}};
    toolkit::Label lblArtist{*this, {
        .caption = "The authors of Zorvane, with librsvg (", .place = {12, 116, 130, 9}}};
    toolkit::Label lblLinkArtist{*this, {
        .caption = "https://gitlab.gnome.org/GNOME/librsvg", .place = {142, 116, 90, 9},
        .tab = 2, .access = 'G', .flags = toolkit::Link | toolkit::Follows}};
    toolkit::Label lblThingy2{*this, {
        .caption = ")", .place = {232, 116, 10, 9}, .flags = toolkit::Follows}};
    toolkit::Button cmdOK{*this, {
        .caption = "OK", .place = {232, 136, 50, 14}, .tab = 0, .access = 'O',
        .flags = toolkit::Default}};
    // clang-format on
};

extern CreditsWindow frmCredits;
