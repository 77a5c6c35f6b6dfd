// The modal dialogs for files and folders. They return the empty text on Cancel.
//
// A filter consists of display texts and patterns in turn, separated by "|". A pattern consists of
// masks separated by ";": "WAD files (*.wad)|*.wad|All files (*.*)|*.*".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit {
class Window;
}

/// Filter for WAD files.
inline constexpr const char* WadFilter = "WAD files (*.wad)|*.wad|All files (*.*)|*.*";

/// The combinations of flags in use, with the bits that Windows defines.
inline constexpr std::uint32_t OneFileFlags = 4100;         // must exist
inline constexpr std::uint32_t SeveralFilesFlags = 528900;  // must exist, more than one allowed
inline constexpr std::uint32_t SaveFileFlags = 6;           // asks before overwriting

/// Lets the user choose a file to open. Returns its full path; if the flags allow several and more
/// than one was chosen, the folder and the bare names, separated by NULs. Starts in the folder of
/// `initialFile` if that file exists, otherwise in the folder of the setting `lastdir`, and sets
/// `lastdir` to the folder of the choice. A result of more than 256 characters counts as Cancel.
std::string OpenFileDialog(toolkit::Window& owner, const std::string& title,
                           const std::string& filter, const std::string& initialFile,
                           std::uint32_t flags);

/// Lets the user choose a file to write. Returns its full path and leaves `lastdir` alone.
std::string SaveFileDialog(toolkit::Window& owner, const std::string& title,
                           const std::string& filter, const std::string& initialFile,
                           std::uint32_t flags);

/// Lets the user choose a folder; `title` is a line of instruction. Returns its path, without a
/// final backslash except for the root of a drive.
std::string BrowseForFolder(toolkit::Window& owner, const std::string& title);

/// The full paths in a result of OpenFileDialog, in its order; none for the empty text.
std::vector<std::string> ChosenFiles(const std::string& result);

/// The text before the first two NULs in a row; the whole text if there are none.
std::string TrimAtDoubleNull(std::string_view text);
