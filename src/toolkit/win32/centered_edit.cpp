#include "toolkit/win32/centered_edit.h"

#include <commctrl.h>

#include <algorithm>

namespace desktop {
namespace {

constexpr UINT_PTR SubclassId = 1;

/// Fills what is above and below the line with the background of the field.
void FillAround(HWND edit) {
    RECT line = {};
    ::GetClientRect(edit, &line);
    ::MapWindowPoints(edit, nullptr, reinterpret_cast<POINT*>(&line), 2);
    RECT frame = {};
    ::GetWindowRect(edit, &frame);
    ::OffsetRect(&line, -frame.left, -frame.top);
    const LONG border = line.left;
    const RECT inside = {line.left, border, line.right, frame.bottom - frame.top - border};

    const HDC context = ::GetWindowDC(edit);
    ::ExcludeClipRect(context, line.left, line.top, line.right, line.bottom);
    ::FillRect(context, &inside,
               ::GetSysColorBrush(::IsWindowEnabled(edit) ? COLOR_WINDOW : COLOR_3DFACE));
    ::ReleaseDC(edit, context);
}

LRESULT CALLBACK Procedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR lineHeight) {
    const LRESULT result = ::DefSubclassProc(edit, message, wParam, lParam);
    if (message == WM_NCCALCSIZE) {
        // In either form of lParam, the client area is the first rectangle.
        RECT& client = *reinterpret_cast<RECT*>(lParam);
        const LONG height = client.bottom - client.top;
        const LONG around = std::max<LONG>(0, height - static_cast<LONG>(lineHeight));
        client.top += around / 2;
        client.bottom -= around - around / 2;
    } else if (message == WM_NCPAINT || message == WM_ENABLE) {
        FillAround(edit);
    } else if (message == WM_NCHITTEST && result == HTNOWHERE) {
        return HTCLIENT;  // a click beside the line is one on the field
    } else if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(edit, Procedure, id);
    }
    return result;
}

}  // namespace

void CenterLine(HWND edit, const Metrics& metrics) {
    ::SendMessageW(edit, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
                   MAKELPARAM(metrics.TextMargin(), metrics.TextMargin()));
    ::SetWindowSubclass(edit, Procedure, SubclassId, static_cast<DWORD_PTR>(metrics.LineHeight()));
    ::SetWindowPos(edit, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace desktop
