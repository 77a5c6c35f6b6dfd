// Initialization of COM, which some shell functions need.
#pragma once

#include "platform/win32/late.h"

namespace platform {

/// Initializes COM on this thread for the lifetime of the object. It may be initialized already.
class ComApartment {
  public:
    ComApartment() : result_(LATE(ole32, CoInitializeEx)(nullptr, COINIT_APARTMENTTHREADED)) {}
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment() {
        if (SUCCEEDED(result_)) {
            LATE(ole32, CoUninitialize)();
        }
    }

  private:
    HRESULT result_;
};

}  // namespace platform
