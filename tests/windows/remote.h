// Another program's windows, found and worked by handles and messages as a person would. What does
// not come within its time is a std::runtime_error.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "toolkit/control.h"
#include "toolkit/win32/control_ids.h"

namespace remote {

/// Counts what turned out wrong, and says what was tried.
inline int failures = 0;
void Check(bool right, const std::string& what);
void CheckEqual(const std::string& got, const std::string& wanted, const std::string& what);
void WaitUntil(const std::function<bool()>& isSo, const std::string& what);

/// Starts a program and returns its process handle.
HANDLE Start(const std::string& file, const std::string& arguments = {});
/// Waits for a process to end and returns its exit code.
DWORD ExitCode(HANDLE process);

/// The window of that caption, one of Zorvane's own or of another class, once it shows and takes
/// input; the native control of a control in the window that has the caption of its owner.
HWND Find(const std::string& caption, const wchar_t* className = desktop::WindowClassName);
HWND Find(const toolkit::Control& control);

/// The control with the focus in the active window; null if there is none.
HWND Focused();

void Press(HWND button);
void Type(HWND field, const std::string& text);
/// Chooses a row of a combo box without an edit field, or a list, by its keys.
void ChooseRow(HWND list, int row);
std::string TextOf(HWND control);

/// Answers the next file dialog of that title with a name and OK, or with Cancel for an empty name.
void AnswerFileDialog(const std::string& title, const std::string& name);
/// Works the next folder chooser.
void AnswerFolderDialog(const std::string& folder);
/// Checks the text of the next message box and presses OK.
void CheckMessage(const std::string& wanted);

/// Takes a picture of what the screen shows of a window, into a PNG file in that folder.
void TakePicture(HWND window, const std::string& name);
inline std::string pictureFolder;

}  // namespace remote
