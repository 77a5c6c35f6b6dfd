#include <QAbstractTableModel>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTreeView>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/row_delegate.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// The rows of a list view as a Qt model. The control counts them from 1, Qt from 0.
class EntryModel final : public QAbstractTableModel {
  public:
    EntryModel(const toolkit::ListView& list, QObject* parent)
        : QAbstractTableModel(parent), list_(list), rows_(list.RowCount()) {
        const QString caption = Decode(list.Caption());
        heads_ = {caption.section(QLatin1Char('|'), 0, 0), caption.section(QLatin1Char('|'), 1, 1)};
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex&) const override { return 2; }

    QVariant data(const QModelIndex& index, int role) const override {
        const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
        if (!isText || !index.isValid() || index.row() >= list_.RowCount()) {
            return {};
        }
        const toolkit::ListView::Entry& entry = list_.At(index.row() + 1);
        return DisplayText(index.column() == 0 ? entry.first : entry.second);
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        const bool isText = orientation == Qt::Horizontal && role == Qt::DisplayRole;
        return isText ? heads_.value(section) : QVariant();
    }

    void Follow(Property property, int row) {
        if (property == Property::ItemAdded) {
            beginInsertRows({}, row - 1, row - 1);
            ++rows_;
            endInsertRows();
        } else if (property == Property::ItemsCleared) {
            beginResetModel();
            rows_ = 0;
            endResetModel();
        }
    }

  private:
    const toolkit::ListView& list_;
    QStringList heads_;
    int rows_;
};

class ListViewWidget final : public QTreeView, public NativeControl {
  public:
    ListViewWidget(toolkit::ListView& list, QWidget& parent)
        : QTreeView(&parent), list_(list), entries_(list, this) {
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        setItemDelegate(new RowDelegate(*this));
        setAllColumnsShowFocus(true);
        setItemsExpandable(false);
        setEditTriggers(NoEditTriggers);
        setTextElideMode(Qt::ElideMiddle);
        setModel(&entries_);
        Apply(Property::Selection, -1);
    }

    QWidget& Widget() override { return *this; }
    QWidget& Surface() override { return *viewport(); }

    void Apply(Property property, int row) override {
        const QScopedValueRollback guard(silent_, true);
        entries_.Follow(property, row);
        if (property == Property::Selection || property == Property::ItemsCleared) {
            const QModelIndex index = entries_.index(list_.SelectedRow() - 1, 0);
            selectionModel()->setCurrentIndex(
                index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        }
    }

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
            list_.UserDoubleClicks();
        }
    }

    void selectionChanged(const QItemSelection& now, const QItemSelection& before) override {
        QTreeView::selectionChanged(now, before);
        const QModelIndexList rows = selectionModel()->selectedRows();
        if (!silent_ && !rows.isEmpty()) {
            list_.UserSelects(rows.first().row() + 1);
        }
    }

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent*) const override {
        return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                               : QItemSelectionModel::NoUpdate;
    }

    void resizeEvent(QResizeEvent* event) override {
        QTreeView::resizeEvent(event);
        header()->resizeSection(0, width() * 2 / 5);
        scheduleDelayedItemsLayout();  // the height of the rows follows
    }

  private:
    toolkit::ListView& list_;
    EntryModel entries_;
    bool silent_ = false;  // while applying a change of the program
};

}  // namespace

NativeControl* MakeListView(toolkit::ListView& list, QWidget& parent) {
    return new ListViewWidget(list, parent);
}

}  // namespace desktop
