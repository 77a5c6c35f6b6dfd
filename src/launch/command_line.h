// What an engine receives as its command line, as a pure function of what was selected.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/records.h"

/// The switched-on switches of an engine in the order of its definition, in lower case, one blank
/// between two. `EngineNum` is a valid index into Engines.
std::string EngineParameterString(int EngineNum);

/// The arguments that start a map: `E1M1` gives "-warp 1 1", `MAP07` gives "-warp 7", any other
/// name "+map " and the name in upper case. Case does not matter.
std::string WarpArguments(std::string_view MapName);

/// The text before its last point, or the text itself when it has none. Points in folders count.
std::string RemoveExtension(const std::string& FileName);

/// The short command line of Launch. The path of the game WAD stands without quotes.
std::string LaunchCommandLine(int engine, const std::string& gameWad);

/// All that a Quick Start depends on.
struct QuickStart {
    int engine = 0;       // a valid index into Engines
    std::string gameWad;  // full path
    int skill = 0;        // from 0; the command line counts from 1
    bool noMonsters = false;
    bool fastMonsters = false;
    bool respawnMonsters = false;
    std::string map;
    std::string recordTo;    // temporary demo file, empty for no recording
    std::string playFrom;    // demo to play back, empty for none; a recording goes before
    std::string parameters;  // what the player typed, as it stands
};

/// The full command line of Quick Start, with the entries of `files` in double quotes. Double and
/// trailing blanks belong to it.
std::string QuickStartCommandLine(const QuickStart& start, const clsStringArray& files);
