// The one main of all test programs: what a test process needs around it before the first test runs.
#include "tests/support/ProcessGuard.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    orvanta::testing::GuardProcess();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
