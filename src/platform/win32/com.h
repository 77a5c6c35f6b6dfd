// The Component Object Model, which the shell's services want to be ready on their thread.
#pragma once

#include "platform/win32/late.h"

namespace platform {

/// Makes it ready for as long as this lives. Does no harm where it is ready already.
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
