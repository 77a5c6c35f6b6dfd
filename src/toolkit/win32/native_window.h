// The HWND of a toolkit::Window and its message handlers.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "toolkit/win32/backdrop.h"
#include "toolkit/win32/metrics.h"
#include "toolkit/win32/native_control.h"
#include "toolkit/win32/tool_tip.h"
#include "toolkit/window.h"

namespace desktop {

/// Owns the native window and its controls. It is created hidden.
class NativeWindow {
  public:
    explicit NativeWindow(toolkit::Window& window);
    NativeWindow(const NativeWindow&) = delete;
    NativeWindow& operator=(const NativeWindow&) = delete;
    ~NativeWindow();

    /// Registers the window class; called before the first window is created.
    static void RegisterWindowClass();

    HWND Handle() const { return handle_; }
    toolkit::Window& GetWindow() const { return window_; }
    const Metrics& GetMetrics() const { return metrics_; }
    ToolTips& Tips() { return tips_; }
    Backdrop& GetBackdrop() { return backdrop_; }
    /// The native control of a control of the window; null if there is none.
    NativeControl* Find(const toolkit::Control& control) const;
    /// The native control with a handle; null if there is none.
    NativeControl* FromHandle(HWND handle) const;

    void CaptionChanged() const;
    /// Centers the window on the monitor of its owner, or of the window itself if it has none.
    void Center() const;
    /// Focuses a control, now or as soon as the window is active.
    void Focus(HWND control);
    /// Next time the window becomes active, the first control in the tab order gets the focus.
    void ResetFocus() { focus_ = nullptr; }

    /// Sets where the next menu opens, as a point of a control, instead of at the mouse pointer.
    void SetMenuPosition(HWND control, POINT point);
    /// Returns the screen position for the next menu and clears the one set by SetMenuPosition.
    POINT TakeMenuPosition();

  private:
    struct Route;  // a message and its handler
    static const Route Routes[];

    /// The metrics at a resolution, with a smaller font if the window would not fit on its monitor.
    static Metrics FittingMetrics(const toolkit::Window& window, int dpi);
    /// The window's size with its frame.
    static RECT FrameOf(const toolkit::Window& window, const Metrics& metrics);

    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT DefaultHandler(UINT message, WPARAM wParam, LPARAM lParam) const;

    LRESULT OnCommand(WPARAM wParam, LPARAM lParam);
    LRESULT OnNotify(WPARAM wParam, LPARAM lParam);
    LRESULT OnDrawItem(WPARAM wParam, LPARAM lParam);
    LRESULT OnEraseBackground(WPARAM wParam, LPARAM lParam);
    LRESULT OnStaticColors(WPARAM wParam, LPARAM lParam);
    LRESULT OnClose(WPARAM wParam, LPARAM lParam);
    LRESULT OnEndSession(WPARAM wParam, LPARAM lParam);
    LRESULT OnActivate(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnDefaultButton(WPARAM wParam, LPARAM lParam);
    LRESULT OnNextControl(WPARAM wParam, LPARAM lParam);
    LRESULT OnPointer(WPARAM wParam, LPARAM lParam);
    LRESULT OnContextMenu(WPARAM wParam, LPARAM lParam);
    LRESULT OnColorChange(WPARAM wParam, LPARAM lParam);
    LRESULT OnSettingChange(WPARAM wParam, LPARAM lParam);
    LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);

    void MakeControls();
    void UpdateSize();
    void RestoreFocus();
    void Layout();
    void ShowDefault(NativeControl* focused);
    void PressCancel();
    NativeControl* FindWithFlag(toolkit::Flag flag) const;

    toolkit::Window& window_;
    Metrics metrics_;
    HWND handle_;
    ToolTips tips_{handle_};
    Backdrop backdrop_;
    std::vector<std::unique_ptr<NativeControl>> controls_;
    NativeControl* default_ = nullptr;  // the button with the ring
    std::optional<POINT> menuPosition_;
    HWND focus_ = nullptr;  // gets the focus when the window becomes active
};

}  // namespace desktop
