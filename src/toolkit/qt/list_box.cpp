#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/item_model.h"
#include "toolkit/qt/native_window.h"
#include "toolkit/qt/row_delegate.h"

namespace desktop {
namespace {

class ListBoxWidget final : public QListView, public NativeControl {
  public:
    ListBoxWidget(toolkit::ListBox& list, QWidget& parent)
        : QListView(&parent), list_(list), items_(list, this) {
        setUniformItemSizes(true);
        setItemDelegate(new RowDelegate(*this));
        setTextElideMode(Qt::ElideMiddle);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setEditTriggers(NoEditTriggers);
        setModel(&items_);
        Apply(Property::Selection, -1);
    }

    QWidget& Widget() override { return *this; }
    QWidget& Surface() override { return *viewport(); }

    void Apply(Property property, int row) override {
        const QScopedValueRollback guard(silent_, true);
        items_.Follow(property, row);
        if (property == Property::Selection) {
            const QModelIndex index = items_.index(list_.ListIndex());
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        }
    }

    std::uint32_t RowUnder(QPoint point) const {
        const QModelIndex index = indexAt(point);
        if (viewport()->rect().contains(point) && index.isValid()) {
            return static_cast<std::uint32_t>(index.row());
        }
        const QModelIndex first = indexAt(QPoint(0, 0));
        const bool above = point.y() < 0 && first.isValid();
        const QModelIndex level = indexAt(QPoint(0, point.y()));
        const int last = std::max(0, list_.ListCount() - 1);
        const int nearest = above ? first.row() : level.isValid() ? level.row() : last;
        return 0x10000U | static_cast<std::uint32_t>(nearest);
    }

  protected:
    /// A press of the left button selects, its release reports. The right button does neither.
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            pressed_ = indexAt(event->position().toPoint()).isValid();
            QListView::mousePressEvent(event);
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            QListView::mouseReleaseEvent(event);
            if (std::exchange(pressed_, false)) {
                ReportSelection();
            }
        }
        if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) {
            const auto button = event->button() == Qt::LeftButton ? toolkit::MouseButton::Left
                                                                  : toolkit::MouseButton::Right;
            list_.UserReleasesButton(button, event->position().x(), event->position().y());
        }
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
            list_.UserDoubleClicks();
        }
    }

    /// Qt sends it for the menu key, but not for Shift+F10.
    void contextMenuEvent(QContextMenuEvent* event) override {
        if (event->reason() == QContextMenuEvent::Keyboard) {
            OpenMenu();
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
            OpenMenu();
        } else {
            QListView::keyPressEvent(event);
        }
    }

    void selectionChanged(const QItemSelection& now, const QItemSelection& before) override {
        QListView::selectionChanged(now, before);
        if (!silent_ && !pressed_) {
            ReportSelection();
        }
    }

    /// By default a click with the Ctrl key clears the selection.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent*) const override {
        return index.isValid() ? QItemSelectionModel::ClearAndSelect
                               : QItemSelectionModel::NoUpdate;
    }

    bool viewportEvent(QEvent* event) override {
        if (event->type() == QEvent::ToolTip) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), viewport());
            return true;
        }
        return QListView::viewportEvent(event);
    }

  private:
    /// Reports a right click on the selected row.
    void OpenMenu() {
        if (list_.ListIndex() >= 0) {
            scrollTo(currentIndex());
            const QPoint point = visualRect(currentIndex()).center();
            static_cast<NativeWindow*>(window())->SetMenuPosition(viewport()->mapToGlobal(point));
            list_.UserReleasesButton(toolkit::MouseButton::Right, point.x(), point.y());
        }
    }

    void ReportSelection() {
        const QModelIndexList selected = selectedIndexes();
        if (!selected.isEmpty()) {
            list_.UserSelects(selected.first().row());
        }
    }

    toolkit::ListBox& list_;
    ItemModel items_;
    bool silent_ = false;   // while applying a change of the program
    bool pressed_ = false;  // the left button is down on a row
};

}  // namespace

NativeControl* MakeListBox(toolkit::ListBox& list, QWidget& parent) {
    return new ListBoxWidget(list, parent);
}

std::uint32_t RowUnderPoint(const NativeControl& listBox, QPoint point) {
    return static_cast<const ListBoxWidget&>(listBox).RowUnder(point);
}

}  // namespace desktop
