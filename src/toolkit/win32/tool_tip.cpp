#include "toolkit/win32/tool_tip.h"

#include "platform/win32/text.h"
#include "toolkit/win32/metrics.h"

namespace desktop {

void ToolTips::Make() {
    handle_ = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner_, nullptr,
                                ::GetModuleHandleW(nullptr), nullptr);
    // Only tooltips with a maximum width break lines.
    constexpr int Inches = 4;
    ::SendMessageW(handle_, TTM_SETMAXTIPWIDTH, 0, Inches * DpiOf(owner_));
}

void ToolTips::Set(HWND control, const std::string& text) {
    if (handle_ == nullptr) {
        Make();
    }
    std::wstring wide = platform::Wide(text);
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;  // accepted by every version of the common controls
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = owner_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = wide.data();
    const auto parameter = reinterpret_cast<LPARAM>(&tool);
    ::SendMessageW(handle_, TTM_DELTOOLW, 0, parameter);
    ::SendMessageW(handle_, TTM_ADDTOOLW, 0, parameter);
}

}  // namespace desktop
