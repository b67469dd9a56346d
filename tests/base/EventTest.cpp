#include "base/Event.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;

TEST(Event, HandlersRunInTheOrderInWhichTheyWereAdded) {
    Event<int> event;
    std::vector<int> calls;
    event.Add([&](int n) { calls.push_back(n * 10 + 1); });
    event.Add([&](int n) { calls.push_back(n * 10 + 2); });
    event.Raise(4);
    EXPECT_THAT(calls, ElementsAre(41, 42));
}

TEST(Event, WithoutHandlersNothingHappens) {
    Event<int&> event;
    EXPECT_FALSE(event.HasHandlers());
    int n = 1;
    event.Raise(n);
    EXPECT_EQ(n, 1);
}

TEST(Event, AReferenceArgumentCarriesTheAnswerFromOneHandlerToTheNextAndBack) {
    Event<const std::u16string&, bool&> event;
    std::vector<bool> seen;
    event.Add([&](const std::u16string& s, bool& bCancel) {
        seen.push_back(bCancel);
        bCancel = s == u"stop";
    });
    event.Add([&](const std::u16string&, bool& bCancel) { seen.push_back(bCancel); });
    bool bCancel = false;
    event.Raise(u"stop", bCancel);
    EXPECT_TRUE(bCancel);
    EXPECT_THAT(seen, ElementsAre(false, true));
}

TEST(Event, AValueArgumentReachesEachHandlerUnchanged) {
    Event<std::u16string> event;
    std::vector<std::u16string> seen;
    event.Add([&](std::u16string s) {
        seen.push_back(s);
        s = u"changed";
        std::u16string sTaken = std::move(s);
    });
    event.Add([&](const std::u16string& s) { seen.push_back(s); });
    event.Raise(u"given");
    EXPECT_THAT(seen, ElementsAre(u"given", u"given"));
}

TEST(Event, ARemovedHandlerIsNotCalledAndUnknownTokensAreIgnored) {
    Event<> event;
    int nFirst = 0;
    int nSecond = 0;
    const auto first = event.Add([&] { ++nFirst; });
    const auto second = event.Add([&] { ++nSecond; });
    event.Remove(first);
    event.Remove(first);
    event.Remove(second + 1);
    event.Remove(0);
    event.Raise();
    EXPECT_EQ(nFirst, 0);
    EXPECT_EQ(nSecond, 1);
    event.Remove(second);
    EXPECT_FALSE(event.HasHandlers());
}

TEST(Event, ATokenIsNotGivenAgainAfterARemoval) {
    Event<> event;
    const auto first = event.Add([] {});
    event.Remove(first);
    EXPECT_NE(event.Add([] {}), first);
}

TEST(Event, AHandlerThatRemovesItselfRunsToItsEndAndOthersFollow) {
    Event<> event;
    std::vector<std::string> calls;
    Event<>::Token token = 0;
    const auto keep = std::make_shared<std::string>("self");
    token = event.Add([&event, &token, &calls, keep] {
        event.Remove(token);
        calls.push_back(*keep);
    });
    event.Add([&] { calls.emplace_back("next"); });
    event.Raise();
    event.Raise();
    EXPECT_THAT(calls, ElementsAre("self", "next", "next"));
}

TEST(Event, AHandlerRemovedByAnEarlierOneDoesNotRunAnyMore) {
    Event<> event;
    std::vector<int> calls;
    Event<>::Token second = 0;
    event.Add([&] {
        calls.push_back(1);
        event.Remove(second);
    });
    second = event.Add([&] { calls.push_back(2); });
    event.Add([&] { calls.push_back(3); });
    event.Raise();
    EXPECT_THAT(calls, ElementsAre(1, 3));
}

TEST(Event, AHandlerAddedDuringARaiseRunsFromTheNextRaiseOn) {
    Event<> event;
    std::vector<int> calls;
    event.Add([&] {
        calls.push_back(1);
        for (int n = 0; calls.size() == 1 && n < 100; ++n)
            event.Add([&] { calls.push_back(2); });
    });
    event.Raise();
    EXPECT_THAT(calls, ElementsAre(1));
    event.Raise();
    EXPECT_EQ(calls.size(), 1u + 1u + 100u);
}

TEST(Event, AHandlerMayRaiseTheSameEventAgain) {
    Event<int> event;
    std::vector<int> calls;
    event.Add([&](int n) {
        calls.push_back(n);
        if (n > 0) event.Raise(n - 1);
    });
    event.Add([&](int n) { calls.push_back(100 + n); });
    event.Raise(1);
    EXPECT_THAT(calls, ElementsAre(1, 0, 100, 101));
}

TEST(Event, AHandlerRemovedInANestedRaiseDoesNotRunInTheOuterOne) {
    Event<int> event;
    std::vector<int> calls;
    Event<int>::Token last = 0;
    event.Add([&](int n) {
        calls.push_back(n);
        if (n == 1) event.Raise(0);
        if (n == 0) event.Remove(last);
    });
    last = event.Add([&](int n) { calls.push_back(100 + n); });
    event.Raise(1);
    EXPECT_THAT(calls, ElementsAre(1, 0));
}

TEST(Event, TheRaiseEndsWhenAHandlerDestroysTheEvent) {
    auto event = std::make_unique<Event<int>>();
    std::vector<int> calls;
    const auto keep = std::make_shared<int>(7);
    event->Add([&event, &calls, keep](int n) {
        event.reset();
        calls.push_back(n + *keep);
    });
    event->Add([&](int) { calls.push_back(-1); });
    event->Raise(1);
    EXPECT_THAT(calls, ElementsAre(8));
    EXPECT_EQ(keep.use_count(), 1);
}

TEST(Event, TheOuterRaiseEndsTooWhenANestedOneDestroysTheEvent) {
    auto event = std::make_unique<Event<int>>();
    std::vector<int> calls;
    event->Add([&](int n) {
        calls.push_back(n);
        if (n == 0) {
            event.reset();
        } else {
            event->Raise(n - 1);
        }
    });
    event->Add([&](int) { calls.push_back(-1); });
    event->Raise(2);
    EXPECT_THAT(calls, ElementsAre(2, 1, 0));
}

TEST(Event, AFailureInAHandlerReachesTheRaiserAndLeavesTheEventWhole) {
    Event<bool> event;
    int nCalls = 0;
    event.Add([&](bool bFail) {
        if (bFail) throw std::runtime_error("handler");
    });
    event.Add([&](bool) { ++nCalls; });
    EXPECT_THROW(event.Raise(true), std::runtime_error);
    EXPECT_EQ(nCalls, 0);
    event.Raise(false);
    EXPECT_EQ(nCalls, 1);
}

// Does something when the last copy of it goes.
class Farewell {
public:
    explicit Farewell(std::function<void()> bye) : m_bye(std::move(bye)) {}
    Farewell(const Farewell&) = delete;
    Farewell& operator=(const Farewell&) = delete;
    ~Farewell() { m_bye(); }

private:
    std::function<void()> m_bye;
};

TEST(Event, WhatARemovedHandlerHeldMayUseTheEventWhenItGoes) {
    Event<> event;
    int nOther = 0;
    const auto other = event.Add([&] { ++nOther; });
    auto farewell = std::make_shared<Farewell>([&] {
        event.Remove(other);
        event.Add([&] { nOther += 10; });
    });
    const auto token = event.Add([farewell] {});
    farewell.reset();
    event.Remove(token);
    event.Raise();
    EXPECT_EQ(nOther, 10);
}

TEST(Event, WhatARemovedHandlerHeldMayDestroyTheEventWhenItGoes) {
    auto event = std::make_unique<Event<>>();
    auto farewell = std::make_shared<Farewell>([&] { event.reset(); });
    const auto token = event->Add([farewell] {});
    event->Add([] {});
    farewell.reset();
    event->Remove(token);
    EXPECT_EQ(event, nullptr);
}

TEST(Event, WhatAHandlerHeldMayStillSpeakToAnEventThatGoes) {
    std::optional<Event<>> event(std::in_place);
    Event<>& alias = *event;
    bool bHadHandlers = true;
    auto farewell = std::make_shared<Farewell>([&] {
        bHadHandlers = alias.HasHandlers();
        alias.Remove(1);
    });
    event->Add([farewell] {});
    farewell.reset();
    event.reset();
    EXPECT_FALSE(bHadHandlers);
}

TEST(Event, AHandlerIsReleasedWithItsRemovalAndWithTheEvent) {
    const auto held = std::make_shared<int>(1);
    {
        Event<> event;
        const auto token = event.Add([held] {});
        event.Add([held] {});
        EXPECT_EQ(held.use_count(), 3);
        event.Remove(token);
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
} // namespace orvanta
