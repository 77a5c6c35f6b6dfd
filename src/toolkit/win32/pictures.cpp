#include "toolkit/win32/pictures.h"

#include <algorithm>

#include "platform/win32/text.h"

namespace desktop {
namespace {

/// The sizes of the icons that art/generate makes.
constexpr int DrawnSizes[] = {16, 24, 32, 36, 42, 48, 56, 63, 84};

/// The largest of these sizes that fits: Windows scales icons badly.
int LargestFitting(int size) {
    const auto* larger = std::ranges::upper_bound(DrawnSizes, size);
    return larger != std::begin(DrawnSizes) ? *(larger - 1) : size;
}

}  // namespace

OwnedIcon LoadPicture(std::string_view name, int size) {
    const int drawn = LargestFitting(size);
    return OwnedIcon(
        static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), platform::Wide(name).c_str(),
                                        IMAGE_ICON, drawn, drawn, LR_DEFAULTCOLOR)));
}

}  // namespace desktop
