#include "platform/win32/text.h"
#include "toolkit/dialogs.h"
#include "toolkit/win32/native_windows.h"

namespace desktop {

void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    ::MessageBoxW(FrontWindow(), platform::Wide(text).c_str(), platform::Wide(title).c_str(),
                  MB_OK | MB_TASKMODAL | static_cast<UINT>(icon));
}

}  // namespace desktop
