// The driver on real Qt widgets: mouse events go to the native window, which finds the widget under
// them, keys to the widget that has the focus.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <queue>

#include "driver.h"
#include "platform/qt/native_window.h"
#include "platform/qt/text.h"

namespace {

using platform::qt::NativeWindow;

NativeWindow& NativeOf(const toolkit::Window& window) {
    return *platform::qt::MakeNative(const_cast<toolkit::Window&>(window));
}

QWidget& WidgetOf(const toolkit::Control& control) {
    return NativeOf(control.Owner()).Find(control).Widget();
}

template <class Widget>
Widget* As(const toolkit::Control& control) {
    return dynamic_cast<Widget*>(&WidgetOf(control));
}

/// A point of a widget as one of its native window.
QPoint InWindow(const QWidget& widget, QPoint point) {
    return widget.mapTo(widget.window(), point);
}

QPoint MiddleOfRow(QAbstractItemView& view, int row) {
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    return InWindow(*view.viewport(), view.visualRect(index).center());
}

/// Over a list its row, over anything else near its left end, where a check box can be pressed.
QPoint PointOf(const toolkit::Control& control, int row = 0) {
    if (auto* view = As<QAbstractItemView>(control)) {
        return MiddleOfRow(*view, row);
    }
    const QWidget& widget = WidgetOf(control);
    return InWindow(widget, QPoint(8, widget.height() / 2));
}

void ClickAt(const toolkit::Window& window, QPoint point, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(NativeOf(window).windowHandle(), button, Qt::NoModifier, point);
}

/// A move that ends where the pointer is already would be none.
void MoveTo(const toolkit::Window& window, QPoint point) {
    QTest::mouseMove(NativeOf(window).windowHandle(), point - QPoint(1, 1));
    QTest::mouseMove(NativeOf(window).windowHandle(), point);
    QApplication::processEvents();
}

void PressKey(toolkit::Window& window, Qt::Key key) {
    NativeWindow& native = NativeOf(window);
    QTest::keyClick(native.focusWidget() != nullptr ? native.focusWidget() : &native, key);
}

void ChooseInCombo(QComboBox& combo, int row) {
    combo.setFocus();
    combo.showPopup();
    QWidget* open = combo.view();
    QTest::keyClick(open, Qt::Key_Home);
    for (int i = 0; i < row; ++i) {
        QTest::keyClick(open, Qt::Key_Down);
    }
    QTest::keyClick(open, Qt::Key_Return);
}

QLineEdit* FieldOf(const toolkit::Control& control) {
    const auto* combo = As<QComboBox>(control);
    return combo != nullptr ? combo->lineEdit() : As<QLineEdit>(control);
}

std::string WithAccessKeys(QString text) {
    return platform::qt::Encode(text.replace(QLatin1String("&&"), QLatin1String("&")));
}

/// Waits for modal windows and runs what was queued for each.
class ModalWatcher final : public QObject {
  public:
    void Add(std::function<void()> steps) {
        if (queue_.empty()) {
            qApp->installEventFilter(this);
        }
        queue_.push(std::move(steps));
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && widget != nullptr && widget->isModal()) {
            QTimer::singleShot(0, std::move(queue_.front()));
            queue_.pop();
            if (queue_.empty()) {
                qApp->removeEventFilter(this);
            }
        }
        return false;
    }

  private:
    std::queue<std::function<void()>> queue_;
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

}  // namespace

namespace driver {

void Click(toolkit::Control& control) {
    ClickAt(control.Owner(), PointOf(control));
}

void Choose(toolkit::ItemControl& list, int row) {
    if (auto* combo = As<QComboBox>(list)) {
        ChooseInCombo(*combo, row);
    } else {
        ClickAt(list.Owner(), PointOf(list, row));
    }
}

void Choose(toolkit::ListView& list, int row) {
    ClickAt(list.Owner(), PointOf(list, row - 1));
}

void DoubleClick(toolkit::ListBox& list, int row) {
    QTest::mouseDClick(NativeOf(list.Owner()).windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       PointOf(list, row));
}

void DoubleClick(toolkit::ListView& list, int row) {
    QTest::mouseDClick(NativeOf(list.Owner()).windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       PointOf(list, row - 1));
}

void RightClick(toolkit::ListBox& list, int row) {
    ClickAt(list.Owner(), PointOf(list, row), Qt::RightButton);
}

void Type(toolkit::Control& control, const std::string& text) {
    QLineEdit* field = FieldOf(control);
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, QString::fromStdString(text));
}

void PointAt(toolkit::Control& control, int row) {
    MoveTo(control.Owner(), PointOf(control, row));
}

/// The lower right corner of a window is bare.
void PointAt(toolkit::Window& window) {
    const NativeWindow& native = NativeOf(window);
    MoveTo(window, QPoint(native.width() - 1, native.height() - 1));
}

void PressEnter(toolkit::Window& window) {
    PressKey(window, Qt::Key_Return);
}

void PressEscape(toolkit::Window& window) {
    PressKey(window, Qt::Key_Escape);
}

void PressTab(toolkit::Window& window) {
    PressKey(window, Qt::Key_Tab);
}

void Close(toolkit::Window& window) {
    NativeOf(window).close();
}

void InNextModal(std::function<void()> steps) {
    static ModalWatcher watcher;
    watcher.Add(std::move(steps));
}

void AtNextMenu(int row) {
    QTimer::singleShot(0, [row] { ChooseInMenu(row); });
}

std::string ShownText(const toolkit::Control& control) {
    if (const auto* label = As<QLabel>(control)) {
        return label->buddy() != nullptr ? WithAccessKeys(label->text())
                                         : platform::qt::Encode(label->text());
    }
    if (const auto* button = As<QAbstractButton>(control)) {
        return WithAccessKeys(button->text());
    }
    if (const QLineEdit* field = FieldOf(control)) {
        return platform::qt::Encode(field->text());
    }
    const auto* combo = As<QComboBox>(control);
    return combo != nullptr ? platform::qt::Encode(combo->currentText()) : std::string();
}

std::vector<std::string> ShownItems(const toolkit::Control& control) {
    const auto* view = As<QAbstractItemView>(control);
    const auto* combo = As<QComboBox>(control);
    const QAbstractItemModel& model = view != nullptr ? *view->model() : *combo->model();
    std::vector<std::string> items;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList columns;
        for (int column = 0; column < model.columnCount(); ++column) {
            columns.append(model.index(row, column).data().toString());
        }
        items.push_back(platform::qt::Encode(columns.join(QLatin1Char('|'))));
    }
    return items;
}

int ShownIndex(const toolkit::Control& control) {
    if (const auto* combo = As<QComboBox>(control)) {
        const int row = combo->currentIndex();
        return combo->currentText() == combo->itemText(row) ? row : -1;
    }
    const auto* view = As<QAbstractItemView>(control);
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        return -1;
    }
    return rows.first().row() + (control.GetKind() == toolkit::Kind::ListView ? 1 : 0);
}

bool ShownChecked(const toolkit::CheckBox& box) {
    return As<QAbstractButton>(box)->isChecked();
}

bool ShownEnabled(const toolkit::Control& control) {
    return WidgetOf(control).isEnabled();
}

bool ShownVisible(const toolkit::Control& control) {
    return WidgetOf(control).isVisible();
}

bool ShownWindow(const toolkit::Window& window) {
    return NativeOf(window).isVisible();
}

std::string ShownCaption(const toolkit::Window& window) {
    return platform::qt::Encode(NativeOf(window).windowTitle());
}

std::string Focused(const toolkit::Window& window) {
    const QWidget* focused = NativeOf(window).focusWidget();
    return focused != nullptr ? platform::qt::Encode(focused->objectName()) : std::string();
}

}  // namespace driver
