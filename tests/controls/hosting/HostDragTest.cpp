#include "tests/controls/support/FormFixture.h"
#include "tests/controls/support/ProbeControl.h"

#include "controls/hosting/OleData.h"
#include "tests/plumbing/FailingAllocation.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace orvanta::testing {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

// A user who moves the mouse while the drag loop of the test's own thread runs.
class DraggingHand {
public:
    explicit DraggingHand(std::vector<POINT> path, WORD endKey = 0) {
        HDESK desktop = GetThreadDesktop(GetCurrentThreadId());
        m_hand = std::thread([desktop, path = std::move(path), endKey] {
            SetThreadDesktop(desktop);
            for (const POINT& point : path) {
                Sleep(40);
                Send(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, point);
            }
            Sleep(40);
            if (endKey != 0) {
                INPUT key[2]{};
                key[0].type = key[1].type = INPUT_KEYBOARD;
                key[0].ki.wVk = key[1].ki.wVk = endKey;
                key[1].ki.dwFlags = KEYEVENTF_KEYUP;
                SendInput(2, key, sizeof key[0]);
                Sleep(40);
            }
            Send(MOUSEEVENTF_LEFTUP, {});
        });
    }
    DraggingHand(const DraggingHand&) = delete;
    DraggingHand& operator=(const DraggingHand&) = delete;
    ~DraggingHand() { m_hand.join(); }

private:
    static void Send(DWORD flags, POINT point) {
        const int w = GetSystemMetrics(SM_CXSCREEN);
        const int h = GetSystemMetrics(SM_CYSCREEN);
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        input.mi.dx = (point.x * 65536 + w - 1) / w;
        input.mi.dy = (point.y * 65536 + h - 1) / h;
        SendInput(1, &input, sizeof input);
    }
    std::thread m_hand;
};

class HostDragTest : public FormFixture {
protected:
    HostDragTest()
        : source(form.Add<ProbeControl>(u"Source", {10, 10, 100, 50})),
          target(form.Add<ProbeControl>(u"Target", {10, 100, 100, 50})) {
        target.OLEDropMode(1);
        source.MouseDown.Add([this](auto&, auto&, auto&, auto&) { source.OLEDrag(); });
        source.OLEStartDrag.Add([this](DataObject& Data, std::int32_t& AllowedEffects) {
            journal.emplace_back("start");
            Data.SetText(u"dragged 中");
            AllowedEffects = kDropCopy | kDropMove;
        });
        source.OLECompleteDrag.Add(
            [this](std::int32_t& Effect) { journal.push_back("complete " + std::to_string(Effect)); });
        source.OLEGiveFeedback.Add([this](std::int32_t& Effect, bool& bDefaultCursors) {
            EXPECT_TRUE(bDefaultCursors);
            lFeedback = Effect;
        });
        target.OLEDragOver.Add([this](DataObject& Data, std::int32_t& Effect, std::int16_t& Button, std::int16_t&,
                                      float&, float&, std::int16_t& State) {
            if (journal.empty() || journal.back() != "over " + std::to_string(State))
                journal.push_back("over " + std::to_string(State));
            EXPECT_TRUE(Data.GetFormat(kFormatUnicodeText));
            EXPECT_EQ(Button, 1);
            if (State != kDragLeave) Effect = lAnswer;
        });
        target.OLEDragDrop.Add(
            [this](DataObject& Data, std::int32_t& Effect, std::int16_t& Button, std::int16_t&, float& X, float& Y) {
                journal.emplace_back("drop");
                sDropped = Data.GetText();
                sDroppedNarrow = Data.GetText(kFormatText);
                Effect = lAnswer;
                dropPoint = {static_cast<LONG>(X), static_cast<LONG>(Y)};
                iDropButton = Button;
            });
        Show();
    }

    POINT OnScreen(const Control& control, int x, int y) const {
        POINT point{x, y};
        ClientToScreen(control.hwnd(), &point);
        return point;
    }
    void Drag(std::vector<POINT> path, WORD endKey = 0) {
        MoveTo(source, 5, 5);
        const DraggingHand hand(std::move(path), endKey);
        Mouse(MOUSEEVENTF_LEFTDOWN);
    }

    ProbeControl& source;
    ProbeControl& target;
    std::vector<std::string> journal;
    std::int32_t lAnswer = kDropMove;
    std::int32_t lFeedback = -1;
    std::u16string sDropped;
    std::u16string sDroppedNarrow;
    POINT dropPoint{};
    std::int16_t iDropButton = 0;
};

TEST_F(HostDragTest, ADragFromControlToControlBringsTheText) {
    Drag({OnScreen(source, 20, 20), OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_THAT(journal, ElementsAre("start", "over 0", "over 2", "drop", "complete 2"));
    EXPECT_EQ(sDropped, u"dragged 中");
    EXPECT_EQ(sDroppedNarrow, u"dragged ?");
    EXPECT_EQ(dropPoint.x, 40);
    EXPECT_EQ(dropPoint.y, 25);
    EXPECT_EQ(iDropButton, 1);
    EXPECT_EQ(lFeedback, kDropMove);
}

TEST_F(HostDragTest, EscapeEndsTheDragWithoutADrop) {
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)}, VK_ESCAPE);
    EXPECT_THAT(journal, ElementsAre("start", "over 0", "over 2", "over 1", "complete 0"));
    EXPECT_EQ(sDropped, u"");
}

TEST_F(HostDragTest, LeavingTheTargetIsTold) {
    Drag({OnScreen(target, 30, 20), OnScreen(source, 300, 20)});
    // The mouse that rests over a target may bring a step of its own.
    std::erase(journal, "over 2");
    EXPECT_THAT(journal, ElementsAre("start", "over 0", "over 1", "complete 0"));
}

TEST_F(HostDragTest, ATargetThatAnswersNoneGetsNoDrop) {
    lAnswer = kDropNone;
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_THAT(journal, Not(Contains("drop")));
    EXPECT_EQ(journal.back(), "complete 0");
}

TEST_F(HostDragTest, AControlWithDropModeZeroIsNoTarget) {
    target.OLEDropMode(0);
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_THAT(journal, ElementsAre("start", "complete 0"));
}

TEST_F(HostDragTest, InDesignModeNothingIsDraggedOrDropped) {
    form.HostOf(target)->UserMode(false);
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_THAT(journal, ElementsAre("start", "complete 0"));
    journal.clear();
    form.HostOf(source)->UserMode(false);
    source.OLEDrag();
    EXPECT_THAT(journal, ElementsAre());
}

TEST_F(HostDragTest, WithoutAnAllowedEffectNothingIsDragged) {
    source.OLEStartDrag.Add([](DataObject&, std::int32_t& AllowedEffects) { AllowedEffects = kDropNone; });
    Drag({OnScreen(target, 30, 20)});
    EXPECT_THAT(journal, ElementsAre("start"));
}

TEST_F(HostDragTest, APromisedFormatIsAskedForAtTheDrop) {
    source.OLEStartDrag.Add([](DataObject& Data, std::int32_t&) {
        Data.Clear();
        Data.SetFormat(kFormatUnicodeText);
    });
    source.OLESetData.Add([this](DataObject& Data, std::int16_t& DataFormat) {
        journal.push_back("set " + std::to_string(DataFormat));
        Data.SetText(u"late", DataFormat);
    });
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_EQ(sDropped, u"late");
    EXPECT_THAT(journal, ElementsAre("start", "over 0", "over 2", "drop", "set 13", "complete 2"));
}

TEST_F(HostDragTest, ATargetRemovedInItsDropEndsTheDragInOrder) {
    target.OLEDragDrop.Add([this](auto&, auto&, auto&, auto&, auto&, auto&) { form.Remove(target); });
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_THAT(journal, ElementsAre("start", "over 0", "over 2", "drop", "complete 2"));
    EXPECT_EQ(form.Find(u"Target"), nullptr);
}

TEST_F(HostDragTest, ASourceRemovedDuringItsDragStillCompletes) {
    target.OLEDragDrop.Add([this](auto&, auto&, auto&, auto&, auto&, auto&) { form.Remove(source); });
    Drag({OnScreen(target, 30, 20), OnScreen(target, 40, 25)});
    EXPECT_EQ(journal.back(), "complete 2");
    EXPECT_EQ(form.Find(u"Source"), nullptr);
}

TEST(OleData, EachFormatMakesTheWayThroughThePlatformsObject) {
    const auto data = std::make_shared<DataObject>();
    data->SetText(u"Größe 中");
    data->SetFiles({u"C:\\Größe.txt", u"C:\\b.txt"});
    data->SetBytes({0, 1, 255}, 300);
    const ComReference<IDataObject> offer = OfferData(data);
    DataObject taken;
    TakeData(taken, offer.Get());
    EXPECT_THAT(taken.Formats(), ElementsAre(kFormatText, kFormatUnicodeText, kFormatFiles, 300));
    EXPECT_EQ(taken.GetText(), u"Größe 中");
    EXPECT_EQ(taken.GetText(kFormatText), u"Größe ?");
    EXPECT_THAT(taken.Files(), ElementsAre(u"C:\\Größe.txt", u"C:\\b.txt"));
    const PropertyBytes bytes = taken.GetBytes(300);
    ASSERT_GE(bytes.size(), 3U);
    EXPECT_EQ(PropertyBytes(bytes.begin(), bytes.begin() + 3), (PropertyBytes{0, 1, 255}));
}

TEST(OleData, AFormatThatIsNotOfferedIsRefused) {
    const auto data = std::make_shared<DataObject>();
    data->SetText(u"a", kFormatText);
    const ComReference<IDataObject> offer = OfferData(data);
    FORMATETC format{300, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    EXPECT_EQ(offer->GetData(&format, &medium), DV_E_FORMATETC);
    format.cfFormat = CF_UNICODETEXT;
    EXPECT_EQ(offer->QueryGetData(&format), S_OK);
    format.tymed = TYMED_ISTREAM;
    EXPECT_EQ(offer->QueryGetData(&format), DV_E_TYMED);
    ComReference<IUnknown> unknown = offer.As<IUnknown>();
    EXPECT_TRUE(unknown);
    EXPECT_FALSE(offer.As<IDropTarget>());
}

// The target as the platform calls it, in whose code no exception may end.
TEST_F(HostDragTest, WantOfMemoryInATargetIsAnAnswerToThePlatform) {
    auto& quiet = form.Add<ProbeControl>(u"Quiet", {200, 100, 100, 50});
    quiet.OLEDropMode(1);
    auto* const object = static_cast<IDropTarget*>(GetPropW(quiet.hwnd(), L"OleDropTargetInterface"));
    ASSERT_NE(object, nullptr);
    const auto data = std::make_shared<DataObject>();
    data->SetText(u"a");
    const ComReference<IDataObject> offer = OfferData(data);
    using Call = HRESULT (STDMETHODCALLTYPE IDropTarget::*)(IDataObject*, DWORD, POINTL, DWORD*);
    for (const Call call : {&IDropTarget::DragEnter, &IDropTarget::Drop}) {
        int nRefused = 0;
        bool bHappened = true;
        for (int n = 1; bHappened && n < 50; ++n) {
            DWORD lEffect = DROPEFFECT_COPY;
            const FailingAllocation failing(n);
            const HRESULT result = (object->*call)(offer.Get(), MK_LBUTTON, {250, 150}, &lEffect);
            bHappened = FailingAllocation::Happened();
            EXPECT_TRUE(result == S_OK || (bHappened && result == E_OUTOFMEMORY)) << n;
            if (result == E_OUTOFMEMORY) ++nRefused;
        }
        EXPECT_FALSE(bHappened);
        EXPECT_GE(nRefused, 1);
    }
    object->DragLeave();
}

TEST(OleData, WantOfMemoryIsAnAnswerToThePlatform) {
    const auto data = std::make_shared<DataObject>();
    data->SetText(u"a");
    const ComReference<IDataObject> offer = OfferData(data);
    FORMATETC format{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    {
        const FailingAllocation failing(1);
        EXPECT_EQ(offer->GetData(&format, &medium), E_OUTOFMEMORY);
        EXPECT_TRUE(FailingAllocation::Happened());
    }
    EXPECT_EQ(medium.tymed, static_cast<DWORD>(TYMED_NULL));
    IEnumFORMATETC* formats = nullptr;
    {
        const FailingAllocation failing(1);
        EXPECT_EQ(offer->EnumFormatEtc(DATADIR_GET, &formats), E_OUTOFMEMORY);
    }
    EXPECT_EQ(formats, nullptr);
}

} // namespace

} // namespace orvanta::testing
