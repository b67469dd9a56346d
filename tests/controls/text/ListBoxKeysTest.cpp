// Keys, typing and input methods on the list boxes, by real input.
#include "tests/controls/text/ListInputFixture.h"
#include "tests/support/PatchedImport.h"

#include <gmock/gmock.h>
#include <imm.h>

#include <cstring>

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListBoxKeys : public ListInputFixture {};

TEST_F(ListBoxKeys, KeysAreToldAndMoveInTheList) {
    auto& list = Load();
    Fill(list, {u"a", u"b", u"c"});
    list.ListIndex(0);
    FocusOn(list);
    Watch(list);
    SendMessageW(list.hwnd(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(list.ListIndex(), 1);
    SendMessageW(list.hwnd(), WM_KEYUP, VK_DOWN, 0);
    EXPECT_THAT(Taken(), ElementsAre("KeyDown 40 0", "Click", "KeyUp 40 0"));
}

TEST_F(ListBoxKeys, AKeyThatAHandlerTakesAwayDoesNothing) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    list.ListIndex(0);
    list.KeyDown.Add([](std::int16_t& KeyCode, std::int16_t&) { KeyCode = 0; });
    SendMessageW(list.hwnd(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ListBoxKeys, TypingAheadGoesToTheNextItemWithThatStart) {
    auto& list = Load();
    Fill(list, {u"alpha", u"beta", u"bbq", u"Bravo", u"charlie"});
    FocusOn(list);
    Type(u"b");
    EXPECT_EQ(list.ListIndex(), 1);
    Type(u"b");
    EXPECT_EQ(list.ListIndex(), 2);
    Type(u"b");
    EXPECT_EQ(list.ListIndex(), 3);
    Type(u"b");
    EXPECT_EQ(list.ListIndex(), 1);
    Type(u"z");
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ListBoxKeys, TypingTwiceIsNotASearchForBothCharacters) {
    auto& list = Load();
    Fill(list, {u"bb", u"apple", u"ba"});
    list.ListIndex(0);
    FocusOn(list);
    Type(u"bb");
    EXPECT_EQ(list.ListIndex(), 0);
    Type(u"a");
    EXPECT_EQ(list.ListIndex(), 1);
    Type(u"p");
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ListBoxKeys, TypingAheadKnowsEveryScript) {
    auto& list = Load();
    Fill(list, {u"Ωmega", u"Жук", u"שלום", u"中文", u"\U0001F600"});
    FocusOn(list);
    const std::u16string s = u"中Жωש";
    const int expected[] = {3, 1, 0, 2};
    for (std::size_t n = 0; n < s.size(); ++n) {
        Type(s.substr(n, 1));
        EXPECT_EQ(list.ListIndex(), expected[n]);
    }
}

TEST_F(ListBoxKeys, TypingIsToldAndCountsAsAClickWhenItFinds) {
    auto& list = Load();
    Fill(list, {u"alpha"});
    Watch(list);
    SendMessageW(list.hwnd(), WM_CHAR, u'a', 0);
    SendMessageW(list.hwnd(), WM_CHAR, u'x', 0);
    EXPECT_THAT(Taken(), ElementsAre("KeyPress 97 0", "Click", "KeyPress 120 0"));
}

TEST_F(ListBoxKeys, KeyPressMayChangeOrDropTheCharacter) {
    auto& list = Load();
    Fill(list, {u"alpha", u"beta"});
    list.KeyPress.Add([](std::int16_t& KeyAscii, std::int16_t&) { KeyAscii = KeyAscii == u'a' ? u'b' : 0; });
    SendMessageW(list.hwnd(), WM_CHAR, u'a', 0);
    EXPECT_EQ(list.ListIndex(), 1);
    list.ListIndex(-1);
    SendMessageW(list.hwnd(), WM_CHAR, u'b', 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxKeys, ATabCharacterIsSwallowedUntold) {
    auto& list = Load();
    Fill(list, {u"\tx"});
    Watch(list);
    SendMessageW(list.hwnd(), WM_CHAR, VK_TAB, 0);
    EXPECT_THAT(Taken(), IsEmpty());
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxKeys, ASpaceTurnsTheCheckOfTheCurrentItem) {
    auto& list = Load({{u"Style", 1}});
    Fill(list, {u"a", u"b"});
    FocusOn(list);
    Type(u" ");
    EXPECT_EQ(list.SelCount(), 0);
    list.ListIndex(1);
    Type(u" ");
    EXPECT_TRUE(list.Selected(1));
    Type(u" ");
    EXPECT_FALSE(list.Selected(1));
}

TEST_F(ListBoxKeys, WhileAnInputMethodComposesKeysAreNotTold) {
    auto& list = Load();
    Fill(list, {u"alpha", u"beta"});
    Watch(list);
    SendMessageW(list.hwnd(), WM_IME_STARTCOMPOSITION, 0, 0);
    EXPECT_TRUE(list.IsInIME());
    SendMessageW(list.hwnd(), WM_KEYDOWN, VK_F5, 0);
    SendMessageW(list.hwnd(), WM_KEYUP, VK_F5, 0);
    SendMessageW(list.hwnd(), WM_CHAR, u'b', 0);
    EXPECT_THAT(Taken(), ElementsAre("Click"));
    EXPECT_EQ(list.ListIndex(), 1);
    SendMessageW(list.hwnd(), WM_IME_ENDCOMPOSITION, 0, 0);
    EXPECT_FALSE(list.IsInIME());
}

// An input method that has finished a text.
std::u16string g_sComposed;
int g_nContexts = 0;
HIMC WINAPI GiveContext(HWND) {
    ++g_nContexts;
    return reinterpret_cast<HIMC>(UINT_PTR{1});
}
BOOL WINAPI TakeContext(HWND, HIMC) {
    --g_nContexts;
    return TRUE;
}
LONG WINAPI GiveComposed(HIMC, DWORD nWhat, LPVOID buffer, DWORD nBytes) {
    EXPECT_EQ(nWhat, static_cast<DWORD>(GCS_RESULTSTR));
    const auto nSize = static_cast<DWORD>(g_sComposed.size() * sizeof(char16_t));
    if (buffer) std::memcpy(buffer, g_sComposed.data(), std::min(nSize, nBytes));
    return static_cast<LONG>(nSize);
}

TEST_F(ListBoxKeys, AComposedTextIsToldGoesThroughKeyPressAndIsLookedForAsAWhole) {
    const PatchedImport context("ImmGetContext", GiveContext);
    const PatchedImport release("ImmReleaseContext", TakeContext);
    const PatchedImport text("ImmGetCompositionStringW", GiveComposed);
    g_sComposed = u"中x文";
    auto& list = Load();
    Fill(list, {u"中国", u"中文字"});
    Watch(list);
    std::vector<std::u16string> composed;
    list.IMEComposition.Add([&](const std::u16string& s) { composed.push_back(s); });
    list.KeyPress.Add([](std::int16_t& KeyAscii, std::int16_t&) {
        if (KeyAscii == u'x') KeyAscii = 0;
    });
    SendMessageW(list.hwnd(), WM_IME_COMPOSITION, 0, GCS_RESULTSTR);
    EXPECT_THAT(composed, ElementsAre(u"中x文"));
    EXPECT_THAT(Taken(), ElementsAre("KeyPress 20013 0", "KeyPress 120 0", "KeyPress 25991 0", "Click"));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(g_nContexts, 0);
    SendMessageW(list.hwnd(), WM_IME_COMPOSITION, 0, GCS_COMPSTR);
    EXPECT_EQ(composed.size(), 1u);
}

TEST_F(ListBoxKeys, AComposedTextOfWhichNothingIsLeftFindsNothing) {
    const PatchedImport context("ImmGetContext", GiveContext);
    const PatchedImport release("ImmReleaseContext", TakeContext);
    const PatchedImport text("ImmGetCompositionStringW", GiveComposed);
    g_sComposed = u"a";
    auto& list = Load();
    Fill(list, {u"alpha"});
    list.KeyPress.Add([](std::int16_t& KeyAscii, std::int16_t&) { KeyAscii = 0; });
    SendMessageW(list.hwnd(), WM_IME_COMPOSITION, 0, GCS_RESULTSTR);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxKeys, WithoutAnInputMethodACompositionTellsNothing) {
    auto& list = Load();
    list.IMEComposition.Add([](const std::u16string&) { FAIL(); });
    SendMessageW(list.hwnd(), WM_IME_COMPOSITION, 0, GCS_RESULTSTR);
}

TEST_F(ListBoxKeys, PageAndArrowKeysGoToTheListBeforeTheFormLooks) {
    auto& list = Load();
    for (int n = 0; n < 50; ++n)
        list.AddItem(u"x");
    list.ListIndex(0);
    EXPECT_TRUE(list.TakeKey(WM_KEYDOWN, VK_DOWN, 0));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_TRUE(list.TakeKey(WM_KEYDOWN, VK_END, 0));
    EXPECT_EQ(list.ListIndex(), 49);
    EXPECT_TRUE(list.TakeKey(WM_KEYDOWN, VK_HOME, 0));
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_TRUE(list.TakeKey(WM_KEYDOWN, VK_NEXT, 0));
    EXPECT_GT(list.ListIndex(), 2);
    EXPECT_TRUE(list.TakeKey(WM_KEYUP, VK_PRIOR, 0));
    EXPECT_FALSE(list.TakeKey(WM_KEYDOWN, VK_SPACE, 0));
    EXPECT_FALSE(list.TakeKey(WM_KEYDOWN, VK_SELECT, 0));
    EXPECT_FALSE(list.TakeKey(WM_CHAR, VK_DOWN, 0));
}

TEST_F(ListBoxKeys, TheTabKeyIsTakenOnlyWithTrapTabKey) {
    auto& list = Load();
    Watch(list);
    EXPECT_FALSE(list.TakeKey(WM_KEYDOWN, VK_TAB, 0));
    EXPECT_THAT(Taken(), IsEmpty());
    list.TrapTabKey(true);
    EXPECT_TRUE(list.TakeKey(WM_KEYDOWN, VK_TAB, 0));
    EXPECT_TRUE(list.TakeKey(WM_KEYUP, VK_TAB, 0));
    EXPECT_THAT(Taken(), ElementsAre("KeyDown 9 0", "KeyUp 9 0"));
}

TEST_F(ListBoxKeys, TabGoesFromListToListByKeyAndBehindAClick) {
    auto& first = Load();
    auto& second = form.Load<ctlUniListBoxXP>(u"lstSecond", {220, 10, 100, 100}, {});
    auto& third = form.Load<ctlUniListBoxXP>(u"lstThird", {330, 10, 100, 100}, {});
    FocusOn(first);
    Press(VK_TAB);
    EXPECT_EQ(GetFocus(), second.hwnd());
    PressWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(GetFocus(), first.hwnd());
    PressAt(second, 20, 20);
    EXPECT_EQ(GetFocus(), second.hwnd());
    Press(VK_TAB);
    EXPECT_EQ(GetFocus(), third.hwnd());
}

TEST_F(ListBoxKeys, ATrappedTabStaysAndIsToldAndArrowsMoveInTheList) {
    auto& first = Load({{u"TrapTab", true}});
    form.Load<ctlUniListBoxXP>(u"lstSecond", {220, 10, 100, 100}, {});
    Fill(first, {u"a", u"b"});
    FocusOn(first);
    Watch(first);
    Press(VK_TAB);
    EXPECT_EQ(GetFocus(), first.hwnd());
    EXPECT_THAT(Taken(), ElementsAre("KeyDown 9 0", "KeyUp 9 0"));
    Press(VK_DOWN);
    EXPECT_EQ(first.ListIndex(), 0);
    Press(VK_DOWN);
    EXPECT_EQ(first.ListIndex(), 1);
}

} // namespace
} // namespace orvanta::testing
