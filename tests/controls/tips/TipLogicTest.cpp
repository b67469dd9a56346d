#include "controls/tips/TipLogic.h"

#include "tests/controls/tips/FakeTipWindow.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

class TipLogicTest : public ::testing::Test {
protected:
    void SetTip(std::u16string_view sTip) { logic.SetTip(sTip, 300, std::nullopt, 0, 0); }
    void UpdateTip(std::u16string_view sTip) { logic.UpdateTip(sTip, 300, std::nullopt, 0, 0); }
    // Asks for a tip and waits until it shows.
    void ShowTip(std::u16string_view sTip) {
        SetTip(sTip);
        window.Pass(logic, 400);
    }

    testing::FakeTipWindow window;
    TipLogic logic{window, window};
};

TEST_F(TipLogicTest, NothingIsStoredOrRunningAtFirst) {
    EXPECT_EQ(logic.GetTip(), u"");
    EXPECT_EQ(logic.Tag(), u"");
    EXPECT_EQ(logic.GetXMax(), -1);
    EXPECT_EQ(logic.GetYMax(), -1);
    EXPECT_FALSE(window.wake);
}

TEST_F(TipLogicTest, TipShowsWhenTheCursorRested) {
    SetTip(u"text");
    window.Pass(logic, 399);
    EXPECT_FALSE(window.bVisible);
    window.Pass(logic, 1);
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, TipDoesNotShowWhenTheCursorIsElsewhereAtTheTick) {
    SetTip(u"text");
    window.cursor = {101, 200};
    window.Pass(logic, 5000);
    EXPECT_FALSE(window.bVisible);
    EXPECT_TRUE(window.placed.empty());
}

TEST_F(TipLogicTest, CursorThatMovedAndCameBackCountsAsResting) {
    SetTip(u"text");
    window.Pass(logic, 200);
    window.cursor = {500, 500};
    window.Pass(logic, 100);
    window.cursor = {100, 200};
    window.Pass(logic, 100);
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, TipShowsOnceUntilTheMouseMoves) {
    ShowTip(u"text");
    EXPECT_EQ(window.placed.size(), 1u);
    window.Pass(logic, 2000);
    EXPECT_EQ(window.placed.size(), 1u);
}

TEST_F(TipLogicTest, TipIsPlacedForWhatItWasAskedWith) {
    logic.SetTip(u"text", 77, std::nullopt, 640, 480);
    window.Pass(logic, 400);
    ASSERT_EQ(window.placed.size(), 1u);
    EXPECT_EQ(window.placed[0].cursor, (TipPoint{100, 200}));
    EXPECT_EQ(window.placed[0].lMaxWidth, 77);
    EXPECT_EQ(window.placed[0].XMax, 640);
    EXPECT_EQ(window.placed[0].YMax, 480);
    EXPECT_EQ(logic.GetXMax(), 640);
    EXPECT_EQ(logic.GetYMax(), 480);
}

TEST_F(TipLogicTest, CaptionIsTheTrimmedTextWithOneBlankAndTheStoredTextIsUntrimmed) {
    SetTip(u"  text  ");
    EXPECT_EQ(window.sCaption, u"text ");
    EXPECT_EQ(logic.GetTip(), u"  text  ");
}

TEST_F(TipLogicTest, StreamOfMovesAtOnePlaceDoesNotRestartTheWait) {
    SetTip(u"text");
    for (int n = 0; n < 8; ++n) {
        window.Pass(logic, 50);
        SetTip(u"text");
    }
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, TextThatDiffersInBlanksIsAnother) {
    SetTip(u"text");
    window.Pass(logic, 300);
    SetTip(u"text ");
    window.Pass(logic, 399);
    EXPECT_FALSE(window.bVisible);
    window.Pass(logic, 1);
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, MovingRestartsTheWait) {
    SetTip(u"text");
    window.Pass(logic, 300);
    window.cursor = {110, 200};
    SetTip(u"text");
    window.Pass(logic, 399);
    EXPECT_FALSE(window.bVisible);
    window.Pass(logic, 1);
    EXPECT_TRUE(window.bVisible);
    EXPECT_EQ(window.placed.back().cursor, (TipPoint{110, 200}));
}

TEST_F(TipLogicTest, EmptyTextHidesTheTipAndIsStored) {
    ShowTip(u"text");
    SetTip(u"");
    EXPECT_FALSE(window.bVisible);
    EXPECT_EQ(logic.GetTip(), u"");
}

TEST_F(TipLogicTest, BlanksActLikeAnEmptyTextAndAreStored) {
    ShowTip(u"text");
    SetTip(u"   ");
    EXPECT_FALSE(window.bVisible);
    EXPECT_EQ(logic.GetTip(), u"   ");
}

TEST_F(TipLogicTest, EmptyTextEndsTheWait) {
    SetTip(u"text");
    window.Pass(logic, 200);
    SetTip(u"");
    window.Pass(logic, 5000);
    EXPECT_TRUE(window.placed.empty());
}

TEST_F(TipLogicTest, TipGoesAfterThreeSeconds) {
    ShowTip(u"text");
    window.Pass(logic, 2999);
    EXPECT_TRUE(window.bVisible);
    window.Pass(logic, 1);
    EXPECT_FALSE(window.bVisible);
    EXPECT_EQ(logic.GetTip(), u"text");
}

TEST_F(TipLogicTest, TipThatWentDoesNotComeBackAtTheSamePlace) {
    ShowTip(u"text");
    window.Pass(logic, 3000);
    SetTip(u"text");
    window.Pass(logic, 5000);
    EXPECT_FALSE(window.bVisible);
    window.cursor = {100, 201};
    ShowTip(u"text");
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, ShownTipGoesWithinATenthOfASecondWhenTheCursorMoves) {
    ShowTip(u"text");
    window.Pass(logic, 250);
    window.cursor = {100, 201};
    window.Pass(logic, 50);
    EXPECT_FALSE(window.bVisible);
}

TEST_F(TipLogicTest, OtherTextHidesTheShownTipAndWaitsAnew) {
    ShowTip(u"one");
    SetTip(u"two");
    EXPECT_FALSE(window.bVisible);
    EXPECT_EQ(window.sCaption, u"two ");
    window.Pass(logic, 400);
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, OtherPositionHidesTheShownTipAndWaitsAnew) {
    ShowTip(u"one");
    window.cursor = {300, 200};
    SetTip(u"one");
    EXPECT_FALSE(window.bVisible);
    window.Pass(logic, 400);
    EXPECT_TRUE(window.bVisible);
}

TEST_F(TipLogicTest, WatchStopsWhenTheWindowIsNoLongerVisible) {
    ShowTip(u"text");
    window.bVisible = false; // by somebody else
    window.Pass(logic, 100);
    window.cursor = {1, 1};
    const int nHides = window.nHides;
    window.Pass(logic, 1000);
    EXPECT_EQ(window.nHides, nHides);
}

TEST_F(TipLogicTest, PersistentTipStaysAsLongAsTheCursorRests) {
    PersistentTip(true);
    ShowTip(u"text");
    window.Pass(logic, 60000);
    EXPECT_TRUE(window.bVisible);
    window.cursor = {101, 201};
    window.Pass(logic, 100);
    EXPECT_FALSE(window.bVisible);
}

// The watch, which ticks first, must not be there to see it: it stops when it finds the window hidden.
TEST_F(TipLogicTest, PersistentTipAsksForOneOfTheTwoCoordinatesOnlyWhenItsTimeIsOver) {
    PersistentTip(true);
    const auto staysAt = [this](TipPoint cursor) {
        window.cursor = {100, 200};
        SetTip(u"");
        ShowTip(u"text");
        window.bVisible = false;
        window.Pass(logic, 100);
        window.bVisible = true;
        window.cursor = cursor;
        window.Pass(logic, 3000);
        return window.bVisible;
    };
    EXPECT_TRUE(staysAt({100, 999}));
    EXPECT_TRUE(staysAt({999, 200}));
    EXPECT_FALSE(staysAt({999, 999}));
}

TEST_F(TipLogicTest, PersistentTipAskedForAgainAtTheSamePlaceStaysVisibleAndWaitsAnew) {
    PersistentTip(true);
    ShowTip(u"text");
    window.Pass(logic, 1000);
    SetTip(u"text");
    EXPECT_TRUE(window.bVisible);
    EXPECT_EQ(window.placed.size(), 2u); // placed again at once
    window.Pass(logic, 400);
    EXPECT_EQ(window.placed.size(), 3u); // and at the end of the wait
    EXPECT_TRUE(window.bVisible);
    EXPECT_EQ(window.nHides, 0);
}

TEST_F(TipLogicTest, PersistenceSwitchedOffLetsTheTipGoAtTheNextTick) {
    PersistentTip(true);
    ShowTip(u"text");
    window.Pass(logic, 10000);
    PersistentTip(false);
    window.Pass(logic, 3000);
    EXPECT_FALSE(window.bVisible);
}

TEST_F(TipLogicTest, TicksThatAreDueAtOnceAfterABusyTime) {
    SetTip(u"text");
    window.PassBusy(logic, 10000);
    EXPECT_TRUE(window.bVisible);
    window.PassBusy(logic, 10000); // watch first, then hide
    EXPECT_FALSE(window.bVisible);
    EXPECT_EQ(window.nHides, 1);
}

TEST_F(TipLogicTest, TagIsKeptUntilAnotherIsGiven) {
    logic.SetTip(u"text", 300, u"one", 0, 0);
    EXPECT_EQ(logic.Tag(), u"one");
    logic.SetTip(u"other", 300, std::nullopt, 0, 0);
    EXPECT_EQ(logic.Tag(), u"one");
    logic.SetTip(u"", 300, u"", 0, 0);
    EXPECT_EQ(logic.Tag(), u"");
}

TEST_F(TipLogicTest, TagIsStoredEvenWhenNothingElseChanges) {
    SetTip(u"text");
    logic.SetTip(u"text", 300, u"new", 0, 0);
    EXPECT_EQ(logic.Tag(), u"new");
}

TEST_F(TipLogicTest, UpdateChangesAShownTipInPlaceWithoutTheWait) {
    ShowTip(u"one");
    logic.UpdateTip(u" two ", 50, u"tag", 7, 8);
    EXPECT_TRUE(window.bVisible);
    EXPECT_EQ(window.sCaption, u"two ");
    EXPECT_EQ(logic.GetTip(), u" two ");
    EXPECT_EQ(logic.Tag(), u"tag");
    ASSERT_EQ(window.placed.size(), 2u);
    EXPECT_EQ(window.placed[1].lMaxWidth, 50);
    EXPECT_EQ(window.placed[1].XMax, 7);
    EXPECT_EQ(window.placed[1].YMax, 8);
}

TEST_F(TipLogicTest, UpdateTouchesNoTimer) {
    ShowTip(u"one");
    window.Pass(logic, 2000);
    UpdateTip(u"two");
    window.Pass(logic, 999);
    EXPECT_TRUE(window.bVisible);
    window.Pass(logic, 1);
    EXPECT_FALSE(window.bVisible);
}

TEST_F(TipLogicTest, UpdateKeepsTheSavedCursorPosition) {
    ShowTip(u"one");
    window.cursor = {700, 700};
    UpdateTip(u"two");
    EXPECT_EQ(window.placed.back().cursor, (TipPoint{100, 200}));
}

TEST_F(TipLogicTest, UpdateOfAHiddenTipShowsNothing) {
    UpdateTip(u"one");
    window.Pass(logic, 5000);
    EXPECT_TRUE(window.placed.empty());
    EXPECT_EQ(logic.GetTip(), u"one");
    EXPECT_EQ(window.sCaption, u"one ");
}

TEST_F(TipLogicTest, UpdateWithAnEmptyTextHidesTheTip) {
    ShowTip(u"one");
    UpdateTip(u"  ");
    EXPECT_FALSE(window.bVisible);
    EXPECT_EQ(logic.GetTip(), u"  ");
    window.Pass(logic, 5000);
    EXPECT_EQ(window.placed.size(), 1u);
}

TEST_F(TipLogicTest, HideStopsTheWaitAndKeepsTheText) {
    SetTip(u"text");
    logic.HideTip();
    window.Pass(logic, 5000);
    EXPECT_TRUE(window.placed.empty());
    EXPECT_EQ(logic.GetTip(), u"text");
}

TEST_F(TipLogicTest, UnloadingTakesNoTipAndTicksNoMore) {
    SetTip(u"text");
    logic.Unload();
    EXPECT_TRUE(logic.IsUnloading());
    window.Pass(logic, 5000);
    logic.SetTip(u"other", 300, u"tag", 0, 0);
    logic.UpdateTip(u"another", 300, u"tag", 0, 0);
    window.Pass(logic, 5000);
    EXPECT_TRUE(window.placed.empty());
    EXPECT_EQ(logic.GetTip(), u"text");
    EXPECT_EQ(logic.Tag(), u"");
    EXPECT_EQ(window.sCaption, u"text ");
}

TEST_F(TipLogicTest, MouseThatMovesOnAsksTheClockRarely) {
    for (int n = 0; n < 390; ++n) {
        window.cursor = {n, 0};
        SetTip(u"text");
        window.Pass(logic, 1);
    }
    EXPECT_EQ(window.nWakes, 1);
}

} // namespace
} // namespace orvanta
