// Hundreds of random actions on a list box, each followed by a comparison with a plain model of a list.
#include "tests/controls/text/ListFixture.h"

#include <algorithm>
#include <random>

namespace orvanta::testing {
namespace {

struct ModelItem {
    std::u16string sText;
    std::int32_t lTag = 0;
    bool bChecked = false;
    int nAdded = 0;
};

// What a list box holds, as a reader of its description would write it down.
struct ModelList {
    std::vector<ModelItem> items;
    int nCurrent = -1;
    bool bChecks = false;
    bool bSorted = false;
    int nAdditions = 0;

    int Count() const { return static_cast<int>(items.size()); }
    ModelItem& At(int n) { return items[static_cast<std::size_t>(n)]; }

    void Insert(ModelItem item, int nIndex) {
        if (!bChecks) item.bChecked = false;
        item.nAdded = nAdditions++;
        if (nIndex == -1) {
            nIndex = Count();
            if (bSorted) {
                nIndex = 0;
                while (nIndex < Count() && At(nIndex).sText < item.sText)
                    ++nIndex;
            }
        }
        items.insert(items.begin() + nIndex, std::move(item));
        if (nIndex <= nCurrent) ++nCurrent;
    }
    void Remove(int nIndex) {
        items.erase(items.begin() + nIndex);
        if (nIndex == nCurrent) {
            nCurrent = -1;
        } else if (nIndex < nCurrent) {
            --nCurrent;
        }
    }
    void MakeAnew() {
        std::vector<ModelItem> all = std::exchange(items, {});
        std::sort(all.begin(), all.end(), [](const ModelItem& a, const ModelItem& b) { return a.nAdded < b.nAdded; });
        const int nKept = std::exchange(nCurrent, -1);
        for (ModelItem& item : all)
            Insert(std::move(item), -1);
        nCurrent = nKept;
    }
    void TypeAhead(char16_t c) {
        for (int n = 1; n <= Count(); ++n) {
            const int nIndex = (nCurrent + n) % Count();
            const std::u16string& s = At(nIndex).sText;
            if (!s.empty() && (s[0] | 0x20) == c) {
                nCurrent = nIndex;
                return;
            }
        }
    }
};

template<typename List>
class ListBoxScript : public ListFixture {
protected:
    void Run(unsigned nSeed, int nSteps) {
        m_random.seed(nSeed);
        for (int n = 0; n < nSteps; ++n) {
            const int nAction = Number(0, 21);
            SCOPED_TRACE("step " + std::to_string(n) + ", action " + std::to_string(nAction));
            Act(nAction);
            Compare();
            if (HasFailure()) return;
        }
    }

private:
    int Number(int nFrom, int nTo) { return std::uniform_int_distribution<int>(nFrom, nTo)(m_random); }
    // No two texts are equal: the order of equal ones is nobody's business.
    std::u16string NewText() {
        std::u16string s(1, static_cast<char16_t>(Number(0, 1) ? u'a' + Number(0, 5) : u'A' + Number(0, 5)));
        return s + FromUtf8(std::to_string(m_nTexts++));
    }
    ModelItem NewItem() { return {NewText(), Number(-5, 5), Number(0, 1) == 1, 0}; }

    void Add(int nIndex) {
        const ModelItem item = NewItem();
        model.Insert(item, nIndex);
        list.AddItem(item.sText, nIndex, TaggedValue(item.lTag), item.bChecked);
    }

    void Act(int nAction) {
        const int nCount = model.Count();
        const int nAny = nCount > 0 ? Number(0, nCount - 1) : -1;
        switch (nAction) {
        case 0:
        case 1:
        case 2:
        case 3: Add(-1); return;
        case 4:
            // An item out of order would make the next search for a place anybody's guess.
            if (!model.bSorted) Add(Number(0, nCount));
            return;
        case 5:
        case 6:
            if (nAny < 0) return;
            model.Remove(nAny);
            list.RemoveItem(nAny);
            return;
        case 7:
            if (nAny < 0 || model.bSorted) return;
            model.At(nAny).sText = NewText();
            list.List(nAny, model.At(nAny).sText);
            return;
        case 8:
            if (nAny < 0) return;
            model.At(nAny).lTag = Number(0, 99);
            list.ItemData(nAny, model.At(nAny).lTag);
            return;
        case 9:
            if (nAny < 0 || !model.bChecks) return;
            model.At(nAny).bChecked = Number(0, 1) == 1;
            list.Selected(nAny, model.At(nAny).bChecked);
            return;
        case 10:
            model.nCurrent = nCount > 0 ? Number(-1, nCount - 1) : -1;
            list.ListIndex(model.nCurrent);
            return;
        case 11:
            if (Number(0, 3) > 0) return;
            model.bChecks = !model.bChecks;
            model.MakeAnew();
            list.Style(model.bChecks ? 1 : 0);
            return;
        case 12:
            if (Number(0, 3) > 0) return;
            model.bSorted = !model.bSorted;
            model.MakeAnew();
            list.Sorted(model.bSorted);
            return;
        case 13:
            if (Number(0, 9) > 0) return;
            model = {{}, -1, model.bChecks, model.bSorted, model.nAdditions};
            list.Clear();
            return;
        case 14:
        case 15:
        case 16: ClickSome(); return;
        case 17: PressSome(); return;
        case 18: TypeSome(); return;
        case 19:
            MoveTo(list.hwnd(), 60, 40);
            Mouse(MOUSEEVENTF_WHEEL, 0, 0, Number(0, 1) ? 120 : -120);
            return;
        case 20:
            list.BackColor(Number(0, 0xFFFFFF));
            list.Enabled(Number(0, 1) == 0);
            Grab(list.hwnd());
            list.Enabled(true);
            return;
        default: list.Host().Size(static_cast<float>(Number(100, 220)), static_cast<float>(Number(60, 200))); return;
        }
    }
    // Each press is far enough from the last one to be no double click.
    void ClickSome() {
        RECT client{};
        GetClientRect(list.hwnd(), &client);
        const int x = m_nPresses++ % 2 ? Number(2, 8) : Number(30, 60);
        const int y = Number(1, client.bottom - 1);
        const int nIndex = list.GetListIndexByY(y);
        PressAt(list, x, y);
        // Below the last item the platform chooses what it finds near.
        if (nIndex < 0) {
            model.nCurrent = list.ListIndex();
            return;
        }
        if (model.bChecks && (x < 17 || model.nCurrent == nIndex))
            model.At(nIndex).bChecked = !model.At(nIndex).bChecked;
        model.nCurrent = nIndex;
    }
    void PressSome() {
        if (model.nCurrent < 0) return;
        FocusOn(list);
        // The platform's caret need not follow the current item when items come and go.
        list.ListIndex(model.nCurrent);
        const int nLast = model.Count() - 1;
        switch (Number(0, 3)) {
        case 0:
            Press(VK_DOWN);
            model.nCurrent = std::min(model.nCurrent + 1, nLast);
            break;
        case 1:
            Press(VK_UP);
            model.nCurrent = std::max(model.nCurrent - 1, 0);
            break;
        case 2:
            Press(VK_END);
            model.nCurrent = nLast;
            break;
        default:
            Press(VK_HOME);
            model.nCurrent = 0;
            break;
        }
    }
    void TypeSome() {
        FocusOn(list);
        if (Number(0, 2) == 0) {
            Type(u" ");
            if (model.bChecks && model.nCurrent >= 0)
                model.At(model.nCurrent).bChecked = !model.At(model.nCurrent).bChecked;
            return;
        }
        const auto c = static_cast<char16_t>(u'a' + Number(0, 6));
        Type(std::u16string(1, c));
        model.TypeAhead(c);
    }

    void Compare() {
        ASSERT_EQ(list.ListCount(), model.Count());
        EXPECT_EQ(list.ListIndex(), model.nCurrent);
        EXPECT_EQ(list.Text(), model.nCurrent < 0 ? u"" : model.At(model.nCurrent).sText);
        std::int32_t lChecked = 0;
        for (int n = 0; n < model.Count(); ++n) {
            const ModelItem& item = model.At(n);
            EXPECT_EQ(list.List(n), item.sText) << n;
            EXPECT_EQ(list.ListTag(n), TaggedValue(item.lTag)) << n;
            if (!model.bChecks) continue;
            EXPECT_EQ(list.Selected(n), item.bChecked) << n;
            lChecked += item.bChecked ? 1 : 0;
        }
        if (model.bChecks) {
            EXPECT_EQ(list.SelCount(), lChecked);
        }
    }

    List& list = Load<List>();
    ModelList model;
    std::mt19937 m_random;
    int m_nTexts = 0;
    int m_nPresses = 0;
};

using PlainListScript = ListBoxScript<ctlUniListBoxXP>;
using PictureListScript = ListBoxScript<ctlUniListBoxExXP>;

TEST_F(PlainListScript, EqualsAPlainModelAfterEachOfManyRandomActions) {
    for (const unsigned nSeed : {1u, 2u, 3u}) {
        SCOPED_TRACE("seed " + std::to_string(nSeed));
        Run(nSeed, 400);
        if (HasFailure()) return;
    }
}

TEST_F(PictureListScript, EqualsAPlainModelAfterEachOfManyRandomActions) {
    Run(4, 600);
}

} // namespace
} // namespace orvanta::testing
