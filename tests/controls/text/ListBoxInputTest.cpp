// Mouse, wheel, keys and typing on the list boxes, by real input.
#include "plumbing/TipBridge.h"
#include "tests/controls/text/ListFixture.h"
#include "tests/support/PatchedImport.h"

#include <gmock/gmock.h>
#include <imm.h>

#include <algorithm>
#include <cstring>

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListBoxInput : public ListFixture {
protected:
    // Notes every event of a list but moves of the mouse, which the system makes some of by itself.
    void Watch(ListBoxCore& list) {
        const auto plain = [this](const char* sName) { return [this, sName] { log.emplace_back(sName); }; };
        const auto key = [this](const char* sName) {
            return [this, sName](std::int16_t& Key, std::int16_t& Shift) { Note(sName, {Key, Shift}); };
        };
        const auto mouse = [this](const char* sName) {
            return [this, sName](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
                Note(sName, {Button, Shift, static_cast<int>(X), static_cast<int>(Y)});
            };
        };
        list.Click.Add(plain("Click"));
        list.DblClick.Add(plain("DblClick"));
        list.KeyDown.Add(key("KeyDown"));
        list.KeyPress.Add(key("KeyPress"));
        list.KeyUp.Add(key("KeyUp"));
        list.MouseDown.Add(mouse("MouseDown"));
        list.MouseUp.Add(mouse("MouseUp"));
        list.MouseWheel.Add([this](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y, bool& bDown) {
            Note("MouseWheel", {Button, Shift, static_cast<int>(X), static_cast<int>(Y), bDown ? 1 : 0});
        });
    }
    void Note(std::string s, std::initializer_list<int> numbers) {
        for (const int n : numbers)
            s += " " + std::to_string(n);
        log.push_back(std::move(s));
    }
    std::vector<std::string> Taken() { return std::exchange(log, {}); }
    std::vector<std::string> log;
};

TEST_F(ListBoxInput, AClickSelectsAndIsTold) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    Watch(list);
    ClickItem(list, 1, 30);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(Taken(), ElementsAre("MouseDown 1 0 30 20", "MouseUp 1 0 30 20", "Click"));
    EXPECT_EQ(GetFocus(), list.hwnd());
}

TEST_F(ListBoxInput, ADoubleClickIsTold) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    ClickItem(list, 0);
    Watch(list);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    const std::vector<std::string> told = Taken();
    EXPECT_EQ(std::count(told.begin(), told.end(), "DblClick"), 1);
    EXPECT_EQ(std::count(told.begin(), told.end(), "MouseDown 1 0 40 3"), 0);
}

TEST_F(ListBoxInput, ButtonsAreNumberedAndShiftIsThatOfTheKeys) {
    auto& list = Load();
    FocusOn(list);
    Watch(list);
    MoveTo(list.hwnd(), 7, 9);
    KeyDown(VK_SHIFT);
    Mouse(MOUSEEVENTF_RIGHTDOWN);
    Mouse(MOUSEEVENTF_RIGHTUP);
    KeyUp(VK_SHIFT);
    KeyDown(VK_CONTROL);
    Mouse(MOUSEEVENTF_MIDDLEDOWN);
    Mouse(MOUSEEVENTF_MIDDLEUP);
    KeyUp(VK_CONTROL);
    EXPECT_THAT(Taken(), ElementsAre("KeyDown 16 1", "MouseDown 2 1 7 9", "MouseUp 2 1 7 9", "KeyUp 16 0",
                                     "KeyDown 17 2", "MouseDown 4 2 7 9", "MouseUp 4 2 7 9", "KeyUp 17 0"));
}

TEST_F(ListBoxInput, AMoveTellsTheButtonsThatAreDown) {
    auto& list = Load();
    std::vector<int> buttons;
    list.MouseMove.Add([&](std::int16_t& Button, std::int16_t&, float&, float&) { buttons.push_back(Button); });
    MoveTo(list.hwnd(), 7, 9);
    EXPECT_EQ(buttons.back(), 0);
    Mouse(MOUSEEVENTF_RIGHTDOWN);
    MoveTo(list.hwnd(), 8, 9);
    EXPECT_EQ(buttons.back(), 2);
    Mouse(MOUSEEVENTF_RIGHTUP);
    SendMessageW(list.hwnd(), WM_MOUSEMOVE, MK_LBUTTON | MK_MBUTTON, MAKELPARAM(9, 9));
    EXPECT_EQ(buttons.back(), 5);
}

// Notes what would be shown.
class NotedTip final : public TipPopup {
public:
    explicit NotedTip(std::vector<std::u16string>& tips) : m_tips(tips) {}
    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view>, std::int32_t,
                std::int32_t) override {
        EXPECT_EQ(lMaxWidth, 300);
        m_tips.emplace_back(sTip);
    }
    void UpdateTip(std::u16string_view, std::int32_t, std::optional<std::u16string_view>, std::int32_t,
                   std::int32_t) override {}
    std::u16string GetTip() const override { return {}; }
    std::u16string Tag() const override { return {}; }
    bool IsVisible() const override { return false; }
    void BackColor(OleColor) override {}
    void ForeColor(OleColor) override {}
    void SetFont(IFont*) override {}
    void Style(std::int32_t) override {}

private:
    std::vector<std::u16string>& m_tips;
};

TEST_F(ListBoxInput, AMoveShowsTheTip) {
    std::vector<std::u16string> tips;
    SetTipPopupMaker([&tips] { return std::make_unique<NotedTip>(tips); });
    TipsOn(true);
    auto& list = Load({{u"Tip", u"Pick one"}});
    MoveTo(list.hwnd(), 7, 9);
    ASSERT_FALSE(tips.empty());
    EXPECT_EQ(tips.back(), u"Pick one");
    SetTipPopupMaker({});
}

TEST_F(ListBoxInput, APressLeftOfColumnSeventeenTurnsTheCheckAtOnce) {
    auto& list = Load({{u"Style", 1}});
    Fill(list, {u"a", u"b"});
    ClickItem(list, 1, 16);
    EXPECT_TRUE(list.Selected(1));
    EXPECT_EQ(list.ListIndex(), 1);
    ClickItem(list, 1, 0);
    EXPECT_FALSE(list.Selected(1));
}

TEST_F(ListBoxInput, AtColumnSeventeenTheFirstPressSelectsAndTheSecondTurnsTheCheck) {
    auto& list = Load({{u"Style", 1}});
    Fill(list, {u"a", u"b"});
    ClickItem(list, 1, 17);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_FALSE(list.Selected(1));
    ClickItem(list, 1, 17);
    EXPECT_TRUE(list.Selected(1));
    ClickItem(list, 0, 17);
    EXPECT_FALSE(list.Selected(0));
    EXPECT_TRUE(list.Selected(1));
}

TEST_F(ListBoxInput, APressBelowTheLastItemTurnsNoCheck) {
    auto& list = Load({{u"Style", 1}});
    Fill(list, {u"a"});
    list.ListIndex(0);
    NoDoubleClick();
    PressAt(list, 5, 100);
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(ListBoxInput, ACheckClickSelectsAndIsToldOnce) {
    auto& list = Load({{u"Style", 1}});
    Fill(list, {u"a", u"b"});
    Watch(list);
    ClickItem(list, 1, 5);
    EXPECT_THAT(Taken(), ElementsAre("MouseDown 1 0 5 20", "MouseUp 1 0 5 20", "Click"));
}

TEST_F(ListBoxInput, InAPlainListAPressOnTheLeftTurnsNothing) {
    auto& list = Load();
    Fill(list, {u"a"});
    ClickItem(list, 0, 5);
    list.Style(1);
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(ListBoxInput, TheWheelScrollsAndIsToldInPixelsOfTheScreen) {
    auto& list = Load();
    for (int n = 0; n < 50; ++n)
        list.AddItem(u"x");
    FocusOn(list);
    Watch(list);
    MoveTo(list.hwnd(), 20, 30);
    POINT point{20, 30};
    ClientToScreen(list.hwnd(), &point);
    const std::string sPlace = std::to_string(point.x) + " " + std::to_string(point.y);
    Mouse(MOUSEEVENTF_WHEEL, 0, 0, -120);
    EXPECT_EQ(Ask(list, LB_GETTOPINDEX), 3);
    Mouse(MOUSEEVENTF_WHEEL, 0, 0, 120);
    EXPECT_EQ(Ask(list, LB_GETTOPINDEX), 0);
    EXPECT_THAT(Taken(), ElementsAre("MouseWheel 0 0 " + sPlace + " 1", "MouseWheel 0 0 " + sPlace + " 0"));
}

TEST_F(ListBoxInput, WithoutScrollOnMouseWheelTheWheelIsOnlyTold) {
    auto& list = Load({{u"ScrollOnMouseWheel", false}});
    for (int n = 0; n < 50; ++n)
        list.AddItem(u"x");
    FocusOn(list);
    Watch(list);
    SendMessageW(list.hwnd(), WM_MOUSEWHEEL, MAKEWPARAM(MK_LBUTTON | MK_RBUTTON | MK_MBUTTON, static_cast<WORD>(-60)),
                 MAKELPARAM(static_cast<WORD>(-5), 8));
    EXPECT_THAT(Taken(), ElementsAre("MouseWheel 7 0 -5 8 1"));
    EXPECT_EQ(Ask(list, LB_GETTOPINDEX), 0);
}

TEST_F(ListBoxInput, AWheelThatDoesNotTurnGoesUp) {
    auto& list = Load();
    Watch(list);
    SendMessageW(list.hwnd(), WM_MOUSEWHEEL, 0, 0);
    EXPECT_THAT(Taken(), ElementsAre("MouseWheel 0 0 0 0 0"));
}

TEST_F(ListBoxInput, KeysAreToldAndMoveInTheList) {
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

TEST_F(ListBoxInput, AKeyThatAHandlerTakesAwayDoesNothing) {
    auto& list = Load();
    Fill(list, {u"a", u"b"});
    list.ListIndex(0);
    list.KeyDown.Add([](std::int16_t& KeyCode, std::int16_t&) { KeyCode = 0; });
    SendMessageW(list.hwnd(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ListBoxInput, TypingAheadGoesToTheNextItemWithThatStart) {
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

TEST_F(ListBoxInput, TypingTwiceIsNotASearchForBothCharacters) {
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

TEST_F(ListBoxInput, TypingAheadKnowsEveryScript) {
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

TEST_F(ListBoxInput, TypingIsToldAndCountsAsAClickWhenItFinds) {
    auto& list = Load();
    Fill(list, {u"alpha"});
    Watch(list);
    SendMessageW(list.hwnd(), WM_CHAR, u'a', 0);
    SendMessageW(list.hwnd(), WM_CHAR, u'x', 0);
    EXPECT_THAT(Taken(), ElementsAre("KeyPress 97 0", "Click", "KeyPress 120 0"));
}

TEST_F(ListBoxInput, KeyPressMayChangeOrDropTheCharacter) {
    auto& list = Load();
    Fill(list, {u"alpha", u"beta"});
    list.KeyPress.Add([](std::int16_t& KeyAscii, std::int16_t&) { KeyAscii = KeyAscii == u'a' ? u'b' : 0; });
    SendMessageW(list.hwnd(), WM_CHAR, u'a', 0);
    EXPECT_EQ(list.ListIndex(), 1);
    list.ListIndex(-1);
    SendMessageW(list.hwnd(), WM_CHAR, u'b', 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxInput, ATabCharacterIsSwallowedUntold) {
    auto& list = Load();
    Fill(list, {u"\tx"});
    Watch(list);
    SendMessageW(list.hwnd(), WM_CHAR, VK_TAB, 0);
    EXPECT_THAT(Taken(), IsEmpty());
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxInput, ASpaceTurnsTheCheckOfTheCurrentItem) {
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

TEST_F(ListBoxInput, WhileAnInputMethodComposesKeysAreNotTold) {
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

TEST_F(ListBoxInput, AComposedTextIsToldGoesThroughKeyPressAndIsLookedForAsAWhole) {
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

TEST_F(ListBoxInput, AComposedTextOfWhichNothingIsLeftFindsNothing) {
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

TEST_F(ListBoxInput, WithoutAnInputMethodACompositionTellsNothing) {
    auto& list = Load();
    list.IMEComposition.Add([](const std::u16string&) { FAIL(); });
    SendMessageW(list.hwnd(), WM_IME_COMPOSITION, 0, GCS_RESULTSTR);
}

TEST_F(ListBoxInput, PageAndArrowKeysGoToTheListBeforeTheFormLooks) {
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

TEST_F(ListBoxInput, TheTabKeyIsTakenOnlyWithTrapTabKey) {
    auto& list = Load();
    Watch(list);
    EXPECT_FALSE(list.TakeKey(WM_KEYDOWN, VK_TAB, 0));
    EXPECT_THAT(Taken(), IsEmpty());
    list.TrapTabKey(true);
    EXPECT_TRUE(list.TakeKey(WM_KEYDOWN, VK_TAB, 0));
    EXPECT_TRUE(list.TakeKey(WM_KEYUP, VK_TAB, 0));
    EXPECT_THAT(Taken(), ElementsAre("KeyDown 9 0", "KeyUp 9 0"));
}

TEST_F(ListBoxInput, TabGoesFromListToListByKeyAndBehindAClick) {
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

TEST_F(ListBoxInput, ATrappedTabStaysAndIsToldAndArrowsMoveInTheList) {
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

TEST_F(ListBoxInput, TheFocusOfTheControlIsThatOfItsList) {
    auto& list = Load();
    SetFocus(form.hWnd());
    SetFocus(list.Host().hWnd());
    EXPECT_EQ(GetFocus(), list.hwnd());
}

TEST_F(ListBoxInput, ADisabledListTakesNoClick) {
    auto& list = Load();
    Fill(list, {u"a"});
    list.Enabled(false);
    ClickItem(list, 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxInput, ExtendedSelectionGoesWithShift) {
    auto& list = Load({{u"MultiSelect", 2}});
    Fill(list, {u"a", u"b", u"c", u"d"});
    ClickItem(list, 0);
    KeyDown(VK_SHIFT);
    ClickItem(list, 2);
    KeyUp(VK_SHIFT);
    EXPECT_EQ(list.SelCount(), 3);
    EXPECT_EQ(list.ListIndex(), 2);
}

TEST_F(ListBoxInput, ThePointerIsTheOneThatIsAskedFor) {
    auto& list = Load();
    MoveTo(list.hwnd(), 20, 20);
    EXPECT_EQ(SendMessageW(list.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(list.hwnd()),
                           MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)),
              TRUE);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
    list.MousePointer(11);
    SendMessageW(list.hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(list.hwnd()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
}

TEST_F(ListBoxInput, AHandlerMayRemoveTheControl) {
    const auto remove = [this](ListBoxCore& list) { form.Remove(list); };
    {
        auto& list = Load({{u"Style", 1}});
        Fill(list, {u"a", u"b"});
        list.Click.Add([&] { remove(list); });
        ClickItem(list, 1, 5);
        EXPECT_TRUE(form.Controls().empty());
    }
    {
        auto& list = Load({{u"Style", 1}});
        Fill(list, {u"a", u"b"});
        list.MouseDown.Add([&](std::int16_t&, std::int16_t&, float&, float&) { remove(list); });
        ClickItem(list, 1, 5);
        EXPECT_TRUE(form.Controls().empty());
    }
    {
        auto& list = Load();
        Fill(list, {u"a", u"b"});
        list.KeyDown.Add([&](std::int16_t&, std::int16_t&) { remove(list); });
        SendMessageW(list.hwnd(), WM_KEYDOWN, VK_DOWN, 0);
        EXPECT_TRUE(form.Controls().empty());
    }
    {
        auto& list = Load();
        Fill(list, {u"a", u"b"});
        list.KeyPress.Add([&](std::int16_t&, std::int16_t&) { remove(list); });
        SendMessageW(list.hwnd(), WM_CHAR, u'a', 0);
        EXPECT_TRUE(form.Controls().empty());
    }
    {
        auto& list = Load();
        list.MouseWheel.Add([&](std::int16_t&, std::int16_t&, float&, float&, bool&) { remove(list); });
        SendMessageW(list.hwnd(), WM_MOUSEWHEEL, 0, 0);
        EXPECT_TRUE(form.Controls().empty());
    }
    {
        auto& list = Load();
        Fill(list, {u"a", u"b"});
        list.ListIndex(1);
        list.Click.Add([&] { remove(list); });
        list.Sorted(true);
        EXPECT_TRUE(form.Controls().empty());
    }
}

} // namespace
} // namespace orvanta::testing
