// Order of delivery, stops, return values, re-entry, hooks that change during delivery, dying windows.
#include "plumbing/MSubclass.h"

#include "base/Failure.h"
#include "tests/plumbing/HookedWindow.h"
#include "tests/support/PatchedImport.h"

namespace orvanta {
namespace {

using testing::Client;
using testing::g_duringOwn;
using testing::g_journal;
using testing::g_lOwnResult;
using testing::kAsked;
using testing::kOther;

class MSubclass : public testing::HookedWindow {
protected:
    Client a{"A"};
    Client b{"B"};
    Client c{"C"};
};

TEST_F(MSubclass, TheResponsesAreNineAndTen) {
    EXPECT_EQ(mrBeforePrevious, 9);
    EXPECT_EQ(mrAfterPrevious, 10);
}

TEST_F(MSubclass, AMessageWithoutAClientGoesToThePreviousProcedureUnchanged) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(Send(kOther), 700);
    EXPECT_EQ(g_journal, Journal{"P"});
    SetWindowTextW(hwnd, L"still a window");
    EXPECT_EQ(GetWindowTextLengthW(hwnd), 14);
}

TEST_F(MSubclass, AMessageWithoutAClientCostsOneLookUp) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    const std::uint64_t nBefore = HooksInForce().LookUps();
    Send(kOther);
    EXPECT_EQ(HooksInForce().LookUps(), nBefore + 1);
}

TEST_F(MSubclass, TheClientSeesTheMessageAndAFreshStopAndReturn) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    Send(kAsked);
    EXPECT_EQ(a.seen, (Client::Message{hwnd, kAsked, 12, 34}));
    EXPECT_FALSE(a.bSawStop);
    EXPECT_EQ(a.lSawReturn, 0);
}

TEST_F(MSubclass, StopWithResponseNineKeepsThePreviousProcedureOutAndTheClientsValueComesBack) {
    a.bStop = true;
    a.Returns(55);
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(Send(kAsked), 55);
    EXPECT_EQ(g_journal, Journal{"A+"});
}

TEST_F(MSubclass, ReturnWithoutStopIsOverwrittenByThePreviousProcedure) {
    a.Returns(55);
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(g_journal, (Journal{"A+", "P"}));
}

TEST_F(MSubclass, ResponseTenRunsThePreviousProcedureFirstAndTheClientMayChangeItsResult) {
    a.Returns(55);
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    EXPECT_EQ(Send(kAsked), 55);
    EXPECT_EQ(g_journal, (Journal{"P", "A"}));
    EXPECT_EQ(a.lSawReturn, 700);
}

TEST_F(MSubclass, TheClientAttachedLastRunsFirst) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    HookMessage(c, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(g_journal, (Journal{"C+", "B+", "A+", "P"}));
}

TEST_F(MSubclass, WithTenOfTheFirstClientThePreviousProcedureRunsRightBeforeIt) {
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"B+", "P", "A"}));
}

TEST_F(MSubclass, TheResponsesOfLaterClientsHaveNoEffect) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrAfterPrevious);
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"B+", "A+", "P"}));
}

TEST_F(MSubclass, AStopDoesNotEndTheDelivery) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.bStop = true;
    b.Returns(55);
    EXPECT_EQ(Send(kAsked), 55);
    EXPECT_EQ(g_journal, (Journal{"B+", "A"}));
    EXPECT_FALSE(a.bSawStop);
    EXPECT_EQ(a.lSawReturn, 55);
}

TEST_F(MSubclass, AStopKeepsThePreviousProcedureOutOfResponseTenToo) {
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.bStop = true;
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"B+", "A"}));
}

TEST_F(MSubclass, AnUnknownResponseActsAsNeither) {
    a.Returns(55);
    HookMessage(a, hwnd, kAsked, 11);
    EXPECT_EQ(Send(kAsked), 55);
    EXPECT_EQ(g_journal, Journal{"A+"});
}

TEST_F(MSubclass, OneClientMayHaveSeveralMessagesAndWindows) {
    HWND second = MakeWindow();
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(a, hwnd, kOther, mrAfterPrevious);
    HookMessage(a, second, kAsked, mrBeforePrevious);
    Send(kOther);
    SendMessageW(second, kAsked, 0, 0);
    EXPECT_EQ(g_journal, (Journal{"P", "A", "A+", "P"}));
    EXPECT_EQ(HooksInForce().Pairs(Key()), 2);
    UnhookMessage(a, second, kAsked);
    EXPECT_EQ(ProcedureOf(second), Own());
    EXPECT_EQ(ProcedureOf(hwnd), Shared());
    DestroyWindow(second);
}

TEST_F(MSubclass, UnhookingTheOnlyClientRestoresTheProcedureAndLeavesNoKey) {
    const std::size_t nWindows = HooksInForce().WindowCount();
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(ProcedureOf(hwnd), Shared());
    EXPECT_EQ(HooksInForce().WindowCount(), nWindows + 1);
    UnhookMessage(a, hwnd, kAsked);
    EXPECT_EQ(ProcedureOf(hwnd), Own());
    EXPECT_EQ(HooksInForce().WindowCount(), nWindows);
}

TEST_F(MSubclass, UnhookingOneOfThreeMovesTheLaterOnesDownWithTheirResponses) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrAfterPrevious);
    HookMessage(c, hwnd, kAsked, mrBeforePrevious);
    UnhookMessage(a, hwnd, kAsked);
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"C+", "P", "B"}));
    EXPECT_EQ(HooksInForce().Pairs(Key()), 2);
}

TEST_F(MSubclass, UnhookingWhatIsNotHookedDoesNothing) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    UnhookMessage(b, hwnd, kAsked);
    UnhookMessage(a, hwnd, kOther);
    EXPECT_EQ(HooksInForce().Pairs(Key()), 1);
    EXPECT_EQ(ProcedureOf(hwnd), Shared());
}

TEST_F(MSubclass, UnhookingADeadWindowDoesNothing) {
    HookMessage(a, hwnd, WM_DESTROY, mrBeforePrevious);
    DestroyWindow(hwnd);
    UnhookMessage(a, hwnd, WM_DESTROY);
    EXPECT_EQ(HooksInForce().Pairs(Key()), 1);
}

TEST_F(MSubclass, TheLastUnhookPutsTheProcedureBackEvenOverSomebodyElses) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DefWindowProcW));
    UnhookMessage(a, hwnd, kAsked);
    EXPECT_EQ(ProcedureOf(hwnd), Own());
}

TEST_F(MSubclass, CallPreviousProcReachesThePreviousProcedureOnce) {
    EXPECT_EQ(CallPreviousProc(hwnd, kAsked, 0, 0), 0);
    EXPECT_TRUE(g_journal.empty());
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(CallPreviousProc(hwnd, kAsked, 0, 0), 700);
    EXPECT_EQ(g_journal, Journal{"P"});
}

TEST_F(MSubclass, TheSharedProcedureWithoutAHookAnswersZeroAndCallsNothing) {
    EXPECT_EQ(HookedWindowProc(hwnd, kAsked, 0, 0), 0);
    EXPECT_TRUE(g_journal.empty());
}

TEST_F(MSubclass, EachNestedMessageHasItsOwnStopAndReturn) {
    LRESULT lNested = 0;
    a.during = [&] {
        a.during = nullptr;
        lNested = Send(kAsked);
    };
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(lNested, 700);
    EXPECT_EQ(g_journal, (Journal{"A+", "A+", "P", "P"}));
}

TEST_F(MSubclass, ANestedStopDoesNotReachTheOuterMessage) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    LRESULT lNested = 0;
    a.during = [&] {
        a.during = [] {};
        b.bStop = true;
        b.Returns(55);
        HookMessage(b, hwnd, kAsked, mrBeforePrevious);
        lNested = Send(kAsked);
    };
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(lNested, 55);
    EXPECT_EQ(g_journal, (Journal{"A+", "B+", "A", "P"}));
}

TEST_F(MSubclass, AClientHookedDuringDeliveryWaitsForTheNextMessage) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    a.during = [&] {
        a.during = nullptr;
        HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    };
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"A+", "P"}));
    g_journal.clear();
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"B+", "A+", "P"}));
}

TEST_F(MSubclass, AClientMayUnhookItselfDuringDelivery) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.during = [&] { UnhookMessage(b, hwnd, kAsked); };
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"B+", "A+", "P"}));
}

TEST_F(MSubclass, TheLastClientMayUnhookItselfAndThePreviousProcedureReadAtEntryStillRuns) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    a.during = [&] { UnhookMessage(a, hwnd, kAsked); };
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(g_journal, (Journal{"A+", "P"}));
    EXPECT_EQ(ProcedureOf(hwnd), Own());
}

TEST_F(MSubclass, AClientThatIsUnhookedBeforeItsTurnIsSkipped) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.during = [&] {
        UnhookMessage(a, hwnd, kAsked);
        UnhookMessage(b, hwnd, kAsked);
    };
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(g_journal, (Journal{"B+", "P"}));
}

TEST_F(MSubclass, WhenALowerIndexGoesDuringDeliveryAClientRunsAgain) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.during = [&] { UnhookMessage(a, hwnd, kAsked); };
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"B+", "B+", "P"}));
}

TEST_F(MSubclass, TheLastResponseReadDecidesWhenTheFirstClientHasGone) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrAfterPrevious);
    b.Returns(55);
    b.during = [&] {
        UnhookMessage(a, hwnd, kAsked);
        UnhookMessage(b, hwnd, kAsked);
    };
    EXPECT_EQ(Send(kAsked), 55);
    EXPECT_EQ(g_journal, Journal{"B+"});
}

TEST_F(MSubclass, AClientThatThePreviousProcedureUnhooksStillRuns) {
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    g_duringOwn = [&] { UnhookMessage(a, hwnd, kAsked); };
    Send(kAsked);
    EXPECT_EQ(g_journal, (Journal{"P", "A"}));
}

TEST_F(MSubclass, AWindowThatDiesWithHooksGetsItsProcedureBackAndIsForgotten) {
    const std::size_t nWindows = HooksInForce().WindowCount();
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kOther, mrBeforePrevious);
    LONG_PTR procedureAtTheEnd = 0;
    EXPECT_EQ(SendMessageW(hwnd, WM_DESTROY, 0, 0), 0);
    procedureAtTheEnd = ProcedureOf(hwnd);
    EXPECT_EQ(procedureAtTheEnd, Own());
    EXPECT_EQ(g_journal, Journal{"P destroy"});
    EXPECT_EQ(HooksInForce().WindowCount(), nWindows);
}

TEST_F(MSubclass, AWindowWithAClientOfDestroyKeepsItsOtherHooks) {
    HookMessage(a, hwnd, WM_DESTROY, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    a.during = [&] { UnhookMessage(a, hwnd, WM_DESTROY); };
    DestroyWindow(hwnd);
    EXPECT_EQ(g_journal, (Journal{"A+", "P destroy"}));
    EXPECT_EQ(HooksInForce().Pairs(Key()), 1);
}

TEST_F(MSubclass, AClientMayDestroyTheWindow) {
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.during = [&] { DestroyWindow(hwnd); };
    const std::size_t nWindows = HooksInForce().WindowCount();
    Send(kAsked);
    // A has gone with the window; the previous procedure may be called with a dead handle, which is harmless.
    EXPECT_EQ(g_journal.at(0), "B+");
    EXPECT_EQ(g_journal.at(1), "P destroy");
    EXPECT_EQ(HooksInForce().WindowCount(), nWindows - 1);
}

TEST_F(MSubclass, ReleaseOfAWindowWithoutHooksDoesNothing) {
    SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DefWindowProcW));
    const LONG_PTR before = ProcedureOf(hwnd);
    ReleaseWindowHook(hwnd);
    EXPECT_EQ(ProcedureOf(hwnd), before);
}

TEST_F(MSubclass, TheChangesOfAHookingAreTracedInTheirOrder) {
    std::vector<std::u16string> kinds;
    HooksInForce().SetTrace([&kinds](std::u16string_view s) {
        const std::size_t nFor = s.find(u" for ");
        const bool bOfMessage = s.find(u" Message ") != std::u16string_view::npos;
        kinds.push_back(std::u16string(s.substr(8, nFor - 8)) + (bOfMessage ? u" *" : u"") +
                        std::u16string(s.substr(s.rfind(u' '), 2)));
    });
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    ASSERT_EQ(kinds.size(), 5u);
    EXPECT_EQ(kinds[0], u"message count * 1");
    EXPECT_EQ(kinds[1].substr(0, 15), u"message class *");
    EXPECT_EQ(kinds[2], u"message response * 9");
    EXPECT_EQ(kinds[3].substr(0, 11), u"Window Proc");
    EXPECT_EQ(kinds[4], u"message count 1");
    kinds.clear();
    UnhookMessage(a, hwnd, kAsked);
    EXPECT_EQ(kinds, (std::vector<std::u16string>{u"message class * 0", u"message response * 0", u"message count * 0",
                                                  u"Window Proc 0", u"message count 0"}));
}

int g_nBoxes;
std::wstring g_sBox;
int WINAPI CountBoxes(HWND, LPCWSTR sText, LPCWSTR, UINT) {
    ++g_nBoxes;
    g_sBox = sText;
    return IDOK;
}

TEST_F(MSubclass, AFailureOfAClientIsShownAndTheDeliveryGoesOn) {
    const testing::PatchedImport<decltype(MessageBoxW)> patch("MessageBoxW", CountBoxes);
    g_nBoxes = 0;
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    HookMessage(b, hwnd, kAsked, mrBeforePrevious);
    b.during = [] { throw OwnFailure(u"B", u"Something went wrong"); };
    EXPECT_EQ(Send(kAsked), 700);
    EXPECT_EQ(g_journal, (Journal{"B+", "A+", "P"}));
    EXPECT_EQ(g_nBoxes, 1);
    EXPECT_EQ(g_sBox, L"Something went wrong");
}

} // namespace
} // namespace orvanta
