// The driver on real controls of Windows: mouse messages go to the control that the window shows at
// their point, keys to the control that has the focus, and both come back through the event loop.
#include <deque>

#include "driver.h"
#include "platform/desktop.h"
#include "platform/win32/registry.h"
#include "platform/win32/text.h"
#include "text/ascii.h"

namespace {

HWND HandleOf(const toolkit::Window& window) {
    return platform::EnsureNative(window)->Handle();
}

HWND HandleOf(const toolkit::Control& control) {
    return platform::EnsureNative(control.Owner())->Find(control)->Handle();
}

LRESULT Ask(const toolkit::Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(HandleOf(control), message, wParam, lParam);
}

std::string TextOf(HWND window) {
    wchar_t text[1024];
    return platform::Bytes({text, static_cast<std::size_t>(GetWindowTextW(window, text, 1024))});
}

/// The child that Windows would send the mouse to at a point of the window, or the window itself.
HWND ChildAt(HWND window, POINT point) {
    POINT screen = point;
    ClientToScreen(window, &screen);
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place;
        GetWindowRect(child, &place);
        if (IsWindowVisible(child) && IsWindowEnabled(child) && PtInRect(&place, screen) &&
            SendMessageW(child, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)) != HTTRANSPARENT) {
            return child;
        }
    }
    return window;
}

void PostMouse(const toolkit::Window& window, POINT point, std::initializer_list<UINT> messages) {
    const HWND target = ChildAt(HandleOf(window), point);
    MapWindowPoints(HandleOf(window), target, &point, 1);
    for (const UINT message : messages) {
        PostMessageW(target, message, 0, MAKELPARAM(point.x, point.y));
    }
    platform::DoEvents();
}

RECT RowPlace(const toolkit::Control& control, int row) {
    RECT place = {LVIR_BOUNDS, 0, 0, 0};
    if (control.GetKind() == toolkit::Kind::ListBox) {
        Ask(control, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    } else if (control.GetKind() == toolkit::Kind::ListView) {
        Ask(control, LVM_GETITEMRECT, static_cast<WPARAM>(row - 1),
            reinterpret_cast<LPARAM>(&place));
    } else {
        GetClientRect(HandleOf(control), &place);
    }
    return place;
}

/// Over a list its row, over anything else near its left end, where a check box can be pressed.
POINT PointOf(const toolkit::Control& control, int row = 0) {
    const RECT place = RowPlace(control, row);
    POINT point = {place.left + 8, (place.top + place.bottom) / 2};
    MapWindowPoints(HandleOf(control), HandleOf(control.Owner()), &point, 1);
    return point;
}

void ClickAt(const toolkit::Window& window, POINT point) {
    PostMouse(window, point, {WM_LBUTTONDOWN, WM_LBUTTONUP});
}

void DoubleClickAt(const toolkit::Window& window, POINT point) {
    PostMouse(window, point, {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP});
}

void PostKey(HWND target, WPARAM key) {
    PostMessageW(target, WM_KEYDOWN, key, 1);
    PostMessageW(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    platform::DoEvents();
}

void PressKey(toolkit::Window& window, WPARAM key) {
    const HWND focus = GetFocus();
    PostKey(IsChild(HandleOf(window), focus) ? focus : HandleOf(window), key);
}

/// Runs queued steps, each as soon as another window is on top than when it was queued.
class ModalWatcher {
  public:
    static void Add(std::function<void()> steps) {
        if (queue.empty()) {
            before = platform::Topmost();
            SetTimer(nullptr, 0, 1, Look);
        }
        queue.push_back(std::move(steps));
    }

  private:
    static void CALLBACK Look(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
        const HWND top = platform::Topmost();
        if (top == before || !IsWindowVisible(top)) {
            return;
        }
        const std::function<void()> steps = std::move(queue.front());
        queue.pop_front();
        before = top;
        if (queue.empty()) {
            KillTimer(nullptr, timer);
        }
        steps();
        before = platform::Topmost();
    }

    static inline std::deque<std::function<void()>> queue;
    static inline HWND before;
};

int rowOfNextMenu;
bool rowIsChosen;
UINT_PTR menuTimer;

/// Works the menu with the keys that a person would press, once it is open. What a disabled row
/// leaves open is left by Escape.
void CALLBACK WorkMenu(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetCurrentThreadId(), &state);
    const auto press = [&](WPARAM key) { PostMessageW(state.hwndMenuOwner, WM_KEYDOWN, key, 1); };
    if ((state.flags & GUI_INMENUMODE) == 0) {
        return;
    }
    if (rowIsChosen || rowOfNextMenu < 0) {
        press(VK_ESCAPE);
        rowIsChosen = true;
    } else {
        for (int i = 0; i <= rowOfNextMenu; ++i) {
            press(VK_DOWN);
        }
        press(VK_RETURN);
        rowIsChosen = true;
    }
}

std::string ListText(const toolkit::Control& control, UINT message, int row) {
    wchar_t text[1024];
    const LRESULT length =
        Ask(control, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
    return platform::Bytes({text, static_cast<std::size_t>(length)});
}

std::string CellText(const toolkit::Control& control, int row, int column) {
    wchar_t text[1024];
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 1024;
    const LRESULT length =
        Ask(control, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return platform::Bytes({text, static_cast<std::size_t>(length)});
}

}  // namespace

namespace driver {

void Click(toolkit::Control& control) {
    ClickAt(control.Owner(), PointOf(control));
}

void Choose(toolkit::ItemControl& list, int row) {
    if (list.GetKind() == toolkit::Kind::ListBox) {
        ClickAt(list.Owner(), PointOf(list, row));
        return;
    }
    const HWND combo = HandleOf(list);
    SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    RECT place;
    SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&place));
    const LPARAM point = MAKELPARAM(place.left + 8, (place.top + place.bottom) / 2);
    PostMessageW(parts.hwndList, WM_LBUTTONDOWN, 0, point);
    PostMessageW(parts.hwndList, WM_LBUTTONUP, 0, point);
    platform::DoEvents();
}

void Choose(toolkit::ListView& list, int row) {
    ClickAt(list.Owner(), PointOf(list, row));
}

void DoubleClick(toolkit::ListBox& list, int row) {
    DoubleClickAt(list.Owner(), PointOf(list, row));
}

void DoubleClick(toolkit::ListView& list, int row) {
    DoubleClickAt(list.Owner(), PointOf(list, row));
}

void RightClick(toolkit::ListBox& list, int row) {
    PostMouse(list.Owner(), PointOf(list, row), {WM_RBUTTONDOWN, WM_RBUTTONUP});
}

void Type(toolkit::Control& control, const std::string& text) {
    SetFocus(HandleOf(control));
    const HWND field = GetFocus();
    SendMessageW(field, EM_SETSEL, 0, -1);
    PostMessageW(field, WM_CHAR, VK_BACK, 1);
    for (const wchar_t character : platform::Wide(text)) {
        PostMessageW(field, WM_CHAR, character, 1);
    }
    platform::DoEvents();
}

void PointAt(toolkit::Control& control, int row) {
    PostMouse(control.Owner(), PointOf(control, row), {WM_MOUSEMOVE});
}

/// The lower right corner of a window is bare.
void PointAt(toolkit::Window& window) {
    RECT inside;
    GetClientRect(HandleOf(window), &inside);
    PostMouse(window, {inside.right - 1, inside.bottom - 1}, {WM_MOUSEMOVE});
}

void PressEnter(toolkit::Window& window) {
    PressKey(window, VK_RETURN);
}

void PressEscape(toolkit::Window& window) {
    PressKey(window, VK_ESCAPE);
}

void PressTab(toolkit::Window& window) {
    PressKey(window, VK_TAB);
}

void Close(toolkit::Window& window) {
    PostMessageW(HandleOf(window), WM_SYSCOMMAND, SC_CLOSE, 0);
    platform::DoEvents();
}

void InNextModal(std::function<void()> steps) {
    ModalWatcher::Add(std::move(steps));
}

void AtNextMenu(int row) {
    rowOfNextMenu = row;
    rowIsChosen = false;
    KillTimer(nullptr, menuTimer);
    menuTimer = SetTimer(nullptr, 0, 1, WorkMenu);
}

std::string ShownText(const toolkit::Control& control) {
    const std::string text = TextOf(HandleOf(control));
    const bool isButton =
        control.GetKind() == toolkit::Kind::Button || control.GetKind() == toolkit::Kind::CheckBox;
    return isButton ? ReplaceAll(text, "&&", "&") : text;
}

std::vector<std::string> ShownItems(const toolkit::Control& control) {
    std::vector<std::string> items;
    if (control.GetKind() == toolkit::Kind::ListView) {
        for (int row = 0; row < Ask(control, LVM_GETITEMCOUNT); ++row) {
            items.push_back(CellText(control, row, 0) + '|' + CellText(control, row, 1));
        }
        return items;
    }
    const bool isListBox = control.GetKind() == toolkit::Kind::ListBox;
    for (int row = 0; row < Ask(control, isListBox ? LB_GETCOUNT : CB_GETCOUNT); ++row) {
        items.push_back(ListText(control, isListBox ? LB_GETTEXT : CB_GETLBTEXT, row));
    }
    return items;
}

int ShownIndex(const toolkit::Control& control) {
    switch (control.GetKind()) {
        case toolkit::Kind::ListView: {
            const LRESULT row =
                Ask(control, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
            return row < 0 ? -1 : static_cast<int>(row) + 1;
        }
        case toolkit::Kind::ListBox:
            return static_cast<int>(Ask(control, LB_GETCURSEL));
        default:
            return static_cast<int>(Ask(control, CB_GETCURSEL));
    }
}

bool ShownChecked(const toolkit::CheckBox& box) {
    return Ask(box, BM_GETCHECK) == BST_CHECKED;
}

bool ShownEnabled(const toolkit::Control& control) {
    return IsWindowEnabled(HandleOf(control)) != 0;
}

bool ShownVisible(const toolkit::Control& control) {
    return IsWindowVisible(HandleOf(control)) != 0;
}

bool ShownWindow(const toolkit::Window& window) {
    return IsWindowVisible(HandleOf(window)) != 0;
}

std::string ShownCaption(const toolkit::Window& window) {
    return TextOf(HandleOf(window));
}

std::string Focused(const toolkit::Window& window) {
    const HWND focus = GetFocus();
    for (const toolkit::Control* control : window.Controls()) {
        if (focus != nullptr &&
            (HandleOf(*control) == focus || IsChild(HandleOf(*control), focus))) {
            return std::string(control->Row().name);
        }
    }
    return {};
}

}  // namespace driver
