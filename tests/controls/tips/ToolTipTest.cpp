#include "controls/tips/ctlUniToolTip.h"

#include "controls/basic/ctlUniLabel.h"
#include "plumbing/SharedText.h"
#include "tests/controls/support/FormFixture.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/WindowCensus.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <optional>

namespace orvanta {
namespace {

class ToolTipTest : public testing::FormFixture {
protected:
    ToolTipTest() {
        PersistentTip(false);
        TipTransparency(0);
        tip.emplace();
    }

    // Delivers messages until something has happened, for three times as long as a tip may take.
    static bool PumpUntil(const std::function<bool()>& happened, DWORD lMilliseconds = 1200) {
        const ULONGLONG lEnd = GetTickCount64() + lMilliseconds;
        while (!happened()) {
            if (GetTickCount64() > lEnd) return false;
            Pump();
            Sleep(1);
        }
        return true;
    }

    // Puts the cursor there, asks for the tip and waits until it shows.
    bool ShowAt(POINT cursor, std::u16string_view sTip, std::int32_t lMaxWidth = 300, std::int32_t XMax = 0,
                std::int32_t YMax = 0) {
        SetCursorPos(cursor.x, cursor.y);
        tip->SetTip(sTip, lMaxWidth, std::nullopt, XMax, YMax);
        return PumpUntil([&] { return tip->IsVisible(); });
    }
    bool ShowText(std::u16string_view sTip, std::int32_t lMaxWidth = 300) {
        return ShowAt({400, 300}, sTip, lMaxWidth);
    }

    RECT TipRect() const {
        Pump();
        RECT rect{};
        GetWindowRect(tip->hWnd(), &rect);
        return rect;
    }
    PixelSize TipPixels() const {
        const RECT rect = TipRect();
        return {rect.right - rect.left, rect.bottom - rect.top};
    }
    // The size of a text in the tip's font, broken at that width; 0 for none.
    PixelSize TextPixels(const std::u16string& s, std::int32_t lWidth) const {
        RECT rect{0, 0, lWidth, 0};
        DrawTextOn(tip->lblTip().Hdc(), s, rect, DT_CALCRECT | DT_EXPANDTABS | (lWidth > 0 ? DT_WORDBREAK : 0u));
        return {rect.right, rect.bottom};
    }

    std::optional<ctlUniToolTip> tip;
};

constexpr std::u16string_view kLongText =
    u"A text that is certainly much wider than the width at which it is to be broken into lines";

TEST_F(ToolTipTest, StandsHiddenWithTheSystemsTipColorsAtFirst) {
    EXPECT_FALSE(tip->IsVisible());
    EXPECT_EQ(tip->lblTip().BackColor(), static_cast<OleColor>(0x80000018u));
    EXPECT_EQ(tip->lblTip().ForeColor(), static_cast<OleColor>(0x80000017u));
    EXPECT_EQ(tip->GetTip(), u"");
    EXPECT_EQ(tip->Tag(), u"");
    EXPECT_EQ(tip->GetXMax(), -1);
    EXPECT_EQ(tip->GetYMax(), -1);
}

TEST_F(ToolTipTest, ShowsNearTheRestingCursorAboveAllWindows) {
    ASSERT_TRUE(ShowText(u"text"));
    const RECT rect = TipRect();
    EXPECT_EQ(rect.left, 401);
    EXPECT_EQ(rect.top, 315);
    EXPECT_TRUE(GetWindowLongPtrW(tip->hWnd(), GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_EQ(GetWindow(tip->hWnd(), GW_OWNER), nullptr);
}

TEST_F(ToolTipTest, DoesNotShowBeforeFourTenthsOfASecond) {
    SetCursorPos(400, 300);
    const ULONGLONG lStart = GetTickCount64();
    tip->SetTip(u"text", 300, std::nullopt, 0, 0);
    ASSERT_TRUE(PumpUntil([&] { return tip->IsVisible(); }));
    EXPECT_GE(GetTickCount64() - lStart, 400u - 16u); // the tick counter's own step
}

TEST_F(ToolTipTest, DoesNotShowWhenTheCursorWentElsewhere) {
    SetCursorPos(400, 300);
    tip->SetTip(u"text", 300, std::nullopt, 0, 0);
    SetCursorPos(410, 300);
    EXPECT_FALSE(PumpUntil([&] { return tip->IsVisible(); }, 700));
}

TEST_F(ToolTipTest, GoesWhenTheCursorMoves) {
    ASSERT_TRUE(ShowText(u"text"));
    SetCursorPos(410, 300);
    EXPECT_TRUE(PumpUntil([&] { return !tip->IsVisible(); }, 500));
}

TEST_F(ToolTipTest, GoesAfterThreeSeconds) {
    ASSERT_TRUE(ShowText(u"text"));
    const ULONGLONG lStart = GetTickCount64();
    ASSERT_TRUE(PumpUntil([&] { return !tip->IsVisible(); }, 6000));
    EXPECT_GE(GetTickCount64() - lStart, 2900u);
}

TEST_F(ToolTipTest, TakesNeitherFocusNorActivation) {
    Show();
    HWND focus = GetFocus();
    HWND active = GetActiveWindow();
    HWND foreground = GetForegroundWindow();
    ASSERT_EQ(active, form.hWnd());
    ASSERT_TRUE(ShowText(u"text"));
    EXPECT_EQ(GetFocus(), focus);
    EXPECT_EQ(GetActiveWindow(), active);
    EXPECT_EQ(GetForegroundWindow(), foreground);
    tip->UpdateTip(u"other text", 300, std::nullopt, 0, 0);
    tip->HideTip();
    EXPECT_EQ(GetActiveWindow(), active);
    EXPECT_EQ(GetFocus(), focus);
    EXPECT_TRUE(GetWindowLongPtrW(tip->hWnd(), GWL_EXSTYLE) & WS_EX_NOACTIVATE);
}

TEST_F(ToolTipTest, NarrowTextGivesAWindowAsWideAsTheText) {
    ASSERT_TRUE(ShowText(u"text"));
    const PixelSize text = TextPixels(u"text ", 0);
    // A border of 2 and a margin of 2 on each side.
    EXPECT_EQ(TipPixels(), (PixelSize{text.width + 8, text.height + 8}));
}

TEST_F(ToolTipTest, TextWiderThanTheMaximumWraps) {
    ASSERT_TRUE(ShowText(kLongText, 120));
    const PixelSize text = TextPixels(std::u16string(kLongText) + u" ", 120);
    const PixelSize line = TextPixels(u"X", 0);
    EXPECT_LE(text.width, 120);
    EXPECT_GT(text.height, 2 * line.height);
    EXPECT_EQ(TipPixels(), (PixelSize{text.width + 4, text.height + 4}));
}

TEST_F(ToolTipTest, MaximumBelowOneNeverWraps) {
    for (const std::int32_t lMaxWidth : {0, -1}) {
        ASSERT_TRUE(ShowText(kLongText, lMaxWidth));
        const PixelSize text = TextPixels(std::u16string(kLongText) + u" ", 0);
        EXPECT_EQ(TipPixels(), (PixelSize{text.width + 8, text.height + 8}));
        tip->SetTip(u"", 300, std::nullopt, 0, 0);
    }
}

TEST_F(ToolTipTest, WindowFollowsATextThatWrapsNoMore) {
    ASSERT_TRUE(ShowText(kLongText, 120));
    tip->UpdateTip(u"text", 300, std::nullopt, 0, 0);
    const PixelSize text = TextPixels(u"text ", 0);
    EXPECT_EQ(TipPixels(), (PixelSize{text.width + 8, text.height + 8}));
    tip->UpdateTip(kLongText, 120, std::nullopt, 0, 0);
    EXPECT_GT(TipPixels().height, 2 * text.height);
}

TEST_F(ToolTipTest, LinesOfTheTextCount) {
    ASSERT_TRUE(ShowText(u"one\r\ntwo"));
    EXPECT_GE(TipPixels().height, 2 * TextPixels(u"X", 0).height + 4);
}

TEST_F(ToolTipTest, NearTheBottomItOpensAboveTheCursor) {
    const int lBottom = GetSystemMetrics(SM_CYVIRTUALSCREEN);
    ASSERT_TRUE(ShowAt({400, lBottom - 10}, u"text"));
    EXPECT_EQ(TipRect().bottom, lBottom - 10 - 5);
}

TEST_F(ToolTipTest, NearTheRightItEndsAtTheEdge) {
    const int lRight = GetSystemMetrics(SM_CXVIRTUALSCREEN);
    ASSERT_TRUE(ShowAt({lRight - 5, 300}, u"text"));
    EXPECT_EQ(TipRect().right, lRight);
}

TEST_F(ToolTipTest, AtTheTopAndLeftItOpensAsAnywhere) {
    ASSERT_TRUE(ShowAt({0, 0}, u"text"));
    EXPECT_EQ(TipRect().left, 1);
    EXPECT_EQ(TipRect().top, 15);
}

TEST_F(ToolTipTest, LimitsKeepItLeftAndAbove) {
    ASSERT_TRUE(ShowAt({500, 300}, u"text", 300, 100, 200));
    EXPECT_EQ(TipRect().right, 100);
    EXPECT_EQ(TipRect().bottom, 200 - 5);
}

TEST_F(ToolTipTest, UpdateMovesTheShownWindowWithoutHidingIt) {
    ASSERT_TRUE(ShowAt({500, 300}, u"text"));
    tip->UpdateTip(u"text", 300, u"tag", 100, 0);
    EXPECT_EQ(TipRect().right, 100);
    EXPECT_TRUE(tip->IsVisible());
    EXPECT_EQ(tip->Tag(), u"tag");
}

TEST_F(ToolTipTest, TransparencyIsTakenUpAtTheNextPlacement) {
    ASSERT_TRUE(ShowText(u"text"));
    EXPECT_FALSE(GetWindowLongPtrW(tip->hWnd(), GWL_EXSTYLE) & WS_EX_LAYERED);
    TipTransparency(50);
    EXPECT_FALSE(GetWindowLongPtrW(tip->hWnd(), GWL_EXSTYLE) & WS_EX_LAYERED);
    tip->UpdateTip(u"other", 300, std::nullopt, 0, 0);
    BYTE bAlpha = 0;
    DWORD lFlags = 0;
    COLORREF key = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(tip->hWnd(), &key, &bAlpha, &lFlags));
    EXPECT_EQ(bAlpha, 128);
    EXPECT_EQ(lFlags, static_cast<DWORD>(LWA_ALPHA));
    EXPECT_TRUE(IsWindowUnicode(tip->hWnd()));
    TipTransparency(0);
    tip->UpdateTip(u"third", 300, std::nullopt, 0, 0);
    ASSERT_TRUE(GetLayeredWindowAttributes(tip->hWnd(), &key, &bAlpha, &lFlags));
    EXPECT_EQ(bAlpha, 255);
    TipTransparency(0);
}

TEST_F(ToolTipTest, LooksAsItWasTold) {
    tip->BackColor(0x00FFFF);
    tip->ForeColor(0x0000FF);
    tip->Style(7);
    OleFont font = OleFont::Create(u"Tahoma", 12);
    tip->SetFont(font.Object());
    EXPECT_EQ(tip->lblTip().BackColor(), 0x00FFFF);
    EXPECT_EQ(tip->lblTip().ForeColor(), 0x0000FF);
    EXPECT_EQ(tip->lblTip().Style(), 7);
    EXPECT_EQ(tip->GetFont().Object(), font.Object());
    EXPECT_EQ(tip->lblTip().Font().Name(), u"Tahoma");
}

TEST_F(ToolTipTest, BackgroundIsSeenInTheWindow) {
    tip->BackColor(0xC0FFFF);
    tip->Style(0);
    ASSERT_TRUE(ShowText(u"text"));
    const testing::WindowPixels pixels = Grab(tip->hWnd());
    EXPECT_EQ(pixels.At(2, 2), 0xC0FFFF);
}

TEST_F(ToolTipTest, CannotBeClosed) {
    SendMessageW(tip->hWnd(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindow(tip->hWnd()));
    EXPECT_TRUE(ShowText(u"text"));
}

TEST_F(ToolTipTest, EndTurnsTipsOffForTheProcessAndTicksNoMore) {
    TipsOn(true);
    SetCursorPos(400, 300);
    tip->SetTip(u"text", 300, std::nullopt, 0, 0);
    tip.reset();
    EXPECT_FALSE(TipsOn());
    PumpUntil([] { return false; }, 500);
}

TEST_F(ToolTipTest, IsThePopupThatControlsReachByTheirTips) {
    tip.reset();
    SetTipPopupMaker(MakeToolTip);
    TipsOn(true);
    auto& label = form.Add<ctlUniLabel>(u"Label1", {100, 100, 100, 40});
    auto& plain = form.Add<ctlUniLabel>(u"Label2", {300, 100, 100, 40});
    label.Tip(u"tip of the label");
    Show();
    MoveTo(label, 20, 20);
    EXPECT_TRUE(PumpUntil([] { return ControlTipIsVisible(); }));
    EXPECT_EQ(ControlTip(), u"tip of the label");
    MoveTo(plain, 20, 20);
    EXPECT_FALSE(ControlTipIsVisible());
    EXPECT_EQ(ControlTip(), u"");
    SetTipPopupMaker({});
}

TEST_F(ToolTipTest, ThousandTipsLeaveNothingBehind) {
    const auto round = [this](int n) { tip->SetTip(n % 2 ? kLongText : u"short", 120, std::nullopt, 0, 0); };
    for (int n = 0; n < 10; ++n)
        round(n);
    const auto before = testing::GdiCensus::Take();
    const int nWindows = testing::CountOwnWindows();
    for (int n = 0; n < 1000; ++n)
        round(n);
    EXPECT_EQ(testing::GdiCensus::Take().count, before.count);
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
}

TEST_F(ToolTipTest, PlacingLeavesNothingBehind) {
    ASSERT_TRUE(ShowText(u"text"));
    const auto round = [this](int n) {
        TipTransparency(static_cast<std::int16_t>(n % 5));
        tip->UpdateTip(n % 2 ? kLongText : u"short", n % 3 ? 120 : 0, std::nullopt, 0, 0);
    };
    for (int n = 0; n < 10; ++n)
        round(n);
    const auto before = testing::GdiCensus::Take();
    const int nWindows = testing::CountOwnWindows();
    for (int n = 0; n < 50; ++n)
        round(n);
    EXPECT_EQ(testing::GdiCensus::Take().count, before.count);
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
    TipTransparency(0);
}

TEST_F(ToolTipTest, MakingAndEndingLeavesNothingBehind) {
    tip.reset();
    const auto round = [this] {
        tip.emplace();
        tip->SetTip(kLongText, 120, std::nullopt, 0, 0);
        tip.reset();
        Pump();
    };
    for (int n = 0; n < 5; ++n)
        round();
    const auto before = testing::GdiCensus::Take();
    const int nWindows = testing::CountOwnWindows();
    for (int n = 0; n < 20; ++n)
        round();
    EXPECT_EQ(testing::GdiCensus::Take().count, before.count);
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
}

} // namespace
} // namespace orvanta
