// Controls with items.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace toolkit {

/// A list of texts of which at most one is selected; rows count from 0, and -1 is no selection.
///
/// Setting another index, -1 included, stores it and runs OnClick at once, also from code. Any
/// other index outside the list sets -1 without storing it or running OnClick.
class ItemControl : public Control {
  public:
    int ListCount() const { return static_cast<int>(items_.size()); }
    /// The text of a row, from 0 to ListCount() - 1.
    const std::string& List(int row) const { return items_[static_cast<std::size_t>(row)]; }
    int ListIndex() const { return index_; }
    void SetListIndex(int row);

    /// Appends a row. The selection stays.
    void AddItem(std::string text);
    /// Removes one row. The selection stays on its text; if that is removed, it becomes -1.
    void RemoveItem(int row);
    /// Removes all rows. The index becomes -1, without an event.
    void Clear();

    /// Called by a back end when the user chose a row. Runs OnClick also for the selected row.
    void UserSelects(int row);

    std::function<void()> OnClick;

  protected:
    using Control::Control;
    void Reset() override;
    void RestoreValue() override;
    /// Called when the index has changed, before the event.
    virtual void IndexChanged() {}
    /// Selects nothing, without an event and without IndexChanged.
    void ClearIndex() { index_ = -1; }

  private:
    void MoveTo(int row);
    void ReportChange();

    std::vector<std::string> items_;
    int index_ = -1;
};

enum class MouseButton { Left, Right };

class ListBox : public ItemControl {
  public:
    ListBox(Window& window, const ControlSpec& spec) : ItemControl(window, Kind::ListBox, spec) {}
    void UserDoubleClicks() { Run(OnDoubleClick); }
    /// Called by a back end when a mouse button was released over the list; in pixels from its
    /// upper left corner.
    void UserReleasesButton(MouseButton button, double x, double y) {
        Run(OnButtonReleased, button, x, y);
    }

    std::function<void()> OnDoubleClick;
    std::function<void(MouseButton button, double x, double y)> OnButtonReleased;
};

class DropDownList : public ItemControl {
  public:
    DropDownList(Window& window, const ControlSpec& spec)
        : ItemControl(window, Kind::DropDownList, spec) {}
    /// The text of the selected row, empty without one.
    std::string Text() const { return ListIndex() < 0 ? std::string() : List(ListIndex()); }
};

/// A list with an edit field. Choosing a row sets the field to its text. A text that is typed or
/// set clears the selection, without an event. Clearing the list, or removing the selected row,
/// empties the field.
class ComboBox : public ItemControl {
  public:
    ComboBox(Window& window, const ControlSpec& spec) : ItemControl(window, Kind::ComboBox, spec) {}
    const std::string& Text() const { return text_; }
    /// Clears the selection also if the text stays the same.
    void SetText(std::string text);
    void UserTypes(std::string text);

  protected:
    void Reset() override;
    void IndexChanged() override;

  private:
    std::string text_;
};

/// A list of two columns in which at most one row is selected; rows count from 1, and -1 is no
/// selection.
class ListView : public Control {
  public:
    struct Entry {
        std::string first;
        std::string second;
    };

    ListView(Window& window, const ControlSpec& spec) : Control(window, Kind::ListView, spec) {}
    int RowCount() const { return static_cast<int>(entries_.size()); }
    const Entry& At(int row) const { return entries_[static_cast<std::size_t>(row - 1)]; }
    int SelectedRow() const { return selected_; }
    /// Selects nothing if there is no such row.
    void SelectRow(int row);
    void AddRow(std::string first, std::string second);
    void Clear();

    void UserSelects(int row) { SelectRow(row); }
    void UserDoubleClicks() { Run(OnDoubleClick); }
    std::function<void()> OnDoubleClick;

  protected:
    void Reset() override;

  private:
    std::vector<Entry> entries_;
    int selected_ = -1;
};

}  // namespace toolkit
