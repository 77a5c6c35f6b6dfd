// What all controls have in common, and the controls without items.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/desktop.h"
#include "toolkit/events.h"
#include "toolkit/window.h"

namespace toolkit {

enum class Kind {
    Label,
    Button,
    CheckBox,
    TextBox,
    ListBox,
    DropDownList,  // combo box without an edit field
    ComboBox,      // combo box with an edit field
    ListView,
    Frame,
    Divider,
    Picture,
};

/// A rectangle in dialog units: horizontally a quarter of the average character width of the
/// desktop's font, vertically an eighth of the font's height.
struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool Contains(const Place& inner) const {
        return inner.x >= x && inner.y >= y && inner.x + inner.width <= x + width &&
               inner.y + inner.height <= y + height;
    }
};

/// Properties that a control may be declared with, besides its caption and place.
enum Flag : unsigned {
    Default = 1U << 0,  // button: the Enter key presses it
    Cancel = 1U << 1,   // button: the Escape key presses it
    Accent = 1U << 2,   // button: in the color of the program
    Bold = 1U << 3,     // label: in bold type
    Title = 1U << 4,    // label: the program's name on the title band
    Small = 1U << 5,    // label: in small type on the title band, right-aligned
    Link = 1U << 6,     // label: looks like a link and can be clicked
    Sunken = 1U << 7,   // label: with a border, its text wrapped
    Quiet = 1U << 8,    // label: in a weaker color
    IsPath = 1U << 9,   // text box: holds a path, shown in the system's notation; one that
                        // the program sets has its name selected, without the extension
    Follows =
        1U << 10,  // label: as wide as its text, directly after the text of the control before
};

/// The fixed properties of a control, given when it is declared.
struct ControlSpec {
    std::string_view caption = {};  // list view: the heads of its two columns, separated by "|"
    Place place = {};
    int tab = -1;                          // position in the tab order, -1 for none
    char access = '\0';                    // capital letter: Alt+letter presses or focuses it
    unsigned flags = 0;                    // a combination of Flag
    std::string_view key = {};             // settings key that keeps the control's value
    const Control* label = nullptr;        // label that names the control to a screen reader
    std::string_view picture = {};         // name of a built-in picture
    std::string_view accessibleName = {};  // for a control that has neither caption nor label
    /// Line for Window::OnTip while the pointer is over the control. Without one the event is not
    /// raised.
    std::optional<std::string_view> tip = {};
};

/// Holds a control's state and event handlers. A setter notifies the back end if it changes the
/// state; otherwise it does nothing (except ComboBox::SetText).
class Control {
  public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Kind GetKind() const { return kind_; }
    Window& Owner() const { return window_; }
    const ControlSpec& Spec() const { return spec_; }
    /// Position in Owner().Controls(), from 0.
    int Index() const { return index_; }
    bool Has(Flag flag) const { return (spec_.flags & flag) != 0; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    /// The letter of its access key, which no other control of the window has; 0 for none.
    char Access() const { return access_; }
    void SetAccess(char letter);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string toolTip);
    void SetFocus();

    /// Called by a back end when the pointer moved over the control; in pixels from its upper left
    /// corner.
    void UserMovesPointer(double x, double y);

    /// The pointer moved over the control.
    std::function<void(double x, double y)> OnPointerMoved;

  protected:
    Control(Window& window, Kind kind, const ControlSpec& spec);
    virtual ~Control() = default;

    /// Notifies the back end. `row` is the row of ItemAdded and ItemRemoved.
    void Changed(desktop::Property property, int row = -1);
    /// Resets the control to its declaration, without an event.
    virtual void Reset();
    /// Sets the control to the value stored under its key. Does nothing for a control without a
    /// value.
    virtual void RestoreValue() {}

    /// Keeps a new value under the control's key, if it has one.
    void StoreValue(int number);
    void StoreValue(const std::string& text);

  private:
    friend class Window;

    Window& window_;
    const ControlSpec spec_;
    const int index_;
    const Kind kind_;
    std::string caption_;
    std::string toolTip_;
    char access_;
    bool enabled_ = true;
    bool visible_ = true;
};

/// A line of text. Only a label with the flag Link can be clicked.
class Label : public Control {
  public:
    Label(Window& window, const ControlSpec& spec) : Control(window, Kind::Label, spec) {}
    void UserClicks() { Run(OnClick); }
    /// The control that has this label; null if there is none.
    const Control* Named() const;
    std::function<void()> OnClick;
};

class Frame : public Control {
  public:
    Frame(Window& window, const ControlSpec& spec) : Control(window, Kind::Frame, spec) {}
};

class Divider : public Control {
  public:
    Divider(Window& window, const ControlSpec& spec) : Control(window, Kind::Divider, spec) {}
};

class Picture : public Control {
  public:
    Picture(Window& window, const ControlSpec& spec) : Control(window, Kind::Picture, spec) {}
};

/// A push button, with a caption or with a picture.
class Button : public Control {
  public:
    Button(Window& window, const ControlSpec& spec) : Control(window, Kind::Button, spec) {}
    /// Runs OnClick if the button is enabled and visible.
    void UserClicks();
    std::function<void()> OnClick;
};

class CheckBox : public Control {
  public:
    CheckBox(Window& window, const ControlSpec& spec) : Control(window, Kind::CheckBox, spec) {}
    bool Checked() const { return checked_; }
    /// If the state changes, stores it under the key and runs OnClick.
    void SetChecked(bool checked);
    void UserChecks(bool checked) { SetChecked(checked); }
    std::function<void()> OnClick;

  protected:
    void Reset() override;
    void RestoreValue() override;

  private:
    bool checked_ = false;
};

/// One line of editable text.
class TextBox : public Control {
  public:
    TextBox(Window& window, const ControlSpec& spec) : Control(window, Kind::TextBox, spec) {}
    const std::string& Text() const { return text_; }
    /// If the text changes, stores it under the key and runs OnChange.
    void SetText(std::string text);
    void UserTypes(std::string text);
    std::function<void()> OnChange;

  protected:
    void Reset() override;
    void RestoreValue() override;

  private:
    void ReportChange();

    std::string text_;
};

}  // namespace toolkit
