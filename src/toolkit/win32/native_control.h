// The HWND of a toolkit::Control.
#pragma once

#include <string>

#include "toolkit/control.h"
#include "toolkit/desktop.h"
#include "toolkit/win32/metrics.h"

namespace desktop {

class NativeWindow;

/// Class name, styles and font of a native control.
struct NativeClass {
    const wchar_t* name;
    DWORD style = 0;  // besides WS_CHILD
    DWORD extendedStyle = 0;
    Face face = Face::Body;
};

/// Creates the native control and handles the messages that its window reflects to it. Each kind of
/// control has a class and a file of its own. The window destroys the native control.
class NativeControl {
  public:
    NativeControl(NativeWindow& parent, toolkit::Control& control, const NativeClass& what)
        : parent_(parent), control_(control), class_(what) {}
    NativeControl(const NativeControl&) = delete;
    NativeControl& operator=(const NativeControl&) = delete;
    virtual ~NativeControl() = default;

    /// Creates the native control with the current state, as far as possible in one call: each
    /// further one makes the start slower.
    void Create();

    HWND Handle() const { return handle_; }
    toolkit::Control& GetControl() const { return control_; }

    /// Updates the native control for a changed property. Its notifications are ignored meanwhile.
    void Apply(Property property, int row = -1);
    /// Applies font and place, after the resolution has changed.
    void Layout();

    /// Handles a notification of WM_COMMAND or WM_NOTIFY, unless the program caused it.
    void Command(WORD code);
    LRESULT Notify(const NMHDR& notice);
    /// Handles WM_CTLCOLORSTATIC: sets the colors of the device context and returns the background
    /// brush, or returns null for those of the system.
    virtual HBRUSH Colors(HDC context);
    /// Draws an owner-drawn control.
    virtual void DrawItem(const DRAWITEMSTRUCT& item);
    /// Called when the user asks for the context menu by the keyboard.
    virtual void OnMenuKey() {}
    /// Draws or removes the ring of the default button.
    virtual void ShowDefault(bool /*isDefault*/) {}
    /// Whether the Enter key presses this control while it has the focus.
    virtual bool IsPushButton() const { return false; }

  protected:
    /// Handle the notifications of this kind of control.
    virtual void OnCommand(WORD /*code*/) {}
    virtual LRESULT OnNotify(const NMHDR& /*notice*/) { return 0; }
    /// Updates the native control for a changed property. The base class handles those that all
    /// controls have.
    virtual void OnPropertyChanged(Property property, int row);
    /// Sets the initial state that cannot be passed to CreateWindowEx.
    virtual void OnCreated() {}
    /// Called after font and place have been set.
    virtual void OnLayout() {}
    /// Its place in the window, in pixels.
    virtual RECT Place() const;
    /// The window text of the native control.
    virtual std::wstring CaptionText() const;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(handle_, message, wParam, lParam);
    }
    /// Sends a message with a text as lParam.
    LRESULT SendText(UINT message, WPARAM wParam, const std::string& text) const;
    std::string WindowText() const;
    NativeWindow& Parent() const { return parent_; }
    const Metrics& GetMetrics() const;
    /// Returns `place` with another height, centered vertically.
    static RECT WithHeight(RECT place, int height);

  private:
    DWORD Style() const;
    void ApplyFont() const;
    void ApplyEnabled();

    NativeWindow& parent_;
    toolkit::Control& control_;
    NativeClass class_;
    HWND handle_ = nullptr;
    int applying_ = 0;  // number of nested calls that change the native control
};

}  // namespace desktop
