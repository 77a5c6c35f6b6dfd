#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>
#include <algorithm>

namespace desktop {

/// Makes the rows of a list so high that a whole number of them fills it. They have no width of
/// their own: no row needs to be measured, and a long path is elided.
class RowDelegate final : public QStyledItemDelegate {
  public:
    explicit RowDelegate(QAbstractItemView& list) : QStyledItemDelegate(&list), list_(list) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        const int height = list_.viewport()->height();
        const int rows = height / (list_.fontMetrics().height() * 3 / 2);
        return {0, height / std::max(rows, 1)};
    }

  private:
    const QAbstractItemView& list_;
};

}  // namespace desktop
