#include "platform/dialogs.h"
#include "platform/win32/registry.h"
#include "platform/win32/text.h"

namespace platform {

void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    ::MessageBoxW(Topmost(), Wide(text).c_str(), Wide(title).c_str(),
                  MB_OK | MB_TASKMODAL | static_cast<UINT>(icon));
}

}  // namespace platform
