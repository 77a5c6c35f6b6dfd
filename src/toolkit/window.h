// A window is a table of rows and an object with one member for each control. Nothing here draws.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit {

class Control;

/// A rectangle in dialog units: across a quarter of the average width of a character of the
/// desktop's font, down an eighth of the font's height.
struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// What a row of a window table may say beside name, caption and place.
enum Flag : unsigned {
    Default = 1U << 0,   // the Enter key presses this button
    Cancel = 1U << 1,    // the Escape key presses this button
    Accent = 1U << 2,    // a button in the colour of the program
    Bold = 1U << 3,      // a label in bold type
    Title = 1U << 4,     // a label in large bold type on the title band
    Small = 1U << 5,     // a label in small type on the title band, set against its right edge
    Link = 1U << 6,      // a label in blue and underlined, with a hand over it
    Sunken = 1U << 7,    // a label with a border, broken into lines
    Quiet = 1U << 8,     // a label in a weaker colour
    IsPath = 1U << 9,    // a text box that holds a path, shown as the system writes paths
    Follows = 1U << 10,  // a label as wide as its text, right behind the text of the row before
};

/// One control of a window, as data.
struct ControlSpec {
    std::string_view name;
    std::string_view caption = {};  // the heads of a list view's two columns, "|" between
    Place place;
    int tab = -1;                   // place in the tab order, -1 for none
    unsigned flags = 0;             // of Flag
    std::string_view key = {};      // settings key that the control mirrors
    std::string_view names = {};    // label: the control that it names for a screen reader
    std::string_view picture = {};  // picture by name, from our own art
    std::string_view spoken = {};   // accessible name of a control without caption or label
};

/// One window, as data. Its size is fixed.
struct WindowSpec {
    std::string_view name;
    std::string_view caption;
    int width = 0;        // dialog units, without the frame
    int height = 0;       // dialog units
    bool dialog = false;  // no minimise button, no entry in the task bar, centred on the screen
    std::span<const ControlSpec> rows;
};

/// A window of the system: hidden or shown, never destroyed by the user.
class Window {
  public:
    explicit Window(const WindowSpec& table) : table_(table), caption_(table.caption) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() = default;

    /// Takes the state of the table, makes the native window, hidden, and runs OnLoad.
    void Load();
    /// Takes the native window away. Has no effect on a window that is not loaded.
    void Unload();
    bool Loaded() const { return loaded_; }

    void Show();
    void Hide();
    bool Visible() const { return visible_; }
    /// Runs OnShowModal, shows the window modally and returns when it has been hidden. Nothing
    /// happens if the window is visible already.
    void ShowModal();
    /// Draws the whole window at once.
    void Repaint();

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);

    const WindowSpec& Spec() const { return table_; }
    /// The window's controls in the order of its class, which need not be that of the table.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control of that name, null when there is none.
    Control* Find(std::string_view name) const;

    /// What a back end reports: the user asks to close the window, or the pointer moved over the
    /// window's own surface.
    void UserCloses();
    void UserMovesPointer();

    std::function<void()> OnLoad;
    std::function<void()> OnShowModal;
    /// A close request. The window stays; what is to happen is the handler's business.
    std::function<void()> OnCloseRequest;
    std::function<void()> OnPointerMoved;

  private:
    friend class Control;

    const WindowSpec& table_;
    std::string caption_;
    std::vector<Control*> controls_;
    bool loaded_ = false;
    bool visible_ = false;
};

}  // namespace toolkit
