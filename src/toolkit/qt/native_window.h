// A window of the system as a Qt widget.
#pragma once

#include <QHash>
#include <QWidget>
#include <unordered_map>

#include "toolkit/qt/native_control.h"
#include "toolkit/window.h"

namespace desktop {

class NativeWindow final : public QWidget {
  public:
    /// Makes the widgets of all controls, hidden, with the state that the controls have now.
    explicit NativeWindow(toolkit::Window& window);

    /// The widget of one of its controls.
    NativeControl& Find(const toolkit::Control& control) const { return *natives_.at(&control); }
    /// Puts it in the middle of the screen of `owner`, or of the first screen.
    void Centre(const QWidget* owner);
    /// Hides it and deletes it as soon as no handler of its widgets runs. What still arrives for it
    /// until then is dropped: the toolkit window may be gone.
    void Retire();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void MakeControls(bool underneath);
    void Add(toolkit::Control& control);
    void PlaceControls();
    void SetTabOrder();
    void NameControls();
    bool PressButton(toolkit::Flag flag);

    toolkit::Window& window_;
    std::unordered_map<const toolkit::Control*, NativeControl*> natives_;
    QHash<const QObject*, toolkit::Control*> surfaces_;
};

/// The native window of a loaded window, made now if it was not yet. Null for one not loaded.
NativeWindow* MakeNative(toolkit::Window& window);
/// The native window if there is one already; null also for no window.
NativeWindow* NativeOf(const toolkit::Window* window);
/// The window that a dialog belongs to: the one in front. May be null.
QWidget* FrontWindow();

}  // namespace desktop
