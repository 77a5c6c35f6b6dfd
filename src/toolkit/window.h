// A window is an object whose members are its controls, in the window's order. Nothing here draws.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/events.h"

namespace toolkit {

class Control;

/// Where the controls with a settings key keep their values.
struct ValueStore {
    int (*number)(std::string_view key);
    std::string (*text)(std::string_view key);
    void (*storeNumber)(std::string_view key, int number);
    void (*storeText)(std::string_view key, const std::string& text);
};

/// The fixed properties of a window. Its size cannot change.
struct WindowSpec {
    std::string_view caption = {};
    int width = 0;                       // in dialog units, without the frame
    int height = 0;                      // in dialog units
    bool dialog = false;                 // no minimise button and no entry in the task bar
    const ValueStore* values = nullptr;  // needed by a window that has a control with a key
};

/// A window of the program: hidden or shown, never destroyed by the user.
class Window {
  public:
    explicit Window(const WindowSpec& spec) : spec_(spec), caption_(spec.caption) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() = default;

    /// Resets the window and its controls to their declarations, registers the window with the back
    /// end, hidden, and runs OnLoad. Does nothing if it is loaded.
    void Load();
    /// Destroys the native window. No-op for a window that is not loaded.
    void Unload();
    bool Loaded() const { return loaded_; }

    void Show();
    void Hide();
    bool Visible() const { return visible_; }
    /// Runs OnShowModal, shows the window modally and returns when it has been hidden. No-op if the
    /// window is already visible.
    void ShowModal();
    /// Draws the whole window immediately.
    void Repaint();

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);

    /// Sets every control with a settings key to its stored value, in the window's order.
    void RestoreValues();

    const WindowSpec& Spec() const { return spec_; }
    /// The window's controls in the order of their declaration.
    const std::vector<Control*>& Controls() const { return controls_; }

    /// Called by a back end when the user asks to close the window.
    void UserCloses() { Run(OnCloseRequest); }
    /// Called by a back end when the pointer moved over the window's own surface.
    void UserMovesPointer() { Run(OnTip, ""); }

    std::function<void()> OnLoad;
    std::function<void()> OnShowModal;
    /// The user asked to close the window. The window stays: what happens is up to the handler.
    std::function<void()> OnCloseRequest;
    /// The pointer moved over a control with a tip, or over the window itself; `tip` is empty for
    /// the window.
    std::function<void(std::string_view tip)> OnTip;

  private:
    friend class Control;

    const WindowSpec spec_;
    std::string caption_;
    std::vector<Control*> controls_;
    bool loaded_ = false;
    bool visible_ = false;
};

}  // namespace toolkit
