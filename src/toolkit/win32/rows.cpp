#include "toolkit/win32/rows.h"

#include "platform/win32/text.h"

namespace desktop {

void DrawRow(const DRAWITEMSTRUCT& item, const toolkit::ItemControl& list, const Metrics& metrics) {
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    ::FillRect(item.hDC, &item.rcItem,
               ::GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item.itemID < static_cast<UINT>(list.ListCount())) {  // the field may have none
        ::SetTextColor(item.hDC,
                       ::GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        ::SetBkMode(item.hDC, TRANSPARENT);
        RECT place = item.rcItem;
        ::InflateRect(&place, -metrics.TextMargin(), 0);
        const std::wstring text = platform::Wide(list.List(static_cast<int>(item.itemID)));
        ::DrawTextW(item.hDC, text.c_str(), -1, &place,
                    DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_PATH_ELLIPSIS);
    }
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        ::DrawFocusRect(item.hDC, &item.rcItem);
    }
}

}  // namespace desktop
