// Services of libraries that most runs of the program never need. They are loaded when the first of
// their services is called: at the start they would cost a tenth of its time.
#pragma once

#include "platform/win32/windows_headers.h"

namespace platform {

/// The service of that name and type, such as Late<decltype(::CoTaskMemFree)>(L"ole32", ...). The
/// library must be one of Windows itself, and have the service.
template <typename Service>
Service* Late(const wchar_t* library, const char* name) {
    const HMODULE module = ::LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return reinterpret_cast<Service*>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

/// The same, with the name said once.
#define LATE(library, service) ::platform::Late<decltype(::service)>(L## #library, #service)

}  // namespace platform
