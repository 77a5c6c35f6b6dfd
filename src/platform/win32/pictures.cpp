#include "platform/win32/pictures.h"

#include "platform/win32/text.h"

namespace platform {

OwnedIcon LoadPicture(std::string_view name, int size) {
    return OwnedIcon(static_cast<HICON>(::LoadImageW(
        ::GetModuleHandleW(nullptr), Wide(name).c_str(), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

}  // namespace platform
