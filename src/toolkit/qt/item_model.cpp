#include "toolkit/qt/item_model.h"

#include <QFontMetrics>
#include <QGuiApplication>

#include "toolkit/qt/text.h"

namespace desktop {

ItemModel::ItemModel(const toolkit::ItemControl& list, QObject* parent)
    : QAbstractListModel(parent), list_(list), rows_(list.ListCount()) {}

int ItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ItemModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::SizeHintRole) {
        return QSize(0, QFontMetrics(QGuiApplication::font()).height() * 3 / 2);
    }
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!isText || !index.isValid() || index.row() >= list_.ListCount()) {
        return {};
    }
    return DisplayText(list_.List(index.row()));
}

void ItemModel::Follow(desktop::Property property, int row) {
    if (property == desktop::Property::ItemAdded) {
        beginInsertRows({}, row, row);
        ++rows_;
        endInsertRows();
    } else if (property == desktop::Property::ItemRemoved) {
        beginRemoveRows({}, row, row);
        --rows_;
        endRemoveRows();
    } else if (property == desktop::Property::ItemsCleared) {
        beginResetModel();
        rows_ = 0;
        endResetModel();
    }
}

}  // namespace desktop
