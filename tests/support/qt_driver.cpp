// The driver on real Qt widgets: mouse and keys go to the native window, which finds the widget
// under the pointer or with the focus.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <deque>

#include "driver.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/text.h"

namespace {

using desktop::Encode;
using desktop::NativeWindow;

NativeWindow& Native(const toolkit::Window& window) {
    return *desktop::EnsureNative(const_cast<toolkit::Window&>(window));
}

template <class Widget = QWidget>
Widget* As(const toolkit::Control& control) {
    return dynamic_cast<Widget*>(&Native(control.Owner()).Find(control).Widget());
}

/// Where the mouse is used, as a point of the native window.
QPoint PointOf(const toolkit::Control& control, int row) {
    const QWidget* widget = As(control);
    QPoint point(8, widget->height() / 2);
    if (auto* view = As<QAbstractItemView>(control)) {
        const int first = control.GetKind() == toolkit::Kind::ListView ? 1 : 0;
        const QModelIndex index = view->model()->index(row - first, 0);
        view->scrollTo(index);
        point = view->visualRect(index).center();
        widget = view->viewport();
    }
    return widget->mapTo(widget->window(), point);
}

/// A move that ends where the pointer is already would be none.
void MoveTo(const NativeWindow& window, QPoint point) {
    QTest::mouseMove(window.windowHandle(), point - QPoint(1, 1));
    QTest::mouseMove(window.windowHandle(), point);
    QApplication::processEvents();
}

/// Runs the queued steps, each inside the next modal window that is shown.
class ModalWatcher final : public QObject {
  public:
    std::deque<std::function<void()>> queue;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && widget != nullptr && widget->isModal() &&
            !queue.empty()) {
            QTimer::singleShot(0, std::move(queue.front()));
            queue.pop_front();
        }
        return false;
    }
};

void ChooseInMenu(int row) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) {
        QTimer::singleShot(1, [row] { ChooseInMenu(row); });
        return;
    }
    if (row >= 0) {
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(menu->actions().at(row)).center());
    }
    menu->close();
}

std::vector<std::string> ItemsOf(const QAbstractItemModel& model) {
    std::vector<std::string> items;
    for (int row = 0; row < model.rowCount(); ++row) {
        items.push_back(Encode(model.index(row, 0).data().toString()));
        if (model.columnCount() > 1) {
            items.back() += '|' + Encode(model.index(row, 1).data().toString());
        }
    }
    return items;
}

}  // namespace

namespace driver {

void Use(Mouse gesture, toolkit::Control& control, int row) {
    const NativeWindow& window = Native(control.Owner());
    const QPoint point = PointOf(control, row);
    if (gesture == Mouse::Move) {
        MoveTo(window, point);
    } else if (gesture == Mouse::DoubleClick) {
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
    } else {
        const auto button = gesture == Mouse::RightClick ? Qt::RightButton : Qt::LeftButton;
        QTest::mouseClick(window.windowHandle(), button, Qt::NoModifier, point);
    }
}

/// The lower right corner of a window is bare.
void PointAt(toolkit::Window& window) {
    MoveTo(Native(window), Native(window).rect().bottomRight());
}

void Choose(toolkit::Control& list, int row) {
    auto* combo = As<QComboBox>(list);
    if (combo == nullptr) {
        Use(Mouse::Click, list, row);
        return;
    }
    combo->setFocus();
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(row, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

/// In the active window, as only there a field acts on the focus that it loses later.
void Type(toolkit::Control& control, const std::string& text) {
    QWidget* field = As(control);
    field->activateWindow();
    if (!QTest::qWaitForWindowActive(field->window())) {
        return;
    }
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, QString::fromStdString(text));
}

void Press(toolkit::Window& window, Key key) {
    QTest::keyClick(Native(window).windowHandle(), static_cast<char>(key));
}

void Close(toolkit::Window& window) {
    Native(window).close();
}

void InNextModal(std::function<void()> steps) {
    static ModalWatcher watcher;
    qApp->installEventFilter(&watcher);
    watcher.queue.push_back(std::move(steps));
}

void AtNextMenu(int row) {
    QTimer::singleShot(0, [row] { ChooseInMenu(row); });
}

Look LookAt(const toolkit::Control& control) {
    const auto* widget = As(control);
    const auto* label = As<QLabel>(control);
    const auto* button = As<QAbstractButton>(control);
    const auto* combo = As<QComboBox>(control);
    const auto* view = As<QAbstractItemView>(control);
    QString text = widget->property(combo != nullptr ? "currentText" : "text").toString();
    Look look = {.enabled = widget->isEnabled(),
                 .visible = widget->isVisible(),
                 .focused = widget->window()->focusWidget() == widget};
    if (combo != nullptr) {
        look.items = ItemsOf(*combo->model());
        look.index = text == combo->itemText(combo->currentIndex()) ? combo->currentIndex() : -1;
    } else if (view != nullptr) {
        look.items = ItemsOf(*view->model());
        for (const QModelIndex& selected : view->selectionModel()->selectedRows()) {
            look.index = selected.row();
        }
    } else if (button != nullptr || (label != nullptr && label->buddy() != nullptr)) {
        // An "&" marks an access key, unless another one follows.
        text.replace(QRegularExpression("&(.)"), QStringLiteral("\\1"));
        look.checked = button != nullptr && button->isChecked();
    }
    look.text = Encode(text);
    return look;
}

std::string ShownCaption(const toolkit::Window& window) {
    const NativeWindow& native = Native(window);
    return native.isVisible() ? Encode(native.windowTitle()) : std::string();
}

}  // namespace driver
