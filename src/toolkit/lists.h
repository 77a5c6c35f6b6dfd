// Controls with items.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control.h"

namespace toolkit {

/// A list of texts of which at most one is selected, rows counted from 0, -1 for no selection.
///
/// A new index runs OnClick at once, also when code sets it. An index that the list does not have
/// selects nothing: the index becomes -1 and nothing runs.
class ItemControl : public Control {
  public:
    int ListCount() const { return static_cast<int>(items_.size()); }
    /// The text of a row from 0 to ListCount() - 1.
    const std::string& List(int row) const { return items_[static_cast<std::size_t>(row)]; }
    int ListIndex() const { return index_; }
    void SetListIndex(int row);

    /// Adds a row at the end. The selection stays.
    void AddItem(std::string text);
    /// Takes out one row. The selection stays on its text; when that was it, it becomes -1.
    void RemoveItem(int row);
    /// Takes out all rows. The index becomes -1, without an event.
    void Clear();

    /// The user chose a row, perhaps the one that was chosen already.
    void UserSelects(int row);

    std::function<void()> OnClick;

  protected:
    using Control::Control;
    void Reset() override;
    /// Follows the index, before the event runs.
    virtual void IndexChanged() {}
    /// Selects nothing, without an event and without IndexChanged.
    void ForgetIndex() { index_ = -1; }

  private:
    void MoveTo(int row);

    std::vector<std::string> items_;
    int index_ = -1;
};

class ListBox : public ItemControl {
  public:
    ListBox(Window& window, std::string_view name) : ItemControl(window, Kind::ListBox, name) {}
    void UserDoubleClicks();
    std::function<void()> OnDoubleClick;
};

class DropDownList : public ItemControl {
  public:
    DropDownList(Window& window, std::string_view name)
        : ItemControl(window, Kind::DropDownList, name) {}
    /// The text of the selected row, empty without one.
    std::string Text() const { return ListIndex() < 0 ? std::string() : List(ListIndex()); }
};

/// A list with an edit field. Choosing a row puts its text into the field; a text that is typed or
/// set takes the selection away, without an event. Clearing the list, and losing a selected row,
/// empties the field.
class ComboBox : public ItemControl {
  public:
    ComboBox(Window& window, std::string_view name) : ItemControl(window, Kind::ComboBox, name) {}
    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    void UserTypes(std::string text);

  protected:
    void Reset() override;
    void IndexChanged() override;

  private:
    std::string text_;
};

/// Rows of two columns of which at most one is selected. Rows count from 1; -1 is no selection.
class ListView : public Control {
  public:
    struct Entry {
        std::string first;
        std::string second;
    };

    ListView(Window& window, std::string_view name) : Control(window, Kind::ListView, name) {}
    int RowCount() const { return static_cast<int>(entries_.size()); }
    const Entry& At(int row) const { return entries_[static_cast<std::size_t>(row - 1)]; }
    int SelectedRow() const { return selected_; }
    /// A row that is not there selects nothing.
    void SelectRow(int row);
    void AddRow(std::string first, std::string second);
    void Clear();

    void UserSelects(int row) { SelectRow(row); }
    void UserDoubleClicks();
    std::function<void()> OnDoubleClick;

  protected:
    void Reset() override;

  private:
    std::vector<Entry> entries_;
    int selected_ = -1;
};

}  // namespace toolkit
