// What holds for every input. An input for which it does not hold ends the program.
#pragma once

#include <stdexcept>

inline void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::logic_error(what);
    }
}
