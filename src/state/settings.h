// The settings file: everything that the user chose, in one configuration text beside the program.
//
//     type = "Zorvane Configuration file";
//     engine = 0;                              selected rows, from 0, -1 for none
//     iwad = 0;
//     skill = 2;
//     map = 6;
//     fastmonsters = 0;                        boxes, 0 or 1
//     nomonsters = 0;
//     respawnmonsters = 0;
//     deathmatch = 0;
//     parameters = "-turbo 120";
//     lastdir = "C:\\wads";                    folder of the last file opened
//     iwads     { 0 = "Name|C:\\wads\\game.wad"; }
//     engines   { Engine_Name { path = "C:\\Engine"; options = "1000000000000000"; } }
//     pwads     { 0 = "C:\\wads\\castle.wad"; }
//
// The blanks of an engine's name stand as characters of code 1. The number keys of `iwads` and
// `pwads` are written fresh at each save; the order of the entries is the order of the lists.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "state/records.h"
#include "toolkit/window.h"

/// Makes the default settings and finds the name of their file.
void InitialiseSettings();

/// Reads the settings file into Settings, GameWads, FileList and the paths and options of Engines.
/// A file of the wrong type, or one that cannot be read, leads to a message and stops the program;
/// the file stays as it is.
void LoadSettings();

/// Writes the three lists into the tree, and the tree to the file in one step. On failure the old
/// file is whole.
platform::Outcome SaveSettings();

/// Writes the tree as it stands, for the first run.
platform::Outcome SaveDefaults();

/// Sixteen characters, "1" for each option that is on and "0" for the others, and back. Characters
/// other than "1" change no option, nor do those behind the sixteenth.
std::string OptionsToString(const EngineOptions& options);
void OptionsFromString(std::string_view text, EngineOptions& options);

/// A key of the settings as a whole number, rounded; 0 for a text that is none. A key that is not
/// there is entered with the value nothing.
std::int32_t SettingNumber(std::string_view key);
/// The same as a text.
std::string SettingText(std::string_view key);
/// Replaces the value of a key. Numbers go in as 16-bit ones.
void StoreSetting(std::string_view key, int number);
void StoreSetting(std::string_view key, const std::string& text);

/// The settings as the place where controls keep their values.
inline constexpr toolkit::ValueStore SettingsValues = {SettingNumber, SettingText, StoreSetting,
                                                       StoreSetting};
