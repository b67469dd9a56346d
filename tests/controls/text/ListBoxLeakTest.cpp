// After a warm-up, many rounds of list boxes in all their shapes leave nothing behind.
#include "plumbing/HookStore.h"
#include "plumbing/MSubclass.h"
#include "tests/controls/text/ListFixture.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/WindowCensus.h"

#include <functional>

namespace orvanta::testing {
namespace {

constexpr int kListRounds = 1000;

class ListBoxLeaks : public ListFixture {
protected:
    ListBoxLeaks() { Show(); }

    void ExpectNoGrowth(const std::function<void()>& round) {
        for (int n = 0; n < 5; ++n)
            round();
        Pump();
        const GdiCensus objects = GdiCensus::Take();
        const int nWindows = CountOwnWindows();
        for (int n = 0; n < kListRounds; ++n)
            round();
        Pump();
        EXPECT_EQ(GdiCensus::Take(), objects);
        EXPECT_EQ(CountOwnWindows(), nWindows);
    }
    // A list that is filled, changed and painted.
    template<typename List>
    void Use(List& list) {
        list.AddItem(u"one", -1, u"tag", true);
        list.AddItem(u"two");
        list.ListIndex(1);
        list.BackColor(0x123456);
        RedrawWindow(list.Host().hWnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        list.Style(1);
        list.UseRoundRegions(true);
        list.Font(OleFont::Create(u"Tahoma", 12));
        list.Host().Size(120, 90);
        RedrawWindow(list.Host().hWnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        form.Remove(list);
    }
};

TEST_F(ListBoxLeaks, PlainLists) {
    ExpectNoGrowth([this] {
        Use(form.Load<ctlUniListBoxXP>(u"lst", {10, 10, 100, 80}, BagOf({{u"HScroll", true}, {u"Sorted", true}})));
    });
}

TEST_F(ListBoxLeaks, ListsWithPictures) {
    ExpectNoGrowth([this] {
        auto& list = form.Load<ctlUniListBoxExXP>(u"lst", {10, 10, 100, 80}, BagOf({{u"HScroll", true}}));
        list.OnOwnerDraw.Add([](std::int32_t, std::u16string&, OlePicture& oPic, std::int16_t&, std::int16_t&, bool&) {
            const WindowDc screen(nullptr);
            oPic = OlePicture::OfBitmap(CreateCompatibleBitmap(screen.Get(), 16, 16));
        });
        Use(list);
    });
}

TEST_F(ListBoxLeaks, DesignMode) {
    form.UserMode(false);
    ExpectNoGrowth([this] {
        auto& list = form.Load<ctlUniListBoxXP>(u"lst", {10, 10, 100, 80}, {});
        UpdateWindow(list.Host().hWnd());
        form.Remove(list);
    });
}

TEST_F(ListBoxLeaks, NoHookIsLeftBehind) {
    auto& list = Load();
    HWND host = list.Host().hWnd();
    HWND window = list.hwnd();
    EXPECT_GT(HooksInForce().Pairs(reinterpret_cast<HookStore::Address>(window)), 0);
    form.Remove(list);
    EXPECT_EQ(HooksInForce().Pairs(reinterpret_cast<HookStore::Address>(host)), 0);
    EXPECT_EQ(HooksInForce().Pairs(reinterpret_cast<HookStore::Address>(window)), 0);
}

} // namespace
} // namespace orvanta::testing
