// The three modal dialogs for files and folders, texts in and one text out. The empty text is
// Cancel.
//
// A filter is display text and pattern in turn, all separated by "|", a pattern being masks
// separated by ";": "WAD files (*.wad)|*.wad|All files (*.*)|*.*".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace toolkit {
class Window;
}

/// The flag words in use, as Windows defines their bits.
inline constexpr std::uint32_t OneFileFlags = 4100;         // must exist
inline constexpr std::uint32_t SeveralFilesFlags = 528900;  // must exist, more than one allowed
inline constexpr std::uint32_t SaveFileFlags = 6;           // asks before overwriting

/// Chooses a file to open. Gives its full path or, when the flags allow several and more than one
/// was chosen, the folder and the bare names with single NULs between. Starts in the folder of
/// `InitialFile` if that file exists, else in the setting `lastdir`, which follows the choice. A
/// choice too long for the dialog's buffer counts as Cancel.
std::string OpenFileDialog(toolkit::Window& Owner, const std::string& Title,
                           const std::string& Filter, const std::string& InitialFile,
                           std::uint32_t Flags);

/// Chooses a file to write. The same, for one path, and `lastdir` stays as it is.
std::string SaveFileDialog(toolkit::Window& Owner, const std::string& Title,
                           const std::string& Filter, const std::string& InitialFile,
                           std::uint32_t Flags);

/// Chooses a folder; `Title` is a line of instruction. Gives its path without a closing backslash,
/// apart from a drive's root.
std::string BrowseForFolder(toolkit::Window& Owner, const std::string& Title);

/// What stands before the first two NULs in a row; the whole text when there are none.
std::string TrimAtDoubleNull(std::string_view Text);
