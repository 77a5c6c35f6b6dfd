#include "mainwindow/table.h"

namespace {

using namespace toolkit;

// clang-format off
constexpr ControlSpec Rows[] = {
    // The title band.
    {.name = "picTopTitle", .place = {0, 0, 376, 35}},
    {.name = "shpFiller", .place = {0, 0, 376, 35}, .picture = "title"},
    {.name = "Image1", .place = {9, 6, 25, 22}, .picture = "mark"},
    {.name = "lblTitle", .place = {42, 6, 150, 22}, .flags = Title},
    {.name = "lblVersion", .place = {217, 20, 150, 10}, .flags = Small},

    {.name = "lblEngine", .caption = "Engine", .place = {9, 43, 32, 14}, .names = "cmbEngines"},
    {.name = "cmbEngines", .place = {42, 43, 169, 14}, .tab = 0, .key = "engine"},
    {.name = "cmdSettings", .caption = "Settings...", .place = {216, 43, 54, 14}, .tab = 1},
    {.name = "lblIWAD", .caption = "Game", .place = {9, 61, 32, 14}, .names = "cmbIWADs"},
    {.name = "cmbIWADs", .place = {42, 61, 169, 14}, .tab = 2, .key = "iwad"},
    {.name = "cmdLaunch", .caption = "Launch", .place = {216, 61, 54, 14}, .tab = 3},
    {.name = "cmdSetup", .caption = "Setup...", .place = {284, 43, 40, 14}, .tab = 4},
    {.name = "cmdAbout", .caption = "About...", .place = {327, 43, 40, 14}, .tab = 5},
    {.name = "cmdExit", .caption = "Exit", .place = {284, 61, 83, 14}, .tab = 6, .flags = Cancel},

    {.name = "framQuickStart", .caption = "Quick Start", .place = {9, 81, 358, 180}},
    {.name = "lblFiles", .caption = "Additional files", .place = {19, 94, 219, 9},
     .names = "lstFiles"},
    {.name = "lstFiles", .place = {19, 105, 219, 90}, .tab = 7},
    {.name = "cmdGetMapLump", .place = {19, 200, 19, 14}, .tab = 8, .picture = "map",
     .spoken = "Use first map"},
    {.name = "cmdShowTextFile", .place = {42, 200, 19, 14}, .tab = 9, .picture = "text",
     .spoken = "View text file"},
    {.name = "cmdClear", .caption = "Clear", .place = {196, 200, 42, 14}, .tab = 10},
    {.name = "cmdRemove", .caption = "Remove", .place = {150, 200, 42, 14}, .tab = 11},
    {.name = "cmdAdd", .caption = "Add", .place = {104, 200, 42, 14}, .tab = 12},
    {.name = "lblParameters", .caption = "Additional command line parameters",
     .place = {19, 223, 219, 9}, .names = "txtParameters"},
    {.name = "txtParameters", .place = {19, 234, 219, 14}, .tab = 13, .key = "parameters"},

    {.name = "lblMap", .caption = "Map", .place = {252, 94, 105, 9}, .names = "cmbMaps"},
    {.name = "cmbMaps", .place = {252, 105, 105, 14}, .tab = 14, .key = "map"},
    {.name = "lblSkill", .caption = "Skill level", .place = {252, 124, 105, 9},
     .names = "cmbSkill"},
    {.name = "cmbSkill", .place = {252, 135, 105, 14}, .tab = 15, .key = "skill"},
    {.name = "chkNoMonsters", .caption = "No monsters", .place = {252, 154, 105, 10}, .tab = 16,
     .key = "nomonsters"},
    {.name = "chkFastMonsters", .caption = "Fast monsters", .place = {252, 166, 105, 10}, .tab = 17,
     .key = "fastmonsters"},
    {.name = "chkRespawnMonsters", .caption = "Respawning monsters", .place = {252, 178, 105, 10},
     .tab = 18, .key = "respawnmonsters"},
    {.name = "chkDeathmatch", .caption = "Deathmatch", .place = {252, 190, 105, 10}, .tab = 22,
     .key = "deathmatch"},
    {.name = "cmdDemo", .caption = "Record", .place = {252, 206, 50, 14}, .tab = 19},
    {.name = "cmdPlayBack", .caption = "Playback...", .place = {307, 206, 50, 14}, .tab = 20},
    {.name = "cmdRun", .caption = "Run", .place = {252, 226, 105, 22}, .tab = 21,
     .flags = Default | Accent},

    {.name = "Frame1", .place = {9, 267, 358, 1}},
    {.name = "lblTip", .place = {9, 271, 358, 10}, .flags = Quiet},
};
// clang-format on

}  // namespace

constinit const WindowSpec MainWindowTable = {
    .name = "frmMain", .caption = "Zorvane", .width = 376, .height = 286, .rows = Rows};
