#include "plumbing/GdiOwner.h"

#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

bool Lives(HGDIOBJ handle) {
    return GetObjectType(handle) != 0;
}

template<typename Owner, typename Handle>
void ExpectReleasedAtTheEnd(Handle handle) {
    ASSERT_TRUE(Lives(handle));
    {
        const Owner owner(handle);
        EXPECT_TRUE(static_cast<bool>(owner));
        EXPECT_EQ(owner.Get(), handle);
    }
    EXPECT_FALSE(Lives(handle));
}

TEST(GdiOwner, EachKindIsDeletedWhenItsOwnerGoes) {
    ExpectReleasedAtTheEnd<OwnedPen>(CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
    ExpectReleasedAtTheEnd<OwnedBrush>(CreateSolidBrush(RGB(1, 2, 3)));
    ExpectReleasedAtTheEnd<OwnedBitmap>(CreateBitmap(2, 2, 1, 32, nullptr));
    ExpectReleasedAtTheEnd<OwnedFont>(CreateFontW(11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
    ExpectReleasedAtTheEnd<OwnedRegion>(CreateRectRgn(0, 0, 3, 3));
    LOGPALETTE palette{0x300, 1, {{1, 2, 3, 0}}};
    ExpectReleasedAtTheEnd<OwnedPalette>(CreatePalette(&palette));
    ExpectReleasedAtTheEnd<OwnedDc>(CreateCompatibleDC(nullptr));
}

TEST(GdiOwner, AnEmptyOwnerIsFalse) {
    const OwnedPen owner;
    EXPECT_FALSE(static_cast<bool>(owner));
    EXPECT_EQ(owner.Get(), nullptr);
}

TEST(GdiOwner, ReleaseGivesTheHandleAway) {
    HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    {
        OwnedBrush owner(brush);
        EXPECT_EQ(owner.Release(), brush);
        EXPECT_FALSE(static_cast<bool>(owner));
    }
    EXPECT_TRUE(Lives(brush));
    DeleteObject(brush);
}

TEST(GdiOwner, ResetDeletesTheOldHandleAndKeepsTheNewOne) {
    HBRUSH first = CreateSolidBrush(RGB(1, 2, 3));
    HBRUSH second = CreateSolidBrush(RGB(4, 5, 6));
    OwnedBrush owner(first);
    owner.Reset(second);
    EXPECT_FALSE(Lives(first));
    EXPECT_TRUE(Lives(second));
    owner.Reset();
    EXPECT_FALSE(Lives(second));
}

TEST(GdiOwner, MovingHandsTheHandleOn) {
    HBRUSH first = CreateSolidBrush(RGB(1, 2, 3));
    HBRUSH second = CreateSolidBrush(RGB(4, 5, 6));
    OwnedBrush from(first);
    OwnedBrush to(second);
    to = std::move(from);
    EXPECT_FALSE(Lives(second));
    EXPECT_EQ(to.Get(), first);
    const OwnedBrush last(std::move(to));
    EXPECT_EQ(last.Get(), first);
    EXPECT_TRUE(Lives(first));
}

TEST(GdiOwner, MovingOntoItselfKeepsTheHandle) {
    HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    OwnedBrush owner(brush);
    OwnedBrush& same = owner;
    owner = std::move(same);
    EXPECT_EQ(owner.Get(), brush);
    EXPECT_TRUE(Lives(brush));
}

int g_nReleased;
HWND g_releasedOf;
decltype(&ReleaseDC) g_releaseDc;
int WINAPI CountReleaseDc(HWND window, HDC dc) {
    ++g_nReleased;
    g_releasedOf = window;
    return g_releaseDc(window, dc);
}

TEST(WindowDc, IsReleasedOnceToItsOwnWindow) {
    const testing::PatchedImport<decltype(ReleaseDC)> patch("ReleaseDC", CountReleaseDc);
    g_releaseDc = patch.Original();
    g_nReleased = 0;
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    {
        const WindowDc dc(window);
        EXPECT_TRUE(static_cast<bool>(dc));
        EXPECT_EQ(WindowFromDC(dc.Get()), window);
    }
    EXPECT_EQ(g_nReleased, 1);
    EXPECT_EQ(g_releasedOf, window);
    DestroyWindow(window);
}

TEST(WindowDc, OfAWindowThatIsGoneIsFalseAndReleasesNothing) {
    const testing::PatchedImport<decltype(ReleaseDC)> patch("ReleaseDC", CountReleaseDc);
    g_releaseDc = patch.Original();
    g_nReleased = 0;
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(window);
    { EXPECT_FALSE(static_cast<bool>(WindowDc(window))); }
    EXPECT_EQ(g_nReleased, 0);
}

TEST(Selection, PutsThePreviousObjectBack) {
    const OwnedDc dc(CreateCompatibleDC(nullptr));
    const HGDIOBJ before = GetCurrentObject(dc.Get(), OBJ_PEN);
    const OwnedPen pen(CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
    {
        const Selection selection(dc.Get(), pen.Get());
        EXPECT_TRUE(static_cast<bool>(selection));
        EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), pen.Get());
    }
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), before);
}

TEST(Selection, NestsInOrder) {
    const OwnedDc dc(CreateCompatibleDC(nullptr));
    const OwnedPen outer(CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
    const OwnedPen inner(CreatePen(PS_SOLID, 2, RGB(1, 2, 3)));
    const Selection first(dc.Get(), outer.Get());
    { const Selection second(dc.Get(), inner.Get()); }
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), outer.Get());
}

TEST(Selection, ThatFailsIsFalseAndLeavesTheDcAlone) {
    const OwnedDc dc(CreateCompatibleDC(nullptr));
    const HGDIOBJ before = GetCurrentObject(dc.Get(), OBJ_PEN);
    {
        const Selection nothing(dc.Get(), nullptr);
        EXPECT_FALSE(static_cast<bool>(nothing));
        const Selection noDc(nullptr, GetStockObject(BLACK_PEN));
        EXPECT_FALSE(static_cast<bool>(noDc));
    }
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), before);
}

} // namespace
} // namespace orvanta
