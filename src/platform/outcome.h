// How an operation of the system ended.
#pragma once

#include <string>

namespace platform {

/// Success, or a failure with its reason in the operating system's words.
struct [[nodiscard]] Outcome {
    bool ok = true;
    std::string reason;
    explicit operator bool() const { return ok; }
};

}  // namespace platform
