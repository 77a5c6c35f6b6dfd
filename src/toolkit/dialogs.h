// Modal dialogs for files, folders, messages and one line of text. Each disables its owner and
// returns when it has closed. The records are those of Windows in portable form, without the
// members that Zorvane leaves at 0.
#pragma once

#include <cstdint>
#include <string>

namespace toolkit {
class Window;
}

namespace desktop {

/// Bits of OpenFileName::Flags, with their Windows values.
inline constexpr std::uint32_t OfnOverwritePrompt = 0x2;
inline constexpr std::uint32_t OfnHideReadOnly = 0x4;
inline constexpr std::uint32_t OfnAllowMultiSelect = 0x200;
inline constexpr std::uint32_t OfnFileMustExist = 0x1000;
inline constexpr std::uint32_t OfnExplorer = 0x80000;

struct OpenFileName {
    toolkit::Window* hwndOwner = nullptr;
    std::string lpstrFilter;  // display text and pattern in turn, separated by NULs
    std::string lpstrFile =
        {};  // receives the result, of any length, up to the first two NULs in a row
    std::string lpstrInitialDir;  // start folder; the system chooses if it is empty or missing
    std::string lpstrTitle;
    std::uint32_t Flags = 0;
};

/// Lets the user choose files to open. The result is one full path or, with OfnAllowMultiSelect and
/// several files, the folder and the bare names, separated by NULs. Starts with the first entry of
/// the filter and an empty name. Returns false on Cancel.
[[nodiscard]] bool GetOpenFileNameA(OpenFileName& record);
/// The same for a file to write. With OfnOverwritePrompt an existing file has to be confirmed.
[[nodiscard]] bool GetSaveFileNameA(OpenFileName& record);

struct BrowseInfo {
    toolkit::Window* hwndOwner = nullptr;
    std::string lpszTitle;  // a line of instruction
};

/// Lets the user choose a folder. Returns its path, or an empty text on Cancel and for an item
/// without a path.
[[nodiscard]] std::string BrowseForFolderPath(const BrowseInfo& info);

/// The icons of a message box, with their Windows values.
enum class MessageIcon { Critical = 16, Exclamation = 48, Information = 64 };

/// Shows a text with an icon and an OK button over the active window. Lines end in CR LF.
void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon);

/// Lets the user edit one line of text. Returns it, or an empty text on Cancel.
[[nodiscard]] std::string AskForText(const std::string& prompt, const std::string& title,
                                     const std::string& preset);

}  // namespace desktop
