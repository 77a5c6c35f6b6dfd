// What holds for every input. An input for which it does not hold ends the program.
#pragma once

#include <cstdio>
#include <cstdlib>

inline void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}
