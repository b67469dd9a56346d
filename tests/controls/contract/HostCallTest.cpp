#include "controls/contract/HostCall.h"

#include <gtest/gtest.h>

namespace orvanta::testing {

namespace {

TEST(HostCall, StandsUntilTheLastMarkHasGone) {
    EXPECT_FALSE(HostCall::Active());
    {
        const HostCall outer;
        {
            const HostCall inner;
            EXPECT_TRUE(HostCall::Active());
        }
        EXPECT_TRUE(HostCall::Active());
    }
    EXPECT_FALSE(HostCall::Active());
}

} // namespace

} // namespace orvanta::testing
