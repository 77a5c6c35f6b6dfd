// The shared data types, and the global variables of these types.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "config/configuration.h"
#include "state/string_array.h"

/// Title of every message box.
inline constexpr const char* ProgramTitle = "Zorvane";
/// Number of an engine's switches that can be turned on: one check box each in its dialog.
inline constexpr int OptionCount = 16;
/// The index of no row.
inline constexpr int NoSelection = -1;

struct EngineFileType {
    std::string description;  // as a file dialog shows it
    std::string extension;    // without dot and star
};

struct EngineParameter {
    std::string caption;     // of its check box
    std::string switchText;  // as it goes on the command line, including the "-"
};

using EngineOptions = std::array<bool, OptionCount>;

struct EngineRecord {
    // From the definition file:
    std::string realname;    // shown in lists; identifies the engine in the settings file
    std::string executable;  // file name of the program, without directory
    std::string demoext;     // extension of its demos, without the dot
    std::vector<EngineFileType> filetypes;
    std::vector<EngineParameter> parameters;
    // From the settings file:
    std::string path;  // directory of the program, without a trailing backslash; may be empty
    EngineOptions options{};  // options[i] turns parameters[i] on
};

struct GameWadRecord {
    std::string name;  // chosen by the user
    std::string file;  // full path
};

/// All engines and game WADs, in the order in which they are listed. An index is a row of the combo
/// boxes; list views count from 1. Of the engines only `path` and `options` change after the start.
extern std::vector<EngineRecord> Engines;
extern std::vector<GameWadRecord> GameWads;
/// Whether an engine file could not be read. The settings of engines that are not in Engines are
/// then kept.
extern bool EngineFileUnread;
/// Full paths of the additional files, in the order of the main window's list.
extern clsStringArray FileList;

/// The settings. Single values are always up to date in this tree; the three lists above are copied
/// from it by LoadSettings and into it by SaveSettings.
extern clsConfiguration Settings;
/// Full path of the settings file.
extern std::string SettingsFileName;
/// The known games: file name in lower case to the name that is proposed.
extern clsConfiguration Autodetect;

std::int32_t EngineCount();
std::int32_t GameWadCount();

/// The record at a valid index.
EngineRecord& EngineAt(int index);
GameWadRecord& GameWadAt(int index);

/// Full path of an engine's program.
std::string ProgramFile(const EngineRecord& engine);

/// Clears all of the above, for a test that starts the program again.
void ResetState();
