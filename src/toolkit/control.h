// What all controls have in common, and those without items.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "toolkit/desktop.h"
#include "toolkit/window.h"

namespace toolkit {

enum class Kind {
    Label,
    Button,
    PictureButton,
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

/// A control holds everything that the system asks of it, and its events. A setter that changes
/// something tells the back end; one that is given what is there already does nothing at all.
class Control {
  public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Kind GetKind() const { return kind_; }
    Window& Owner() const { return window_; }
    const ControlSpec& Spec() const { return row_; }
    bool Has(Flag flag) const { return (row_.flags & flag) != 0; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string toolTip);
    void SetFocus();

    /// What a back end reports. Positions are in the units of pointer events, from the control's
    /// upper left corner; `button` is 1 for the left and 2 for the right one.
    void UserMovesPointer(double x, double y);
    void UserReleasesButton(int button, double x, double y);

    /// The pointer moved over the control.
    std::function<void(double x, double y)> OnPointerMoved;
    /// A mouse button was released over the control.
    std::function<void(int button, double x, double y)> OnButtonReleased;

  protected:
    Control(Window& window, Kind kind, std::string_view name);
    virtual ~Control() = default;

    void Changed(desktop::Property property, int row = -1);
    /// Takes the state that the table tells, without an event.
    virtual void Reset();

  private:
    friend class Window;

    Window& window_;
    const ControlSpec& row_;
    Kind kind_;
    std::string caption_;
    std::string toolTip_;
    bool enabled_ = true;
    bool visible_ = true;
};

/// A control that only shows: label, frame, divider line or picture. A label with the flag Link is
/// the one that can be clicked.
class Label : public Control {
  public:
    Label(Window& window, std::string_view name) : Control(window, Kind::Label, name) {}
    void UserClicks();
    std::function<void()> OnClick;
};

class Frame : public Control {
  public:
    Frame(Window& window, std::string_view name) : Control(window, Kind::Frame, name) {}
};

class Divider : public Control {
  public:
    Divider(Window& window, std::string_view name) : Control(window, Kind::Divider, name) {}
};

class Picture : public Control {
  public:
    Picture(Window& window, std::string_view name) : Control(window, Kind::Picture, name) {}
};

/// A push button, with a caption or, when its row names one, with a picture.
class Button : public Control {
  public:
    Button(Window& window, std::string_view name);
    /// Presses the button, if it can be pressed.
    void UserClicks();
    std::function<void()> OnClick;
};

class CheckBox : public Control {
  public:
    CheckBox(Window& window, std::string_view name) : Control(window, Kind::CheckBox, name) {}
    bool Checked() const { return checked_; }
    /// A new state runs OnClick.
    void SetChecked(bool checked);
    void UserChecks(bool checked) { SetChecked(checked); }
    std::function<void()> OnClick;

  protected:
    void Reset() override;

  private:
    bool checked_ = false;
};

/// One line of text.
class TextBox : public Control {
  public:
    TextBox(Window& window, std::string_view name) : Control(window, Kind::TextBox, name) {}
    const std::string& Text() const { return text_; }
    /// A new text runs OnChange.
    void SetText(std::string text);
    void UserTypes(std::string text);
    std::function<void()> OnChange;

  protected:
    void Reset() override;

  private:
    std::string text_;
};

}  // namespace toolkit
