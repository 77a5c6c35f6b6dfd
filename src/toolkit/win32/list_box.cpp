// LISTBOX: a list with one selected row.
#include "toolkit/win32/controls.h"

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
    void OnDraw(Property property, int row) override;
    void OnCreated() override;
    void OnLaid() override;

  private:
    void Widen(int row);

    toolkit::ListBox& list_;
    int widest_ = 0;  // pixels that the longest text takes
};

void NativeListBox::OnCommand(WORD code) {
    // A click on the row that was selected already comes as a selection that was given up.
    if (code == LBN_SELCHANGE || code == LBN_SELCANCEL) {
        const auto row = static_cast<int>(Send(LB_GETCURSEL));
        if (row >= 0) {
            list_.UserSelects(row);
        }
    } else if (code == LBN_DBLCLK) {
        list_.UserDoubleClicks();
    }
}

void NativeListBox::OnDraw(Property property, int row) {
    switch (property) {
        case Property::ItemAdded:
            SendText(LB_INSERTSTRING, static_cast<WPARAM>(row), list_.List(row));
            Widen(row);
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
            NativeControl::OnDraw(property, row);
    }
}

void NativeListBox::OnCreated() {
    for (int row = 0; row < list_.ListCount(); ++row) {
        SendText(LB_INSERTSTRING, static_cast<WPARAM>(row), list_.List(row));
    }
    OnDraw(Property::Selection, -1);
}

void NativeListBox::Widen(int row) {
    const int width = Sizes().TextWidth(Face::Body, list_.List(row));
    constexpr int Margin = 8;
    if (width + Margin > widest_) {
        widest_ = width + Margin;
        Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest_));
    }
}

void NativeListBox::OnLaid() {
    widest_ = 0;
    for (int row = 0; row < list_.ListCount(); ++row) {
        Widen(row);
    }
}

}  // namespace

std::unique_ptr<NativeControl> MakeListBox(NativeWindow& parent, toolkit::ListBox& list) {
    return std::make_unique<NativeListBox>(parent, list);
}

}  // namespace desktop
