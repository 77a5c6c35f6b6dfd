// LISTBOX: a list with one selected row.
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"
#include "toolkit/win32/rows.h"

namespace desktop {
namespace {

class NativeListBox : public NativeControl {
  public:
    NativeListBox(NativeWindow& parent, toolkit::ListBox& list)
        : NativeControl(
              parent, list,
              {WC_LISTBOXW,
               LBS_NOTIFY | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT | WS_VSCROLL,
               WS_EX_CLIENTEDGE}),
          list_(list) {}

  protected:
    void OnCommand(WORD code) override;
    void OnPropertyChanged(Property property, int row) override;
    void OnCreated() override;
    void OnLayout() override;
    void OnMenuKey() override;
    void DrawItem(const DRAWITEMSTRUCT& item) override { DrawRow(item, list_, GetMetrics()); }

  private:
    toolkit::ListBox& list_;
};

void NativeListBox::OnCommand(WORD code) {
    // Windows reports a click on the selected row as a cancelled selection.
    if (code == LBN_SELCHANGE || code == LBN_SELCANCEL) {
        const auto row = static_cast<int>(Send(LB_GETCURSEL));
        if (row >= 0) {
            list_.UserSelects(row);
        }
    } else if (code == LBN_DBLCLK) {
        list_.UserDoubleClicks();
    }
}

void NativeListBox::OnPropertyChanged(Property property, int row) {
    switch (property) {
        case Property::ItemAdded:
            SendText(LB_INSERTSTRING, static_cast<WPARAM>(row), list_.List(row));
            break;
        case Property::ItemRemoved:
            Send(LB_DELETESTRING, static_cast<WPARAM>(row));
            break;
        case Property::ItemsCleared:
            Send(LB_RESETCONTENT);
            break;
        case Property::Selection:
            Send(LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
            break;
        default:
            NativeControl::OnPropertyChanged(property, row);
    }
}

void NativeListBox::OnCreated() {
    for (int row = 0; row < list_.ListCount(); ++row) {
        SendText(LB_INSERTSTRING, static_cast<WPARAM>(row), list_.List(row));
    }
    OnPropertyChanged(Property::Selection, -1);
}

void NativeListBox::OnMenuKey() {
    RECT row = {};
    if (list_.ListIndex() >= 0 && Send(LB_GETITEMRECT, static_cast<WPARAM>(list_.ListIndex()),
                                       reinterpret_cast<LPARAM>(&row)) != LB_ERR) {
        const POINT point = {row.left + GetMetrics().LineHeight(), row.bottom - 1};
        Parent().SetMenuPosition(Handle(), point);
        list_.UserReleasesButton(toolkit::MouseButton::Right, point.x, point.y);
    }
}

void NativeListBox::OnLayout() {
    RECT inside = {};
    ::GetClientRect(Handle(), &inside);
    Send(LB_SETITEMHEIGHT, 0, GetMetrics().RowHeight(static_cast<int>(inside.bottom)));
}

}  // namespace

std::unique_ptr<NativeControl> MakeListBox(NativeWindow& parent, toolkit::ListBox& list) {
    return std::make_unique<NativeListBox>(parent, list);
}

}  // namespace desktop
