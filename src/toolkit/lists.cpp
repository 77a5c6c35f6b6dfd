#include "toolkit/lists.h"

namespace toolkit {

void ItemControl::MoveTo(int row) {
    index_ = row;
    IndexChanged();
    Changed(desktop::Property::Selection);
}

void ItemControl::SetListIndex(int row) {
    const bool exists = row >= -1 && row < ListCount();
    const int target = exists ? row : -1;
    if (target == index_) {
        return;
    }
    MoveTo(target);
    if (exists) {
        ReportChange();
    }
}

void ItemControl::UserSelects(int row) {
    if (row != index_) {
        SetListIndex(row);
    } else if (row >= 0) {
        // The native control may show another row or text by now, so apply this one again.
        MoveTo(row);
        ReportChange();
    }
}

void ItemControl::ReportChange() {
    StoreValue(index_);
    Run(OnClick);
}

void ItemControl::RestoreValue() {
    SetListIndex(Owner().Spec().values->number(Spec().key));
}

void ItemControl::AddItem(std::string text) {
    items_.push_back(std::move(text));
    Changed(desktop::Property::ItemAdded, ListCount() - 1);
}

void ItemControl::RemoveItem(int row) {
    items_.erase(items_.begin() + row);
    const int old = index_;
    Changed(desktop::Property::ItemRemoved, row);
    if (old >= row) {
        index_ = old == row ? -1 : old - 1;
        if (index_ < 0) {
            IndexChanged();
        }
        Changed(desktop::Property::Selection);
    }
}

void ItemControl::Clear() {
    items_.clear();
    index_ = -1;
    Changed(desktop::Property::ItemsCleared);
    IndexChanged();
    Changed(desktop::Property::Selection);
}

void ItemControl::Reset() {
    Control::Reset();
    items_.clear();
    index_ = -1;
}

void ComboBox::SetText(std::string text) {
    UserTypes(std::move(text));
    Changed(desktop::Property::Selection);
    Changed(desktop::Property::Text);
}

void ComboBox::UserTypes(std::string text) {
    ClearIndex();
    text_ = std::move(text);
}

void ComboBox::IndexChanged() {
    text_ = ListIndex() < 0 ? std::string() : List(ListIndex());
    Changed(desktop::Property::Text);
}

void ComboBox::Reset() {
    ItemControl::Reset();
    text_.clear();
}

void ListView::SelectRow(int row) {
    const int target = row >= 1 && row <= RowCount() ? row : -1;
    if (target != selected_) {
        selected_ = target;
        Changed(desktop::Property::Selection);
    }
}

void ListView::AddRow(std::string first, std::string second) {
    entries_.push_back({std::move(first), std::move(second)});
    Changed(desktop::Property::ItemAdded, RowCount());
}

void ListView::Clear() {
    entries_.clear();
    selected_ = -1;
    Changed(desktop::Property::ItemsCleared);
}

void ListView::Reset() {
    Control::Reset();
    entries_.clear();
    selected_ = -1;
}

}  // namespace toolkit
