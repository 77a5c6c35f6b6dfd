// The result of an operation that can fail.
#pragma once

#include <string>

namespace platform {

/// Success, or a failure with a reason to show to the user.
struct [[nodiscard]] Outcome {
    bool ok = true;
    std::string reason;
    explicit operator bool() const { return ok; }
};

}  // namespace platform
