// COMBOBOX: a drop-down list, with or without an edit field.
#include "platform/win32/text.h"
#include "toolkit/win32/centered_edit.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/rows.h"

namespace desktop {
namespace {

class NativeCombo : public NativeControl {
  public:
    NativeCombo(NativeWindow& parent, toolkit::ItemControl& list, DWORD style)
        : NativeControl(parent, list,
                        {WC_COMBOBOXW, style | CBS_HASSTRINGS | CBS_OWNERDRAWFIXED | WS_VSCROLL}),
          list_(list) {}

  protected:
    void OnCommand(WORD code) override;
    void OnPropertyChanged(Property property, int row) override;
    void OnCreated() override;
    void OnLayout() override;
    void DrawItem(const DRAWITEMSTRUCT& item) override { DrawRow(item, list_, GetMetrics()); }

  private:
    static constexpr int RowsShown = 16;  // of an open list
    int RowHeight() const { return GetMetrics().LineHeight() * 3 / 2; }

    toolkit::ItemControl& list_;
};

void NativeCombo::OnCommand(WORD code) {
    // An opened list silently selects the row with the text of the field. If the user chooses that
    // row, Windows does not report a change, so also check when the list closes.
    if (code == CBN_SELCHANGE || code == CBN_SELENDOK) {
        const auto row = static_cast<int>(Send(CB_GETCURSEL));
        if (row != list_.ListIndex()) {
            list_.UserSelects(row);
        }
    }
}

void NativeCombo::OnPropertyChanged(Property property, int row) {
    switch (property) {
        case Property::Caption:  // would set the text of the edit field
            break;
        case Property::ItemAdded:
            SendText(CB_INSERTSTRING, static_cast<WPARAM>(row), list_.List(row));
            break;
        case Property::ItemRemoved:
            Send(CB_DELETESTRING, static_cast<WPARAM>(row));
            break;
        case Property::ItemsCleared:
            Send(CB_RESETCONTENT);
            break;
        case Property::Selection:
            Send(CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
            break;
        default:
            NativeControl::OnPropertyChanged(property, row);
    }
}

void NativeCombo::OnCreated() {
    Send(WM_SETREDRAW, FALSE);  // otherwise each row updates the scroll bar
    for (int row = 0; row < list_.ListCount(); ++row) {
        OnPropertyChanged(Property::ItemAdded, row);
    }
    Send(WM_SETREDRAW, TRUE);
    if (list_.ListIndex() >= 0) {
        OnPropertyChanged(Property::Selection, -1);
    }
}

/// Makes the closed box as high as a button. By default its height follows from the font.
void NativeCombo::OnLayout() {
    RECT closed = {};
    ::GetWindowRect(Handle(), &closed);
    const RECT place = NativeControl::Place();
    const LRESULT missing = (place.bottom - place.top) - (closed.bottom - closed.top);
    constexpr auto Box = static_cast<WPARAM>(-1);
    Send(CB_SETITEMHEIGHT, Box, Send(CB_GETITEMHEIGHT, Box) + missing);
    Send(CB_SETITEMHEIGHT, 0, RowHeight());
    Send(CB_SETMINVISIBLE, RowsShown);
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    if (::GetComboBoxInfo(Handle(), &parts) != 0 && parts.hwndItem != Handle()) {
        CenterLine(parts.hwndItem, GetMetrics());
    }
}

class NativeEditCombo : public NativeCombo {
  public:
    NativeEditCombo(NativeWindow& parent, toolkit::ComboBox& box)
        : NativeCombo(parent, box, CBS_DROPDOWN | CBS_AUTOHSCROLL), box_(box) {}

  protected:
    void OnCommand(WORD code) override {
        if (code == CBN_EDITCHANGE) {
            box_.UserTypes(WindowText());
        } else if (code == CBN_KILLFOCUS) {
            Send(CB_SETEDITSEL, 0, MAKELPARAM(-1, 0));  // not all versions hide the selection
        } else {
            NativeCombo::OnCommand(code);
        }
    }

    void OnPropertyChanged(Property property, int row) override {
        if (property == Property::Text) {
            ::SetWindowTextW(Handle(), platform::Wide(box_.Text()).c_str());
        } else {
            NativeCombo::OnPropertyChanged(property, row);
        }
    }

    void OnCreated() override {
        NativeCombo::OnCreated();
        OnPropertyChanged(Property::Text, -1);
    }

  private:
    toolkit::ComboBox& box_;
};

}  // namespace

std::unique_ptr<NativeControl> MakeDropDownList(NativeWindow& parent, toolkit::DropDownList& list) {
    return std::make_unique<NativeCombo>(parent, list, CBS_DROPDOWNLIST);
}

std::unique_ptr<NativeControl> MakeComboBox(NativeWindow& parent, toolkit::ComboBox& box) {
    return std::make_unique<NativeEditCombo>(parent, box);
}

}  // namespace desktop
