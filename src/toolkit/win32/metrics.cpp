#include "toolkit/win32/metrics.h"

#include "platform/win32/text.h"

namespace desktop {
namespace {

OwnedFont MakeFont(LOGFONTW description, int percent, bool bold) {
    constexpr int Whole = 100;
    description.lfHeight = ::MulDiv(description.lfHeight, percent, Whole);
    if (bold) {
        description.lfWeight = FW_BOLD;
    }
    return OwnedFont(::CreateFontIndirectW(&description));
}

}  // namespace

int SystemDpi() {
    const WindowContext screen(nullptr);
    return ::GetDeviceCaps(screen.Get(), LOGPIXELSX);
}

int DpiOf(HWND window) {
    // GetDpiForWindow exists since Windows 10 1607.
    using Service = UINT(WINAPI*)(HWND);
    static const auto service = reinterpret_cast<Service>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"user32"), "GetDpiForWindow")));
    const int dpi = service != nullptr ? static_cast<int>(service(window)) : 0;
    return dpi > 0 ? dpi : SystemDpi();
}

bool IsHighContrast() {
    HIGHCONTRASTW setting = {};
    setting.cbSize = sizeof setting;
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

Metrics::Metrics(int dpi, int percent) : dpi_(dpi) {
    MakeFonts(percent);
    Measure();
}

void Metrics::MakeFonts(int percent) {
    NONCLIENTMETRICSW system = {};
    system.cbSize = sizeof system;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, system.cbSize, &system, 0);
    LOGFONTW body = system.lfMessageFont;
    body.lfHeight = ::MulDiv(body.lfHeight, dpi_, SystemDpi());
    constexpr struct {
        Face face;
        int percent;
        bool bold;
    } Variants[] = {
        {Face::Body, 100, false},
        {Face::Bold, 100, true},
        {Face::Title, 220, true},
        {Face::Small, 92, false},
    };
    for (const auto& variant : Variants) {
        fonts_[static_cast<std::size_t>(variant.face)] =
            MakeFont(body, variant.percent * percent / 100, variant.bold);
    }
}

void Metrics::Measure() {
    const std::wstring_view letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const int count = static_cast<int>(letters.size());
    const WindowContext screen(nullptr);
    const Chosen font(screen.Get(), Font(Face::Body));
    SIZE size = {};
    ::GetTextExtentPoint32W(screen.Get(), letters.data(), count, &size);
    characterWidth_ = (size.cx + count / 2) / count;
    characterHeight_ = size.cy;
}

int Metrics::TextWidth(Face face, const std::string& text) const {
    const std::wstring wide = platform::Wide(text);
    const WindowContext screen(nullptr);
    const Chosen font(screen.Get(), Font(face));
    SIZE size = {};
    ::GetTextExtentPoint32W(screen.Get(), wide.data(), static_cast<int>(wide.size()), &size);
    return size.cx;
}

RECT Metrics::Pixels(const toolkit::Place& place) const {
    const auto across = [this](int units) { return ::MulDiv(units, characterWidth_, 4); };
    const auto down = [this](int units) { return ::MulDiv(units, characterHeight_, 8); };
    return {across(place.x), down(place.y), across(place.x + place.width),
            down(place.y + place.height)};
}

}  // namespace desktop
