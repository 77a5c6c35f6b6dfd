// The items of a list box or combo box as a Qt model. Reads them from the control without copying.
#pragma once

#include <QAbstractListModel>

#include "toolkit/lists.h"

namespace desktop {

class ItemModel final : public QAbstractListModel {
  public:
    ItemModel(const toolkit::ItemControl& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Notifies the views of added, removed and cleared rows; ignores other properties.
    void Follow(desktop::Property property, int row);

  private:
    const toolkit::ItemControl& list_;
    int rows_;  // rows that the views know; during a notification the control already has the new
                // number
};

}  // namespace desktop
