#include "base/ResumeNext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ResumeNextTest : public ::testing::Test {
protected:
    template<typename Step>
    bool Run(Step&& step) {
        return ResumeNext([this](const Failure& failure) { m_reports.push_back(failure.Description()); },
                          std::forward<Step>(step));
    }

    std::vector<std::u16string> m_reports;
};

TEST_F(ResumeNextTest, AStepThatSucceedsIsNotReported) {
    int n = 0;
    EXPECT_TRUE(Run([&] { n = 1; }));
    EXPECT_EQ(n, 1);
    EXPECT_THAT(m_reports, IsEmpty());
}

TEST_F(ResumeNextTest, AFailingStepIsReportedOnceAndTheNextOneRuns) {
    int n = 0;
    EXPECT_FALSE(Run([&] {
        n = 1;
        throw SubscriptOutOfRange();
    }));
    EXPECT_TRUE(Run([&] { n += 10; }));
    EXPECT_FALSE(Run([] { throw Overflow(); }));
    EXPECT_EQ(n, 11);
    EXPECT_THAT(m_reports, ElementsAre(u"Subscript out of range", u"Overflow"));
}

TEST_F(ResumeNextTest, AStepInsideAStepReportsForItselfOnly) {
    bool bInner = true;
    EXPECT_TRUE(Run([&] { bInner = Run([] { throw Overflow(); }); }));
    EXPECT_FALSE(bInner);
    EXPECT_THAT(m_reports, ElementsAre(u"Overflow"));
}

TEST_F(ResumeNextTest, WhatIsNoFailurePassesThrough) {
    EXPECT_THROW(Run([] { throw std::length_error("not ours"); }), std::length_error);
    EXPECT_THAT(m_reports, IsEmpty());
}

TEST_F(ResumeNextTest, AFailureOfTheReportItselfPassesThrough) {
    EXPECT_THROW(ResumeNext([](const Failure& failure) { throw Failure(failure); }, [] { throw Overflow(); }), Failure);
}

TEST(IgnoreFailureTest, DropsAFailureAndTellsOfIt) {
    int n = 0;
    EXPECT_TRUE(IgnoreFailure([&] { n = 1; }));
    EXPECT_FALSE(IgnoreFailure([] { throw Overflow(); }));
    EXPECT_EQ(n, 1);
}

TEST(IgnoreFailureTest, LetsThroughWhatIsNoFailure) {
    EXPECT_THROW(IgnoreFailure([] { throw std::runtime_error("other"); }), std::runtime_error);
}

} // namespace
} // namespace orvanta
