// SysListView32: a list of two columns.
#include "platform/win32/text.h"
#include "toolkit/win32/controls.h"

namespace desktop {
namespace {

class NativeListView : public NativeControl {
  public:
    NativeListView(NativeWindow& parent, toolkit::ListView& list);

  protected:
    LRESULT OnNotify(const NMHDR& notice) override;
    void OnPropertyChanged(Property property, int row) override;
    void OnCreated() override;
    void OnLayout() override;
    std::wstring CaptionText() const override {
        return {};
    }  // the caption contains the column heads

  private:
    void MakeColumns();
    void Insert(int row);
    void DrawSelection();

    toolkit::ListView& list_;
};

NativeListView::NativeListView(NativeWindow& parent, toolkit::ListView& list)
    : NativeControl(
          parent, list,
          {WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
           WS_EX_CLIENTEDGE}),
      list_(list) {}

void NativeListView::MakeColumns() {
    constexpr LPARAM Extended = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, Extended);
    const std::string& heads = list_.Caption();
    const std::size_t bar = heads.find('|');
    std::wstring texts[] = {platform::Wide(heads.substr(0, bar)),
                            platform::Wide(heads.substr(bar + 1))};
    for (int i = 0; i < 2; ++i) {
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT;
        column.pszText = texts[i].data();
        Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
    }
}

void NativeListView::OnLayout() {
    RECT heads = {};
    ::GetClientRect(reinterpret_cast<HWND>(Send(LVM_GETHEADER)), &heads);
    RECT inside = {};
    ::GetClientRect(Handle(), &inside);
    // The rows are as high as their icons. The list view destroys the image list.
    const int height = GetMetrics().RowHeight(static_cast<int>(inside.bottom - heads.bottom));
    Send(LVM_SETIMAGELIST, LVSIL_SMALL,
         reinterpret_cast<LPARAM>(::ImageList_Create(1, height, ILC_COLOR, 1, 0)));
    // The same with and without a scroll bar, so that columns of two lists are aligned.
    const RECT place = Place();
    const int borders = 2 * ::GetSystemMetrics(SM_CXEDGE);
    const int width =
        static_cast<int>(place.right - place.left) - borders - ::GetSystemMetrics(SM_CXVSCROLL);
    const int first = width * 2 / 5;
    Send(LVM_SETCOLUMNWIDTH, 0, first);
    Send(LVM_SETCOLUMNWIDTH, 1, width - first);
}

LRESULT NativeListView::OnNotify(const NMHDR& notice) {
    if (notice.code == LVN_ITEMCHANGED) {
        const auto& change = reinterpret_cast<const NMLISTVIEW&>(notice);
        if (((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0) {
            const auto row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
            list_.UserSelects(row < 0 ? -1 : static_cast<int>(row) + 1);
        }
    } else if (notice.code == static_cast<UINT>(NM_DBLCLK) &&
               reinterpret_cast<const NMITEMACTIVATE&>(notice).iItem >= 0) {
        list_.UserDoubleClicks();
    }
    return 0;
}

void NativeListView::OnPropertyChanged(Property property, int row) {
    switch (property) {
        case Property::Caption:  // the column heads are fixed
            break;
        case Property::ItemAdded:
            Insert(row);
            break;
        case Property::ItemsCleared:
            Send(LVM_DELETEALLITEMS);
            break;
        case Property::Selection:
            DrawSelection();
            break;
        default:
            NativeControl::OnPropertyChanged(property, row);
    }
}

void NativeListView::OnCreated() {
    MakeColumns();
    for (int row = 1; row <= list_.RowCount(); ++row) {
        Insert(row);
    }
    DrawSelection();
}

void NativeListView::Insert(int row) {
    std::wstring texts[] = {platform::Wide(list_.At(row).first),
                            platform::Wide(list_.At(row).second)};
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row - 1;
    item.pszText = texts[0].data();
    Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.iSubItem = 1;
    item.pszText = texts[1].data();
    Send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row - 1), reinterpret_cast<LPARAM>(&item));
}

void NativeListView::DrawSelection() {
    const int selected = list_.SelectedRow() - 1;
    LVITEMW state = {};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    constexpr auto All = static_cast<WPARAM>(-1);
    Send(LVM_SETITEMSTATE, All, reinterpret_cast<LPARAM>(&state));
    if (selected >= 0) {
        state.state = state.stateMask;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(&state));
        Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(selected), FALSE);
    }
}

}  // namespace

std::unique_ptr<NativeControl> MakeListView(NativeWindow& parent, toolkit::ListView& list) {
    return std::make_unique<NativeListView>(parent, list);
}

}  // namespace desktop
