// Another program's windows, found and worked by handles and messages as a person would. What does
// not come within its time is a std::runtime_error.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "toolkit/lists.h"

namespace remote {

/// A program that runs beside the test.
class Program {
  public:
    Program(const std::string& file, const std::string& arguments);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();
    /// Waits for its end and gives its exit code.
    DWORD End();

  private:
    PROCESS_INFORMATION process_ = {};
};

/// Counts what turned out right and what did not.
void Check(bool right, const std::string& what);
void CheckEqual(const std::string& got, const std::string& wanted, const std::string& what);
int Failures();

void WaitUntil(const std::function<bool()>& isSo, const std::string& what);
/// The visible window of that class with that caption, when it is there and takes input.
HWND WaitForWindow(const wchar_t* className, const std::string& caption);
/// One of Zorvane's own windows.
HWND WaitForOurs(const std::string& caption);
void WaitUntilGone(HWND window);

/// The native control, in `window`, of a control of the window of the same kind in this program.
HWND ControlIn(HWND window, const toolkit::Control& control);

void Press(HWND button);
void Type(HWND field, const std::string& text);
void PressKeys(HWND control, WPARAM key, int times = 1);
/// Chooses a row of a combo box without an edit field, or a list, by its keys.
void ChooseRow(HWND list, int row);
/// Releases a mouse button over a point of a control.
void Release(HWND control, UINT message, int x, int y);

std::string TextOf(HWND control);
std::vector<std::string> RowsOf(HWND listBox);
int RowChosenIn(HWND comboBox);
bool IsChecked(HWND box);

/// Works the next file dialog of that title: gives the name and OK, or Cancel for an empty name.
void AnswerFileDialog(const std::string& title, const std::string& name);
/// Works the next folder chooser.
void AnswerFolderDialog(const std::string& folder);
/// Presses OK in the next message box and gives its text.
std::string AnswerMessage();

/// Draws what the screen shows of a window into a BMP file, when there is a folder for pictures.
void TakePicture(HWND window, const std::string& name);
void PutPicturesInto(const std::string& folder);

}  // namespace remote
