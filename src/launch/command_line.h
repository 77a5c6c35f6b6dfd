// Composes the command lines that engines are started with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/records.h"

/// Returns the switches of an engine that are on, in the order of its definition, in lower case and
/// separated by a space. `engineNum` is a valid index into Engines.
std::string EngineParameterString(int engineNum);

/// Returns the arguments that start a map: "-warp 1 1" for `E1M1`, "-warp 7" for `MAP07`, and "+map
/// " with the upper-case name for any other. Case does not matter.
std::string WarpArguments(std::string_view mapName);

/// Returns the text before the last dot, or the whole text if it has none. Dots in folder names
/// count.
std::string RemoveExtension(const std::string& fileName);

/// Returns the command line of the Launch button: the engine's switches and the game WAD, unquoted.
std::string LaunchCommandLine(int engine, const std::string& gameWad);

/// What the command line of a Quick Start depends on, besides the file list.
struct QuickStart {
    int engine = 0;       // a valid index into Engines
    std::string gameWad;  // full path
    int skill = 0;        // counts from 0; on the command line from 1
    bool noMonsters = false;
    bool fastMonsters = false;
    bool respawnMonsters = false;
    std::string map;
    std::string recordTo;    // temporary demo file, empty for no recording
    std::string playFrom;    // demo to play back, empty for none; ignored while recording
    std::string parameters;  // what the player typed, unchanged
};

/// Returns the full command line of a Quick Start, with each of `files` in double quotes. Some
/// spaces are doubled, and without `parameters` the last character is a space; engines ignore both.
std::string QuickStartCommandLine(const QuickStart& start, const clsStringArray& files);
