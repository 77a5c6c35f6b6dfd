// Engine definition files: one configuration text per engine, written by hand.
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

/// Reads every `*.cfg` of a directory into Engines, in the order of the listing. Shows a message
/// and returns false if there is no such file.
[[nodiscard]] bool ScanEngineFiles(const std::string& directory);

/// Appends the engine that a file defines to Engines. A missing text is empty, and so is a missing
/// list. No-op if the file is of another type or if an engine of the same EngineKey exists. Shows a
/// message if the file cannot be read.
void ReadEngineFile(const std::string& fileName);

/// Key of an engine in the settings file: its name with each space replaced by the character of
/// code 1, because a key cannot contain spaces.
std::string EngineKey(const std::string& realname);
