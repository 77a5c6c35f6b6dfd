// The one place through which anything outside the system starts.
#pragma once

#include <string>

/// Windows show states, passed on as they are.
inline constexpr int ShowMaximized = 3;
inline constexpr int ShowNormally = 5;
inline constexpr int ShowMinimizedInactive = 7;

/// Opens a program, a document or a URL through the shell, in the folder of that file. A bare name
/// (no "/", "\" or ":") gets the program directory before it, in the caller's variable too. With
/// `Wait` it returns after the started process has ended and lets the windows live meanwhile.
/// Gives 0 when the shell refused, else another number; shows no message.
int RunProgram(std::string& FileName, const std::string& Parameters, int ShowCommand, bool Wait);

/// The folder of an existing file, with its closing backslash: the text without the bare name of
/// the file that it finds. The whole text when it finds none; empty for a text that is no file
/// name, such as a URL.
std::string FolderOfFile(const std::string& FileName);
