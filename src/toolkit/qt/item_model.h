// The items of a list or combo box, read from the control where they are; nothing is copied.
#pragma once

#include <QAbstractListModel>

#include "toolkit/lists.h"

namespace desktop {

class ItemModel final : public QAbstractListModel {
  public:
    ItemModel(const toolkit::ItemControl& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Tells the views of a row added or removed or of a cleared list; passes over other
    /// properties.
    void Follow(desktop::Property property, int row);

  private:
    const toolkit::ItemControl& list_;
    int rows_;  // as the views know it; the control is ahead while it tells of a change
};

}  // namespace desktop
