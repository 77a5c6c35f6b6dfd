// Modal dialogs of the platform: files, folders, messages, one line of text. Each blocks its owner
// and returns when it has closed. The file and folder records are those of Windows in portable
// form; members that the system leaves at 0 are not here.
#pragma once

#include <cstdint>
#include <string>

namespace toolkit {
class Window;
}

namespace desktop {

/// Sizes in characters of the buffers that the results come in, all ending NULs included.
inline constexpr std::uint32_t FileBufferSize = 258;
inline constexpr std::uint32_t FolderBufferSize = 260;

/// Bits of OpenFileName::Flags, by their Windows values.
inline constexpr std::uint32_t OfnOverwritePrompt = 0x2;
inline constexpr std::uint32_t OfnHideReadOnly = 0x4;
inline constexpr std::uint32_t OfnAllowMultiSelect = 0x200;
inline constexpr std::uint32_t OfnFileMustExist = 0x1000;
inline constexpr std::uint32_t OfnExplorer = 0x80000;

struct OpenFileName {
    toolkit::Window* hwndOwner = nullptr;
    std::string lpstrFilter;      // display text and pattern in turn, separated by NULs
    std::string lpstrFile;        // a buffer of nMaxFile NULs that the dialog fills
    std::uint32_t nMaxFile = 0;   // its size
    std::string lpstrInitialDir;  // start folder; empty or gone: the platform chooses
    std::string lpstrTitle;
    std::uint32_t Flags = 0;
};

/// Shows the dialog. True when the user confirmed and the result fits the buffer: one full path,
/// or with OfnAllowMultiSelect and several files the folder and the bare names, single NULs
/// between, two NULs at the end. False on Cancel and for a result of more than nMaxFile - 2
/// characters. The first entry of the filter is chosen at the start and the name field is empty.
bool GetOpenFileNameA(OpenFileName& record);
/// The same for a file to be written. With OfnOverwritePrompt the dialog asks before it gives the
/// name of a file that is there.
bool GetSaveFileNameA(OpenFileName& record);

struct BrowseInfo {
    toolkit::Window* hwndOwner = nullptr;
    std::string lpszTitle;  // a line of instruction
};

/// Lets the user choose a folder. Gives its path in a buffer of FolderBufferSize characters, the
/// rest NULs; an empty text on Cancel; a buffer of NULs for an item that has no path.
std::string BrowseForFolderPath(const BrowseInfo& info);

/// The icons of a message box, by their Windows values.
enum class MessageIcon { Critical = 16, Exclamation = 48, Information = 64 };

/// Shows a text with an icon and an OK button over the active window. Lines end in CR LF.
void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon);

/// Asks for one line. Gives the text of the field, or an empty text on Cancel.
std::string AskForText(const std::string& prompt, const std::string& title,
                       const std::string& preset);

}  // namespace desktop
