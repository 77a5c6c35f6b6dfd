// Events are members of type std::function; an unset one ignores its event.
#pragma once

#include <functional>
#include <type_traits>

namespace toolkit {

/// Calls a handler if one is set.
template <typename... Parameters>
void Run(const std::function<void(Parameters...)>& handler,
         std::type_identity_t<Parameters>... arguments) {
    if (handler) {
        handler(arguments...);
    }
}

}  // namespace toolkit
