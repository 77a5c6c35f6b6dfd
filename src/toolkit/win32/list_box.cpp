// LISTBOX: a list with one selected row.
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_window.h"

namespace desktop {
namespace {

class NativeListBox : public NativeControl {
  public:
    NativeListBox(NativeWindow& parent, toolkit::ListBox& list)
        : NativeControl(
              parent, list,
              {WC_LISTBOXW,
               LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL,
               WS_EX_CLIENTEDGE}),
          list_(list) {}

  protected:
    void OnCommand(WORD code) override;
    void OnPropertyChanged(Property property, int row) override;
    void OnCreated() override;
    void OnLayout() override;
    void OnMenuKey() override;

  private:
    void IncludeWidthOf(int row);

    toolkit::ListBox& list_;
    int widest_ = 0;  // width of the longest text, in pixels
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
            IncludeWidthOf(row);
            break;
        case Property::ItemRemoved:
            Send(LB_DELETESTRING, static_cast<WPARAM>(row));
            break;
        case Property::ItemsCleared:
            Send(LB_RESETCONTENT);
            widest_ = 0;
            Send(LB_SETHORIZONTALEXTENT);
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

void NativeListBox::IncludeWidthOf(int row) {
    const int width = GetMetrics().TextWidth(Face::Body, list_.List(row));
    constexpr int Margin = 8;
    if (width + Margin > widest_) {
        widest_ = width + Margin;
        Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest_));
    }
}

void NativeListBox::OnMenuKey() {
    RECT row = {};
    if (list_.ListIndex() >= 0 && Send(LB_GETITEMRECT, static_cast<WPARAM>(list_.ListIndex()),
                                       reinterpret_cast<LPARAM>(&row)) != LB_ERR) {
        const POINT point = {row.left + GetMetrics().RowHeight(), row.bottom - 1};
        Parent().SetMenuPosition(Handle(), point);
        list_.UserReleasesButton(toolkit::MouseButton::Right, point.x, point.y);
    }
}

void NativeListBox::OnLayout() {
    widest_ = 0;
    for (int row = 0; row < list_.ListCount(); ++row) {
        IncludeWidthOf(row);
    }
}

}  // namespace

std::unique_ptr<NativeControl> MakeListBox(NativeWindow& parent, toolkit::ListBox& list) {
    return std::make_unique<NativeListBox>(parent, list);
}

}  // namespace desktop
