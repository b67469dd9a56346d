// What HookMessage refuses, and that each refusal leaves everything as it was.
#include "plumbing/MSubclass.h"

#include "base/Failure.h"
#include "tests/plumbing/FailingAllocation.h"
#include "tests/plumbing/HookedWindow.h"
#include "tests/support/PatchedImport.h"

namespace orvanta {
namespace {

using testing::Client;
using testing::kAsked;
using testing::kOther;

class HookFailure : public testing::HookedWindow {
protected:
    void ExpectRefused(ISubclass& client, HWND window, std::int32_t lResponse, std::uint32_t lNumber,
                       std::u16string_view sSource, std::u16string_view sDescription) {
        try {
            HookMessage(client, window, kAsked, lResponse);
            FAIL() << "hooked";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), lNumber);
            EXPECT_EQ(failure.Source(), sSource);
            EXPECT_EQ(failure.Description(), sDescription);
        }
    }
    void ExpectInvalidArgument(ISubclass& client) {
        ExpectRefused(client, hwnd, mrBeforePrevious, 5, u"", u"Invalid procedure call or argument");
    }
    void ExpectUnhooked() {
        EXPECT_EQ(ProcedureOf(hwnd), Own());
        EXPECT_EQ(HooksInForce().Find(Key()), nullptr);
    }
    void ExpectOnlyAHooked() {
        EXPECT_EQ(ProcedureOf(hwnd), Shared());
        EXPECT_EQ(HooksInForce().Previous(Key()), static_cast<HookStore::Address>(Own()));
        EXPECT_EQ(HooksInForce().Pairs(Key()), 1);
        EXPECT_EQ(HooksInForce().ClientCount(Key(), kAsked), 1);
        EXPECT_EQ(HooksInForce().Client(Key(), kAsked, 1),
                  reinterpret_cast<HookStore::Address>(static_cast<ISubclass*>(&a)));
        EXPECT_EQ(HooksInForce().Response(Key(), kAsked, 1), mrAfterPrevious);
        EXPECT_EQ(HooksInForce().Client(Key(), kAsked, 2), 0u);
        EXPECT_EQ(HooksInForce().Response(Key(), kAsked, 2), 0);
    }

    const std::u16string sOurs = u"plumbing_windows_tests.WindowProc";
    Client a{"A"};
    Client b{"B"};
};

TEST_F(HookFailure, AnInvalidHandleIs13083) {
    ExpectRefused(a, nullptr, mrBeforePrevious, 0x8004331B, sOurs, u"Invalid window");
    HWND dead = MakeWindow();
    DestroyWindow(dead);
    ExpectRefused(a, dead, mrBeforePrevious, 0x8004331B, sOurs, u"Invalid window");
}

TEST_F(HookFailure, AWindowOfAnotherProcessIs13084) {
    HWND other = GetDesktopWindow();
    DWORD process = 0;
    GetWindowThreadProcessId(other, &process);
    ASSERT_NE(process, GetCurrentProcessId());
    ExpectRefused(a, other, mrBeforePrevious, 0x8004331C, sOurs, u"Can't modify external window");
    UnhookMessage(a, other, kAsked);
}

TEST_F(HookFailure, TheSameClientTwiceIs13082AndChangesNothing) {
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    ExpectRefused(a, hwnd, mrBeforePrevious, 0x8004331A, sOurs, u"Message already handled by another class");
    ExpectOnlyAHooked();
}

TEST_F(HookFailure, TheSameClientTwiceIsFoundBeforeAResponseOfZero) {
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    ExpectRefused(a, hwnd, 0, 0x8004331A, sOurs, u"Message already handled by another class");
}

TEST_F(HookFailure, AResponseOfZeroIsAnInvalidArgument) {
    ExpectRefused(a, hwnd, 0, 5, u"", u"Invalid procedure call or argument");
    ExpectUnhooked();
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    ExpectRefused(b, hwnd, 0, 5, u"", u"Invalid procedure call or argument");
    ExpectOnlyAHooked();
}

LONG_PTR WINAPI RefuseLong(HWND, int, LONG_PTR) {
    return 0;
}

TEST_F(HookFailure, AProcedureThatCannotBeReplacedIs13081) {
    {
        const testing::PatchedImport<decltype(SetWindowLongPtrW)> patch("SetWindowLongPtrW", RefuseLong);
        ExpectRefused(a, hwnd, mrBeforePrevious, 0x80043319, sOurs, u"Can't subclass window");
    }
    ExpectUnhooked();
}

TEST_F(HookFailure, WhicheverWriteOfAFirstHookFailsTheWindowIsUnhookedAgain) {
    for (int nRefused = 1; nRefused <= 5; ++nRefused) {
        SCOPED_TRACE(nRefused);
        int nWrite = 0;
        HooksInForce().SetPermit([&] { return ++nWrite != nRefused; });
        ExpectInvalidArgument(a);
        HooksInForce().SetPermit(nullptr);
        ExpectUnhooked();
    }
    int nWrite = 0;
    HooksInForce().SetPermit([&] { return ++nWrite != 6; });
    HookMessage(a, hwnd, kAsked, mrBeforePrevious);
    EXPECT_EQ(nWrite, 5);
}

TEST_F(HookFailure, WhicheverWriteOfALaterHookFailsTheEarlierOneStays) {
    HookMessage(a, hwnd, kAsked, mrAfterPrevious);
    for (int nRefused = 1; nRefused <= 4; ++nRefused) {
        SCOPED_TRACE(nRefused);
        int nWrite = 0;
        HooksInForce().SetPermit([&] { return ++nWrite != nRefused; });
        ExpectInvalidArgument(b);
        HooksInForce().SetPermit(nullptr);
        ExpectOnlyAHooked();
    }
}

TEST_F(HookFailure, WhenTheLastWriteFailsTheClientIsTakenBackBeforeTheProcedure) {
    std::vector<std::u16string> lines;
    HooksInForce().SetTrace([&lines](std::u16string_view s) { lines.emplace_back(s); });
    int nWrite = 0;
    HooksInForce().SetPermit([&] { return ++nWrite != 5; });
    ExpectInvalidArgument(a);
    const auto line = [&lines](std::size_t n, std::u16string_view sStart, std::u16string_view sEnd) {
        return n < lines.size() && lines[n].starts_with(sStart) && lines[n].ends_with(sEnd);
    };
    ASSERT_EQ(lines.size(), 8u);
    EXPECT_TRUE(line(3, u"Changed Window Proc for ", u""));
    EXPECT_TRUE(line(4, u"Changed message class for ", u" Index 1 to 0"));
    EXPECT_TRUE(line(5, u"Changed message response for ", u" Index 1 to 0"));
    EXPECT_TRUE(line(6, u"Changed message count for ", u" Message 1025 to 0"));
    EXPECT_TRUE(line(7, u"Changed Window Proc for ", u" to 0"));
}

TEST_F(HookFailure, MemoryThatRunsOutAtAnyPointLeavesNoHook) {
    int nFailures = 0;
    for (int n = 1;; ++n) {
        SCOPED_TRACE(n);
        ASSERT_LT(n, 50);
        const testing::FailingAllocation failing(n);
        try {
            HookMessage(a, hwnd, kAsked, mrBeforePrevious);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 5u);
        }
        if (!testing::FailingAllocation::Happened()) break;
        ++nFailures;
        ExpectUnhooked();
    }
    EXPECT_GE(nFailures, 2);
    EXPECT_EQ(ProcedureOf(hwnd), Shared());
}

TEST_F(HookFailure, OfAMessageLeavesTheOtherMessagesHooked) {
    HookMessage(a, hwnd, kOther, mrBeforePrevious);
    ExpectRefused(a, hwnd, 0, 5, u"", u"Invalid procedure call or argument");
    EXPECT_EQ(HooksInForce().ClientCount(Key(), kAsked), 0);
    EXPECT_EQ(HooksInForce().ClientCount(Key(), kOther), 1);
    EXPECT_EQ(ProcedureOf(hwnd), Shared());
}

} // namespace
} // namespace orvanta
