// Functions of DLLs that most runs never need. A DLL is loaded at its first call: loading them at
// the start would make it a tenth longer.
#pragma once

#include "platform/win32/windows_headers.h"

namespace platform {

/// Returns the function of that name and type. The DLL must be part of Windows and export it.
template <typename Service>
Service* Late(const wchar_t* library, const char* name) {
    const HMODULE module = ::LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return reinterpret_cast<Service*>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

/// The same with the name written once: LATE(ole32, CoTaskMemFree)(item).
#define LATE(library, service) ::platform::Late<decltype(::service)>(L## #library, #service)

}  // namespace platform
