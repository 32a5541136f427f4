// Runs the tests on a desktop of their own.
#include "desktop/virtual_desktop.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Who only asks for their names needs none.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const quendra::test::VirtualDesktop desktop;
    return RUN_ALL_TESTS();
}
