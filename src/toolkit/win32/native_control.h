// A control of Windows that shows a control of the toolkit.
#pragma once

#include <string>

#include "toolkit/control.h"
#include "toolkit/desktop.h"
#include "toolkit/win32/metrics.h"

namespace desktop {

class NativeWindow;

/// What a control is made from.
struct NativeClass {
    const wchar_t* name;
    DWORD style = 0;  // beside WS_CHILD
    DWORD extendedStyle = 0;
    Face face = Face::Body;
};

/// Holds the native control and is what its window hands the control's messages to. Each kind of
/// control has a class of its own in a file of its own. The window destroys the native part.
class NativeControl {
  public:
    NativeControl(NativeWindow& parent, toolkit::Control& control, const NativeClass& what)
        : parent_(parent), control_(control), class_(what) {}
    NativeControl(const NativeControl&) = delete;
    NativeControl& operator=(const NativeControl&) = delete;
    virtual ~NativeControl() = default;

    /// Makes the native control as the toolkit's control is now, in one call as far as that goes:
    /// each further one would cost the start of the program time.
    void Create();

    HWND Handle() const { return handle_; }
    toolkit::Control& Shown() const { return control_; }

    /// Draws one property anew. What the native control says meanwhile is not the user's doing.
    void Apply(Property property, int row = -1);
    /// Takes its font and its place at another density.
    void Lay();

    /// A notification of WM_COMMAND or WM_NOTIFY, passed on when the user was the cause.
    void Command(WORD code);
    LRESULT Notify(const NMHDR& notice);
    /// Prepares the context for a control that is about to draw itself, and gives the brush of its
    /// background; null leaves both as Windows has them.
    virtual HBRUSH Colours(HDC context);
    /// Draws a control that Windows does not.
    virtual void DrawItem(const DRAWITEMSTRUCT& item);
    /// The pointer over this control; null for the usual arrow.
    virtual HCURSOR Pointer() const { return nullptr; }
    /// Whether the Enter key presses this control when it has the focus.
    virtual bool IsPushButton() const { return false; }

  protected:
    /// What Command and Notify stand for in this kind of control.
    virtual void OnCommand(WORD /*code*/) {}
    virtual LRESULT OnNotify(const NMHDR& /*notice*/) { return 0; }
    /// Draws one property; those that all controls share are drawn here.
    virtual void OnDraw(Property property, int row);
    /// Fills a control that has just been made with what it holds beside its caption.
    virtual void OnCreated() {}
    /// Follows when it has taken its font and place.
    virtual void OnLaid() {}
    /// Its place in the window, in pixels: what the table says.
    virtual RECT Place() const;
    /// The text that the native control has for its caption.
    virtual std::wstring CaptionText() const;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(handle_, message, wParam, lParam);
    }
    /// Sends a message with a text.
    LRESULT SendText(UINT message, WPARAM wParam, const std::string& text) const;
    std::string NativeText() const;
    NativeWindow& Parent() const { return parent_; }
    const Metrics& Sizes() const;
    /// `place` with another height, in its middle.
    static RECT InMiddle(RECT place, int height);

  private:
    DWORD Style() const;
    void TakeFont() const;
    void DrawEnabled();

    NativeWindow& parent_;
    toolkit::Control& control_;
    NativeClass class_;
    HWND handle_ = nullptr;
    int drawing_ = 0;  // depth of nested calls of Draw
};

}  // namespace desktop
