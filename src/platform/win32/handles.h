// Owners of native handles: each releases its handle when it is destroyed.
#pragma once

#include <memory>
#include <type_traits>

#include "platform/win32/windows_headers.h"

namespace platform {

template <auto Release>
struct Releaser {
    template <typename T>
    void operator()(T* handle) const {
        Release(handle);
    }
};

template <typename Handle, auto Release>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Releaser<Release>>;

/// Closes a kernel handle unless it is INVALID_HANDLE_VALUE.
inline void CloseValidHandle(HANDLE handle) {
    if (handle != INVALID_HANDLE_VALUE) {
        ::CloseHandle(handle);
    }
}
using OwnedHandle = Owned<HANDLE, CloseValidHandle>;

}  // namespace platform
