#include "toolkit/win32/pictures.h"

#include <algorithm>

#include "platform/win32/text.h"

namespace desktop {
namespace {

/// The sizes in which art/generate draws our icons, the same for all of them as far as they go.
constexpr int DrawnSizes[] = {16, 24, 32, 36, 42, 48, 56, 63, 84};

/// The largest drawn size that fits: an icon that Windows has to scale looks ragged.
int DrawnSize(int room) {
    const auto* larger = std::ranges::upper_bound(DrawnSizes, room);
    return larger != std::begin(DrawnSizes) ? *(larger - 1) : room;
}

}  // namespace

OwnedIcon LoadPicture(std::string_view name, int room) {
    const int size = DrawnSize(room);
    return OwnedIcon(
        static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), platform::Wide(name).c_str(),
                                        IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

}  // namespace desktop
