// The order in which the labels and the frame act on their host, and what is left of it when a step fails.
#include "controls/basic/ctlUniFrameXP.h"
#include "controls/basic/ctlUniLabel.h"
#include "controls/basic/ctlUniLabelNoFlick.h"
#include "tests/controls/basic/FakeHost.h"
#include "tests/controls/basic/LabelFixture.h"
#include "tests/support/PatchedImport.h"

namespace orvanta::testing {
namespace {

using Notes = std::vector<std::string>;

// On its DC "text" has this size.
constexpr int kTextHeight = 13;

class LabelOrder : public ::testing::Test {
protected:
    LabelOrder() {
        PropertyBag bag;
        bag.WriteProperty(u"Caption", u"text");
        label.OnReadProperties(bag);
        SelectObject(host.hDC(), host.Font().hFont());
    }
    ~LabelOrder() override { SelectObject(host.hDC(), GetStockObject(SYSTEM_FONT)); }

    static std::string Sized(int width, int height) {
        return "Size " + std::to_string(width) + " " + std::to_string(height);
    }
    int TextWidth() {
        RECT rect{};
        DrawTextW(host.hDC(), L"text", 4, &rect, DT_CALCRECT | DT_SINGLELINE);
        return rect.right;
    }
    Notes Paint() {
        host.Taken();
        label.OnPaint();
        return host.Taken();
    }

    FakeHost host{200, 30};
    ctlUniLabel label{host};
};

TEST_F(LabelOrder, APaintSetsTheTextColorOnceAndThenLeavesTheHostAlone) {
    EXPECT_EQ(Paint(), Notes{"ForeColor"});
    EXPECT_EQ(Paint(), Notes{});
}

TEST_F(LabelOrder, ATransparentLabelDropsThePictureThenSetsTheMaskThenTheBackStyle) {
    Paint();
    label.PutProperty(u"BackStyle", 0);
    EXPECT_EQ(Paint(), (Notes{"no Picture", "MaskPicture", "BackStyle 0"}));
    EXPECT_EQ(Paint(), (Notes{"no Picture", "MaskPicture"}));
    label.PutProperty(u"BackStyle", 1);
    EXPECT_EQ(Paint(), Notes{"BackStyle 1"});
}

TEST_F(LabelOrder, ARoundLabelDoesTheSame) {
    Paint();
    label.UseRoundRegions(true);
    EXPECT_EQ(Paint(), (Notes{"no Picture", "MaskPicture", "BackStyle 0"}));
}

TEST_F(LabelOrder, TheLeftEdgeIsSetBeforeTheSize) {
    Paint();
    label.Alignment(1);
    label.AutoSize(true);
    const int W = TextWidth();
    EXPECT_EQ(Paint(), (Notes{"Left " + std::to_string(100 + 200 - W), Sized(W, kTextHeight)}));
}

TEST_F(LabelOrder, OnAContainerWithoutScaleModePlaceAndSizeAreTwips) {
    Paint();
    host.kind = ControlContainer::Kind::Other;
    host.left = 1500; // 100 pixels
    label.Alignment(1);
    label.AutoSize(true);
    const int W = TextWidth();
    EXPECT_EQ(Paint(), (Notes{"Left " + std::to_string(15 * (300 - W)), Sized(15 * W, 15 * kTextHeight)}));
}

TEST_F(LabelOrder, OnAPictureBoxTheyAreInItsScaleMode) {
    Paint();
    host.kind = ControlContainer::Kind::PictureBox;
    host.unit = ScaleUnit::Points;
    label.AutoSize(true);
    EXPECT_EQ(Paint(), Notes{Sized(static_cast<int>(0.75f * static_cast<float>(TextWidth())), 9)}); // 9.75
}

TEST_F(LabelOrder, AContainerWithoutLeftLeavesTheLabelAtItsPlaceAndItIsResizedAllTheSame) {
    Paint();
    host.bLeftFails = true;
    label.Alignment(1);
    label.AutoSize(true);
    EXPECT_EQ(Paint(), Notes{Sized(TextWidth(), kTextHeight)});
}

TEST_F(LabelOrder, AContainerThatCannotTellItsScaleModeLeavesTheLabelAtItsPlaceAndItIsResizedInTwips) {
    Paint();
    host.bScaleModeFails = true;
    label.Alignment(1);
    label.AutoSize(true);
    EXPECT_EQ(Paint(), Notes{Sized(15 * TextWidth(), 15 * kTextHeight)});
}

TEST_F(LabelOrder, ASizeThatFitsAlreadyMovesNothing) {
    Paint();
    FakeHost fitting(TextWidth(), kTextHeight);
    ctlUniLabel same(fitting);
    SelectObject(fitting.hDC(), fitting.Font().hFont());
    same.Caption(u"text");
    same.Alignment(1);
    same.AutoSize(true);
    fitting.Taken();
    same.OnPaint();
    EXPECT_EQ(fitting.Taken(), Notes{"ForeColor"});
    SelectObject(fitting.hDC(), GetStockObject(SYSTEM_FONT));
}

TEST_F(LabelOrder, TheTwinShowsItsImageOnceBehindEverythingElse) {
    ctlUniLabelNoFlick twin(host);
    EXPECT_TRUE(host.AutoRedraw());
    host.Taken();
    twin.BackColor(1);
    EXPECT_EQ(host.Taken(), (Notes{"ForeColor", "Refresh"}));
    twin.BackStyle(0);
    EXPECT_EQ(host.Taken(),
              (Notes{"no Picture", "MaskPicture", "BackStyle 0", "Refresh", "no Picture", "MaskPicture", "Refresh"}));
    twin.Caption(u"x");
    EXPECT_EQ(host.Taken(), (Notes{"PropertyChanged", "no Picture", "MaskPicture", "Refresh", "no Picture",
                                   "MaskPicture", "Refresh"}));
}

TEST_F(LabelOrder, TheShadowOfATitleBorrowsTheTextColorAndGivesItBack) {
    ctlUniFrameXP frame(host);
    frame.Caption(u"title");
    frame.ForeColor(0x102030);
    frame.UseShadow(true);
    host.Taken();
    frame.OnPaint();
    EXPECT_EQ(host.Taken(), (Notes{"ForeColor", "ForeColor", "ForeColor"}));
    EXPECT_EQ(host.ForeColor(), 0x102030);
    host.AutoRedraw(true);
    frame.OnPaint();
    EXPECT_EQ(host.Taken(), (Notes{"ForeColor", "ForeColor", "Refresh"}));
}

HBITMAP WINAPI MakeNoBitmap(HDC, int, int) {
    return nullptr;
}
HDC WINAPI GiveNoDc(HWND) {
    return nullptr;
}

TEST_F(LabelOrder, AMaskThatCannotBeMadeLeavesTheShapeAndTheTextIsDrawnAllTheSame) {
    label.ForeColor(0x2040C0);
    label.BackColor(0xFFFFFF);
    label.PutProperty(u"BackStyle", 0);
    const auto inkAt = [this] {
        int n = 0;
        for (const OleColor c : host.Canvas().Pixels())
            n += c == 0x2040C0;
        return n;
    };
    {
        const PatchedImport<decltype(CreateCompatibleBitmap)> patched("CreateCompatibleBitmap", MakeNoBitmap);
        EXPECT_EQ(Paint(), Notes{"ForeColor"});
        EXPECT_GT(inkAt(), 0);
    }
    EXPECT_EQ(Paint(), (Notes{"no Picture", "MaskPicture", "BackStyle 0"}));
}

class LabelWithoutDc : public LabelFixture<ctlUniLabel> {};

TEST_F(LabelWithoutDc, RefreshNowAsksForAPaintInsteadAndTheShapeWaitsForIt) {
    Show();
    auto& label = Make({10, 10, 120, 40}, u"caption");
    label.PutProperty(u"BackStyle", 0);
    Pump();
    const std::vector<bool> before = ShapeOf(label);
    label.Taken();
    {
        const PatchedImport<decltype(GetDC)> patched("GetDC", GiveNoDc);
        label.Refresh(true);
        EXPECT_EQ(label.Taken(), (Notes{"shape", "repaint"}));
        label.Caption(u"other words");
    }
    EXPECT_EQ(ShapeOf(label), before);
    Pump();
    EXPECT_EQ(ShapeOf(label), GlyphsOf(label, {0, 0, 120, 40}, kBreaks));
}

} // namespace
} // namespace orvanta::testing
