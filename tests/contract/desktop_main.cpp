// Starts the desktop once, before the first window.
#include <gtest/gtest.h>

#include "toolkit/desktop.h"

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    if (!GTEST_FLAG_GET(list_tests)) {
        desktop::StartDesktop();
    }
    return RUN_ALL_TESTS();
}
