// Mouse and wheel on the list boxes, by real input.
#include "plumbing/TipBridge.h"
#include "tests/controls/text/ListInputFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvanta::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListBoxInput : public ListInputFixture {};

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
