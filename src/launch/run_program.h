// Starts programs and opens documents and URLs. Nothing else in Zorvane does.
#pragma once

#include <string>

/// Windows show states, passed on unchanged.
inline constexpr int ShowMaximized = 3;
inline constexpr int ShowNormally = 5;
inline constexpr int ShowMinimizedInactive = 7;

/// Opens a program, a document or a URL through the shell, with its folder as working directory. A
/// bare name (no "/", "\" or ":") is looked up in the program directory, and `fileName` becomes
/// that path. With `wait` it returns when the started program has ended, and handles events
/// meanwhile. Returns 0 if the shell refused, otherwise 1. Shows no message.
int RunProgram(std::string& fileName, const std::string& parameters, int showCommand, bool wait);

/// Returns the folder of an existing file, with its final backslash: the text without the file name
/// that was found. Returns the whole text if there is no such file, and an empty text for one that
/// cannot be a file name, such as a URL.
std::string FolderOfFile(const std::string& fileName);
