// Engine definition files: one configuration text for each engine, written by hand.
//
//     type = "Zorvane engine file";
//     executable = "sample.exe";
//     realname = "Sample Engine";
//     demoext = "lmp";
//     parameters
//     {
//         nosound = "No sound at all";
//     }
//     filetypes
//     {
//         wad = "WAD files";
//     }
#pragma once

#include <string>

/// Reads every `*.cfg` of a directory into Engines, in the order of the listing. Without a single
/// file it shows a message and stops the program.
void ScanEngineFiles(const std::string& directory);

/// Adds the engine that the file defines to Engines. A file of another type is passed over in
/// silence, and so is an engine whose key in the settings file another one has already. Text that
/// is missing is empty, a list that is missing has no entry.
void ReadEngineFile(const std::string& fileName);

/// The key of an engine in the settings file: its name with each blank replaced by the character of
/// code 1, for a key of a configuration text can hold no blank.
std::string EngineKey(const std::string& realname);
