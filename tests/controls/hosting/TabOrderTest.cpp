#include "controls/hosting/TabOrder.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace orvanta::testing {

namespace {

class TabOrderTest : public ::testing::Test {
protected:
    TabOrderTest() {
        for (std::string& s : stops)
            order.Append(s);
    }
    std::string Walk(const std::string* from, bool bBackwards) const {
        const std::string* next =
            order.Next(from, bBackwards, [this](std::string& s) { return skipped.find(s) == skipped.end(); });
        return next ? *next : "none";
    }

    std::string stops[4] = {"a", "b", "c", "d"};
    std::set<std::string> skipped;
    TabOrder<std::string> order;
};

TEST_F(TabOrderTest, GoesRoundBothEnds) {
    EXPECT_EQ(Walk(&stops[0], false), "b");
    EXPECT_EQ(Walk(&stops[3], false), "a");
    EXPECT_EQ(Walk(&stops[0], true), "d");
    EXPECT_EQ(Walk(&stops[2], true), "b");
}

TEST_F(TabOrderTest, WithoutAStartItBeginsAtTheFirstOrBackwardsAtTheLast) {
    EXPECT_EQ(Walk(nullptr, false), "a");
    EXPECT_EQ(Walk(nullptr, true), "d");
    const std::string stranger = "x";
    EXPECT_EQ(Walk(&stranger, false), "a");
}

TEST_F(TabOrderTest, LeavesOutWhatIsNotSuitable) {
    skipped = {"b", "c"};
    EXPECT_EQ(Walk(&stops[0], false), "d");
    EXPECT_EQ(Walk(&stops[3], true), "a");
}

TEST_F(TabOrderTest, ComesBackToTheStartAtLastAndFindsNothingWhenNothingIsSuitable) {
    skipped = {"b", "c", "d"};
    EXPECT_EQ(Walk(&stops[0], false), "a");
    EXPECT_EQ(Walk(&stops[0], true), "a");
    skipped.insert("a");
    EXPECT_EQ(Walk(&stops[0], false), "none");
    EXPECT_EQ(Walk(nullptr, true), "none");
}

TEST_F(TabOrderTest, MovingToAPlaceShiftsTheOthers) {
    order.Move(stops[3], 1);
    EXPECT_EQ(order.IndexOf(&stops[3]), 1);
    EXPECT_EQ(order.IndexOf(&stops[1]), 2);
    EXPECT_EQ(order.IndexOf(&stops[2]), 3);
    order.Move(stops[0], 99);
    EXPECT_EQ(order.IndexOf(&stops[0]), 3);
    order.Move(stops[0], -5);
    EXPECT_EQ(order.IndexOf(&stops[0]), 0);
    EXPECT_EQ(order.Count(), 4U);
}

TEST_F(TabOrderTest, WhoIsTakenOutHasNoPlaceAndCannotBeMoved) {
    order.Remove(stops[1]);
    EXPECT_EQ(order.IndexOf(&stops[1]), -1);
    order.Move(stops[1], 0);
    EXPECT_EQ(order.Count(), 3U);
    EXPECT_EQ(Walk(&stops[0], false), "c");
}

} // namespace

} // namespace orvanta::testing
