#include "toolkit/win32/pictures.h"

#include <algorithm>

#include "platform/win32/text.h"

namespace desktop {
namespace {

/// The sizes of the icons that art/generate makes.
constexpr int DrawnSizes[] = {16, 24, 32, 36, 42, 48, 56, 63, 84};

}  // namespace

int DrawnSize(int size) {
    const auto* larger = std::ranges::upper_bound(DrawnSizes, size);
    return larger != std::begin(DrawnSizes) ? *(larger - 1) : size;
}

OwnedIcon LoadPicture(std::string_view name, int size) {
    const int drawn = DrawnSize(size);
    return OwnedIcon(
        static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), platform::Wide(name).c_str(),
                                        IMAGE_ICON, drawn, drawn, LR_DEFAULTCOLOR)));
}

}  // namespace desktop
