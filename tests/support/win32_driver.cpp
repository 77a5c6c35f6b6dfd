// The driver on real controls of Windows: mouse messages go to the control that the window shows at
// their point, keys to the control that has the focus, and both come back through the event loop.
#include "driver.h"

#include <utility>

#include "platform/win32/text.h"
#include "text/ascii.h"
#include "toolkit/desktop.h"
#include "toolkit/win32/native_windows.h"

namespace {

using toolkit::Kind;

std::function<void()> modalSteps;
std::vector<WPARAM> menuKeys;
UINT_PTR menuTimer;

HWND HandleOf(const toolkit::Window& window) {
    return desktop::EnsureNative(window)->Handle();
}

HWND HandleOf(const toolkit::Control& control) {
    return desktop::EnsureNative(control.Owner())->Find(control)->Handle();
}

LRESULT Ask(const toolkit::Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(HandleOf(control), message, wParam, lParam);
}
LRESULT Ask(const toolkit::Control& control, UINT message, WPARAM wParam, void* answer) {
    return Ask(control, message, wParam, reinterpret_cast<LPARAM>(answer));
}

void Post(HWND window, const std::vector<UINT>& messages, POINT point) {
    for (const UINT message : messages) {
        PostMessageW(window, message, 0, MAKELPARAM(point.x, point.y));
    }
    desktop::DoEvents();
}

/// Sends the mouse to what Windows finds at a point of a window or a control.
void PostMouse(HWND place, const std::vector<UINT>& messages, POINT point) {
    const HWND window = GetAncestor(place, GA_ROOT);
    MapWindowPoints(place, nullptr, &point, 1);
    const HWND child = WindowFromPoint(point);
    const HWND target = IsChild(window, child) && IsWindowEnabled(child) ? child : window;
    MapWindowPoints(nullptr, target, &point, 1);
    Post(target, messages, point);
}

POINT MiddleLeft(const RECT& place) {
    return {place.left + 8, (place.top + place.bottom) / 2};
}

/// Where the mouse is used, as a point of the control.
POINT PointOf(const toolkit::Control& control, int row) {
    RECT place = {LVIR_BOUNDS, 0, 0, 0};
    if (control.GetKind() == Kind::ListBox) {
        Ask(control, LB_GETITEMRECT, static_cast<WPARAM>(row), &place);
    } else if (control.GetKind() == Kind::ListView) {
        Ask(control, LVM_GETITEMRECT, static_cast<WPARAM>(row - 1), &place);
    } else {
        GetClientRect(HandleOf(control), &place);
    }
    return MiddleLeft(place);
}

void CALLBACK RunModalSteps(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    KillTimer(nullptr, timer);
    std::exchange(modalSteps, nullptr)();
}

/// Gives the keys to the menu once it is open, and what a disabled row leaves open an Escape.
void CALLBACK WorkMenu(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetCurrentThreadId(), &state);
    if ((state.flags & GUI_INMENUMODE) != 0) {
        for (const WPARAM key : std::exchange(menuKeys, {VK_ESCAPE})) {
            PostMessageW(state.hwndMenuOwner, WM_KEYDOWN, key, 1);
        }
    }
}

/// Texts that fit are what the tests write.
using Buffer = wchar_t[1024];

std::string TextOf(HWND window) {
    Buffer text;
    GetWindowTextW(window, text, std::size(text));
    return platform::Bytes(text);
}

std::vector<std::string> ItemsOf(const toolkit::Control& control, UINT count, UINT message) {
    std::vector<std::string> items;
    Buffer text;
    for (WPARAM row = 0; row < static_cast<WPARAM>(Ask(control, count)); ++row) {
        Ask(control, message, row, text);
        items.push_back(platform::Bytes(text));
    }
    return items;
}

std::string CellOf(const toolkit::Control& control, WPARAM row, int column) {
    Buffer text;
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = std::size(text);
    Ask(control, LVM_GETITEMTEXTW, row, &item);
    return platform::Bytes(text);
}

}  // namespace

namespace driver {

void Use(Mouse gesture, toolkit::Control& control, int row) {
    const std::vector<UINT> messages[] = {
        {WM_MOUSEMOVE},
        {WM_LBUTTONDOWN, WM_LBUTTONUP},
        {WM_RBUTTONDOWN, WM_RBUTTONUP},
        {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}};
    PostMouse(HandleOf(control), messages[static_cast<int>(gesture)], PointOf(control, row));
}

/// The lower right corner of a window is bare.
void PointAt(toolkit::Window& window) {
    RECT inside;
    GetClientRect(HandleOf(window), &inside);
    PostMouse(HandleOf(window), {WM_MOUSEMOVE}, {inside.right - 1, inside.bottom - 1});
}

void Choose(toolkit::Control& list, int row) {
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    if (Ask(list, CB_GETCOMBOBOXINFO, 0, &parts) == 0) {
        Use(Mouse::Click, list, row);
        return;
    }
    Ask(list, CB_SHOWDROPDOWN, TRUE);
    RECT place;
    SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&place));
    Post(parts.hwndList, {WM_LBUTTONDOWN, WM_LBUTTONUP}, MiddleLeft(place));
}

void Type(toolkit::Control& control, const std::string& text) {
    SetFocus(HandleOf(control));
    SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
    for (const wchar_t character : L'\b' + platform::Wide(text)) {
        PostMessageW(GetFocus(), WM_CHAR, character, 1);
    }
    desktop::DoEvents();
}

void Press(toolkit::Window& window, Key key) {
    const HWND target = IsChild(HandleOf(window), GetFocus()) ? GetFocus() : HandleOf(window);
    PostMessageW(target, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    PostMessageW(target, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
    desktop::DoEvents();
}

void Close(toolkit::Window& window) {
    PostMessageW(HandleOf(window), WM_SYSCOMMAND, SC_CLOSE, 0);
    desktop::DoEvents();
}

/// For one window at a time: the steps come first in its loop.
void InNextModal(std::function<void()> steps) {
    modalSteps = std::move(steps);
    SetTimer(nullptr, 0, 1, RunModalSteps);
}

void AtNextMenu(int row) {
    menuKeys.assign(static_cast<std::size_t>(row + 1), VK_DOWN);
    menuKeys.push_back(row < 0 ? VK_ESCAPE : VK_RETURN);
    KillTimer(nullptr, menuTimer);
    menuTimer = SetTimer(nullptr, 0, 1, WorkMenu);
}

Look LookAt(const toolkit::Control& control) {
    const HWND handle = HandleOf(control);
    Look look = {.text = TextOf(handle),
                 .enabled = IsWindowEnabled(handle) != 0,
                 .visible = IsWindowVisible(handle) != 0,
                 .focused = handle == GetFocus() || IsChild(handle, GetFocus()) != 0};
    const Kind kind = control.GetKind();
    const bool isStatic = kind == Kind::Label && !control.Has(toolkit::Link);
    if (control.Has(toolkit::Link)) {
        look.text = ReplaceAll(ReplaceAll(look.text, "<a>", ""), "</a>", "");
    } else if (kind == Kind::Button || kind == Kind::CheckBox ||
               (isStatic && (GetWindowLongW(handle, GWL_STYLE) & SS_NOPREFIX) == 0)) {
        // A single one marks an access key.
        look.text = ReplaceAll(ReplaceAll(ReplaceAll(look.text, "&&", "\1"), "&", ""), "\1", "&");
    }
    if (kind == Kind::ListView) {
        for (WPARAM row = 0; row < static_cast<WPARAM>(Ask(control, LVM_GETITEMCOUNT)); ++row) {
            look.items.push_back(CellOf(control, row, 0) + '|' + CellOf(control, row, 1));
        }
        look.index = static_cast<int>(Ask(control, LVM_GETNEXTITEM, ~WPARAM(0), LVNI_SELECTED));
    } else if (kind == Kind::ListBox) {
        look.items = ItemsOf(control, LB_GETCOUNT, LB_GETTEXT);
        look.index = static_cast<int>(Ask(control, LB_GETCURSEL));
    } else if (kind == Kind::DropDownList || kind == Kind::ComboBox) {
        look.items = ItemsOf(control, CB_GETCOUNT, CB_GETLBTEXT);
        look.index = static_cast<int>(Ask(control, CB_GETCURSEL));
    } else if (kind == Kind::Button || kind == Kind::CheckBox) {
        look.checked = Ask(control, BM_GETCHECK) == BST_CHECKED;
    }
    return look;
}

std::string ShownCaption(const toolkit::Window& window) {
    return IsWindowVisible(HandleOf(window)) ? TextOf(HandleOf(window)) : std::string();
}

}  // namespace driver
