// A window of Windows that shows a window of the toolkit.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/win32/band.h"
#include "toolkit/win32/metrics.h"
#include "toolkit/win32/native_control.h"
#include "toolkit/win32/tool_tip.h"
#include "toolkit/window.h"

namespace desktop {

/// Owns the native window with all of its controls. Made hidden.
class NativeWindow {
  public:
    explicit NativeWindow(toolkit::Window& window);
    NativeWindow(const NativeWindow&) = delete;
    NativeWindow& operator=(const NativeWindow&) = delete;
    ~NativeWindow();

    /// Before the first window: makes the class of all of them known.
    static void RegisterWindowClass();

    HWND Handle() const { return handle_; }
    toolkit::Window& Shown() const { return window_; }
    const Metrics& Sizes() const { return metrics_; }
    ToolTips& Tips() { return tips_; }
    /// The title band, which labels and pictures stand on.
    Band& TitleBand() { return band_; }
    /// The native control of one of the window's controls; null when there is none.
    NativeControl* Find(const toolkit::Control& control) const;
    /// The one with that handle; null when there is none.
    NativeControl* FromHandle(HWND handle) const;

    void CaptionChanged() const;
    /// Puts the window into the middle of the screen that its owner, if any, is on.
    void Centre() const;
    /// Gives a control the keyboard, or keeps it for the moment when the window becomes active.
    void Focus(HWND control);
    /// Has the keyboard at the first control of the tab order the next time.
    void ForgetFocus() { focus_ = nullptr; }

  private:
    struct Route;  // a message and what answers it
    static const Route routes[];

    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const;

    LRESULT OnCommand(WPARAM wParam, LPARAM lParam);
    LRESULT OnNotify(WPARAM wParam, LPARAM lParam);
    LRESULT OnDrawItem(WPARAM wParam, LPARAM lParam);
    LRESULT OnStaticColours(WPARAM wParam, LPARAM lParam);
    LRESULT OnClose(WPARAM wParam, LPARAM lParam);
    LRESULT OnEndSession(WPARAM wParam, LPARAM lParam);
    LRESULT OnActivate(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnDefaultButton(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetCursor(WPARAM wParam, LPARAM lParam);
    LRESULT OnPointer(WPARAM wParam, LPARAM lParam);
    LRESULT OnDensity(WPARAM wParam, LPARAM lParam);

    void MakeControls();
    void Size();
    void RestoreFocus();
    void PressCancel();
    NativeControl* WithFlag(toolkit::Flag flag) const;

    toolkit::Window& window_;
    Metrics metrics_;
    HWND handle_;
    ToolTips tips_{handle_};
    Band band_;
    std::vector<std::unique_ptr<NativeControl>> controls_;
    HWND focus_ = nullptr;  // the control that gets the keyboard when the window becomes active
};

}  // namespace desktop
