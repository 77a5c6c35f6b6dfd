// The settings file: everything that the user chose, as one configuration text in the program
// directory.
//
//     type = "Zorvane Configuration file";
//     engine = 0;                              selected rows, from 0; -1 for none
//     iwad = 0;
//     skill = 2;
//     map = 6;
//     fastmonsters = 0;                        check boxes, 0 or 1
//     nomonsters = 0;
//     respawnmonsters = 0;
//     deathmatch = 0;
//     parameters = "-turbo 120";
//     lastdir = "C:\\wads";                    folder of the last file opened
//     iwads     { 0 = "Name|C:\\wads\\game.wad"; }
//     engines   { Engine_Name { path = "C:\\Engine"; options = "1000000000000000"; } }
//     pwads     { 0 = "C:\\wads\\castle.wad"; }
//
// The key of an engine is its EngineKey. In `iwads` and `pwads` only the order of the entries
// counts; each save numbers them again. A game's value without "|" is both name and file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "state/records.h"
#include "toolkit/window.h"

/// Replaces Settings by the defaults and sets SettingsFileName.
void InitialiseSettings();

/// Reads the settings file into Settings, GameWads, FileList and the paths and options of Engines.
/// Shows a message and returns false if the file cannot be read or is of another type; the file
/// stays as it is. A file that ends inside a structure, a string or a comment is used as far as it
/// goes, with a message.
[[nodiscard]] bool LoadSettings();

/// Copies the three lists into Settings and writes the file. An engine whose key could not be read
/// back has no entry.
[[nodiscard]] platform::Outcome SaveSettings();

/// Writes Settings to the file as it is, atomically: a failure leaves the old file whole. A file
/// that is not the one that this run read or wrote is kept as `zorvane.cfg.old`. The first one that
/// was incomplete or lacked one of the lists is kept as `zorvane.cfg.damaged`.
[[nodiscard]] platform::Outcome WriteSettings();

/// Returns sixteen characters: "1" for an option that is on, "0" for one that is off.
std::string OptionsToString(const EngineOptions& options);
/// Turns on the options for which the text has a "1"; leaves the others unchanged.
void OptionsFromString(std::string_view text, EngineOptions& options);

/// The value of a setting, rounded to a whole number (0 for a text that is no number) or as text.
/// Adds an absent key with no value.
std::int32_t SettingNumber(std::string_view key);
std::string SettingText(std::string_view key);
/// Replaces the value of a setting. A number is stored as a 16-bit one.
void StoreSetting(std::string_view key, int number);
void StoreSetting(std::string_view key, const std::string& text);

/// The settings as the place where controls keep their values.
inline constexpr toolkit::ValueStore SettingsValues = {SettingNumber, SettingText, StoreSetting,
                                                       StoreSetting};
