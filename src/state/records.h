// The records that every module shares, and the one copy of each.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "config/configuration.h"
#include "state/string_array.h"

/// Title of every message box.
inline constexpr const char* ProgramTitle = "Zorvane";
/// Switches of an engine that can be turned on, one check box each in its settings dialog.
inline constexpr int OptionCount = 16;
/// An index that selects nothing.
inline constexpr int NoSelection = -1;

struct EngineFileType {
    std::string description;  // the words of a file dialog
    std::string extension;    // without point and star
};

struct EngineParameter {
    std::string caption;     // the words of its check box
    std::string switchText;  // as it goes on the command line, "-" included
};

using EngineOptions = std::array<bool, OptionCount>;

/// One engine: what its definition file says, and where it lies and what is switched on.
struct EngineRecord {
    std::string realname;    // shown in lists, and its identity in the settings file
    std::string executable;  // file name of the program, without directory
    std::string demoext;     // extension of its demos, without the point
    std::vector<EngineFileType> filetypes;
    std::vector<EngineParameter> parameters;
    std::string path;         // directory of the program, without a closing backslash; may be empty
    EngineOptions options{};  // options[i] switches parameters[i] on
};

/// One game WAD.
struct GameWadRecord {
    std::string name;  // the formal name that the user gave
    std::string file;  // full path
};

/// Every valid engine definition. Fixed after the start but for `path` and `options`. An index into
/// it is the row number in every list of engines; the same goes for GameWads.
extern std::vector<EngineRecord> Engines;
extern std::vector<GameWadRecord> GameWads;
/// Full paths of the additional files, row for row those of the main window's list.
extern clsStringArray FileList;

/// The settings document. Scalars live in its tree during the whole run; the lists above meet it
/// only when it is loaded and saved.
extern clsConfiguration Settings;
/// Full path of the settings file.
extern std::string SettingsFileName;
/// The table of known game WADs: file name in lower case to formal name.
extern clsConfiguration Autodetect;

std::int32_t EngineCount();
std::int32_t GameWadCount();

/// The record at an index that is valid.
EngineRecord& EngineAt(int index);
GameWadRecord& GameWadAt(int index);

/// The full path of an engine's program: its path, a backslash, its executable.
std::string ProgramFile(const EngineRecord& engine);

/// Empties everything above, for a fresh start in one process.
void ResetState();
