// A window as a Qt widget.
#pragma once

#include <QBasicTimer>
#include <QCursor>
#include <QEventLoop>
#include <QHash>
#include <QWidget>
#include <optional>
#include <unordered_map>
#include <utility>

#include "toolkit/qt/native_control.h"
#include "toolkit/window.h"

namespace desktop {

class NativeWindow final : public QWidget {
  public:
    /// Creates the window, hidden, and the widgets of its controls.
    explicit NativeWindow(toolkit::Window& window);

    /// The widget of one of its controls.
    NativeControl& Find(const toolkit::Control& control) const { return *natives_.at(&control); }
    /// Where the next pop-up menu opens, in pixels of the screen: here, or else at the pointer.
    void SetMenuPosition(QPoint point) { menuPosition_ = point; }
    QPoint TakeMenuPosition() {
        return std::exchange(menuPosition_, std::nullopt).value_or(QCursor::pos());
    }
    /// Centers the window on the screen of `owner`, or on the primary screen if it is null.
    void Center(const QWidget* owner);
    /// Handles events until the window is hidden.
    void RunUntilHidden();
    /// Ignores Escape until the event loop runs again. On Wayland, Qt sends the Escape that closes
    /// an open list to the window too.
    void IgnoreEscape();
    /// Hides the window, and deletes it when no handler of its widgets runs any more. Drops its
    /// events until then, since the toolkit window may no longer exist.
    void DeleteLater();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    void FitFont();
    void MakeControls(bool background);
    void Add(toolkit::Control& control);
    QWidget& ParentOf(const toolkit::Control& control);
    void PlaceControls();
    void SetTabOrder();
    void NameControls();
    void UnderlineAccessKeys(bool underlined);
    void MarkDefaultButton();
    bool PressButton(toolkit::Flag flag);

    toolkit::Window& window_;
    QEventLoop* modalLoop_ = nullptr;  // while it is shown modally
    std::optional<QPoint> menuPosition_;
    QBasicTimer ignoresEscape_;  // active until the event loop runs
    std::unordered_map<const toolkit::Control*, NativeControl*> natives_;
    QHash<const QObject*, toolkit::Control*> surfaces_;  // by the widget that receives mouse events
};

}  // namespace desktop
