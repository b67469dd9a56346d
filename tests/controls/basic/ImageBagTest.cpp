#include "controls/basic/ctlImageBag.h"

#include "controls/contract/ObjectValues.h"
#include "plumbing/SharedColors.h"
#include "tests/controls/basic/ImageFixture.h"
#include "tests/support/GdiCensus.h"
#include "tests/support/NumberRaisedBy.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <set>
#include <string>

namespace orvanta {
namespace {

using testing::ExpectSame;
using testing::PictureOfSize;
using testing::PlainIcon;
using testing::Shot;

PropertyValue ValueOfPicture(const OlePicture& picture) {
    return PropertyKind<OlePicture>::Make(picture);
}

// A picture object knows 32 bits of its handle.
std::uint32_t HandleNumber(const OlePicture& picture) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(picture.Handle()));
}

Shot PixelsOfPicture(const OlePicture& picture, int width, int height) {
    clsMEMDC surface;
    surface.CloneFromHBmp(static_cast<HBITMAP>(picture.Handle()), TRANSPARENT);
    return {surface.Hdc(), width, height};
}

class ImageBag : public testing::ImageFixture {
protected:
    ctlImageBag& LoadFrom(const PropertyBag& bag) { return form.Load<ctlImageBag>(u"bag", {10, 10, 20, 20}, bag); }
};

TEST_F(ImageBag, GetPictureTwiceGivesOneObject) {
    auto& bag = Put<ctlImageBag>(20, 20);
    const OlePicture picture = PictureOfSize(6, 4);
    bag.Pictures().Add(picture);
    EXPECT_TRUE(bag.GetPicture(1) == picture);
    EXPECT_TRUE(bag.GetPicture(1) == bag.GetPicture(1));
}

TEST_F(ImageBag, GetPictureCloneTwiceGivesTwoPicturesOfTheirOwn) {
    auto& bag = Put<ctlImageBag>(20, 20);
    bag.Pictures().Add(PictureOfSize(6, 4));
    const OlePicture first = bag.GetPictureClone(1), second = bag.GetPictureClone(1);
    const std::set<std::uint32_t> handles{HandleNumber(first), HandleNumber(second), HandleNumber(bag.GetPicture(1))};
    EXPECT_EQ(handles.size(), 3U);
    const Shot pixels = PixelsOfPicture(bag.GetPicture(1), 6, 4);
    bag.Pictures().Clear();
    ExpectSame(PixelsOfPicture(first, 6, 4), pixels);
    ExpectSame(PixelsOfPicture(second, 6, 4), pixels);
}

TEST_F(ImageBag, APositionOutsideFailsAsTheCollectionDoes) {
    auto& bag = Put<ctlImageBag>(20, 20);
    bag.Pictures().Add(PictureOfSize(6, 4));
    for (const std::int32_t i : {0, 2, -1, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(testing::NumberRaisedBy([&] { bag.GetPicture(i); }), 9U) << i;
        EXPECT_EQ(testing::NumberRaisedBy([&] { bag.GetPictureClone(i); }), 9U) << i;
    }
}

TEST_F(ImageBag, WhatIsNoBitmapHasNoClone) {
    auto& bag = Put<ctlImageBag>(20, 20);
    bag.Pictures().Add(PlainIcon(32));
    bag.Pictures().Add({});
    for (const std::int32_t i : {1, 2}) {
        try {
            bag.GetPictureClone(i);
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Description(), u"clsMemDC.CloneFromhBmp.Bitmap not selected");
        }
    }
}

TEST_F(ImageBag, ACountOf0LoadsAnEmptyCollection) {
    PropertyBag stored;
    stored.WriteProperty(u"Pics", 0);
    stored.WriteProperty(u"Pic1", ValueOfPicture(PictureOfSize(6, 4)));
    EXPECT_EQ(LoadFrom(stored).Pictures().Count(), 0U);
    EXPECT_EQ(form.Load<ctlImageBag>(u"other", {0, 0, 9, 9}, PropertyBag()).Pictures().Count(), 0U);
}

TEST_F(ImageBag, AnEmptyCollectionStoresItsCountAllTheSame) {
    PropertyBag stored;
    Put<ctlImageBag>(20, 20).OnWriteProperties(stored);
    EXPECT_EQ(stored.Keys(), std::vector<std::u16string>{u"Pics"});
    EXPECT_EQ(stored.ReadProperty(u"Pics").Plain().ToInteger(), 0);
}

TEST_F(ImageBag, PicturesAreStoredUnderTheirNumbersAndComeBackInOrder) {
    auto& bag = Put<ctlImageBag>(20, 20);
    const OlePicture first = PictureOfSize(6, 4), second = PlainIcon(32);
    bag.Pictures().Add(first);
    bag.Pictures().Add({});
    bag.Pictures().Add(second);
    PropertyBag stored;
    bag.OnWriteProperties(stored);
    EXPECT_EQ(stored.Keys(), (std::vector<std::u16string>{u"Pics", u"Pic1", u"Pic2", u"Pic3"}));
    const ctlImageBag& loaded = LoadFrom(stored);
    ASSERT_EQ(loaded.Pictures().Count(), 3U);
    EXPECT_TRUE(loaded.GetPicture(1) == first);
    EXPECT_TRUE(loaded.GetPicture(2).IsEmpty());
    EXPECT_TRUE(loaded.GetPicture(3) == second);
}

TEST_F(ImageBag, ADamagedEntryIsSkippedAndAMissingOneIsAnEmptyPicture) {
    const OlePicture first = PictureOfSize(6, 4), last = PictureOfSize(3, 3);
    PropertyBag stored;
    stored.WriteProperty(u"pics", 4);
    stored.WriteProperty(u"pic1", ValueOfPicture(first));
    stored.WriteProperty(u"Pic2", u"no picture");
    stored.WriteProperty(u"Pic4", ValueOfPicture(last));
    const ctlImageBag& loaded = LoadFrom(stored);
    ASSERT_EQ(loaded.Pictures().Count(), 3U);
    EXPECT_TRUE(loaded.GetPicture(1) == first);
    EXPECT_TRUE(loaded.GetPicture(2).IsEmpty());
    EXPECT_TRUE(loaded.GetPicture(3) == last);
}

TEST_F(ImageBag, ADamagedCountLoadsNothing) {
    for (const PropertyValue& count : {PropertyValue(u"many"), PropertyValue(-3), PropertyValue(1e12)}) {
        PropertyBag stored;
        stored.WriteProperty(u"Pics", count);
        stored.WriteProperty(u"Pic1", ValueOfPicture(PictureOfSize(6, 4)));
        const ctlImageBag& loaded = LoadFrom(stored);
        EXPECT_EQ(loaded.Pictures().Count(), 0U);
        form.Remove(loaded);
    }
}

TEST_F(ImageBag, TwoHundredPicturesComeBackFromTheBag) {
    auto& bag = Put<ctlImageBag>(20, 20);
    for (int n = 1; n <= 200; ++n)
        bag.Pictures().Add(PictureOfSize(n, 2));
    PropertyBag stored;
    bag.OnWriteProperties(stored);
    form.Remove(bag);
    const ctlImageBag& loaded = LoadFrom(stored);
    ASSERT_EQ(loaded.Pictures().Count(), 200U);
    for (int n = 1; n <= 200; ++n) {
        BITMAP record{};
        const OlePicture clone = loaded.GetPictureClone(n);
        GetObjectW(clone.Handle(), sizeof record, &record);
        EXPECT_EQ(record.bmWidth, n);
    }
}

TEST_F(ImageBag, IsNotShownAtRunTime) {
    EXPECT_FALSE(IsWindowVisible(Put<ctlImageBag>(20, 20).hwnd()));
    EXPECT_TRUE(IsWindowVisible(Put<ctlImageBag>(20, 20, false).hwnd()));
}

TEST_F(ImageBag, InDesignModeItsSizeIsTwiceThatOfItsIconWhateverItIsGiven) {
    auto& bag = Put<ctlImageBag>(100, 7, false);
    EXPECT_EQ(bag.Host().ScaleWidth(), 32);
    EXPECT_EQ(bag.Host().ScaleHeight(), 32);
    bag.Host().Size(50, 60);
    EXPECT_EQ(bag.Host().Width(), 32);
    EXPECT_EQ(bag.Host().Height(), 32);
    form.ScaleMode(ScaleUnit::Twips);
    form.UserMode(false);
    const auto& other = form.Add<ctlImageBag>(u"other", {0, 0, 1500, 1500});
    EXPECT_EQ(other.Host().Width(), 480);
    EXPECT_EQ(other.Host().ScaleWidth(), 32);
}

TEST_F(ImageBag, AtRunTimeItKeepsTheSizeItHas) {
    auto& bag = Put<ctlImageBag>(100, 7);
    EXPECT_EQ(bag.Host().Width(), 100);
    EXPECT_EQ(bag.Host().Height(), 7);
}

TEST_F(ImageBag, InDesignModeItsIconIsInTheMiddle) {
    form.BackColor(MakeColor(1, 2, 3));
    const auto& bag = Put<ctlImageBag>(100, 100, false);
    const Shot shown = Shown(bag);
    const auto back = static_cast<COLORREF>(ResolveColor(bag.Host().BackColor()));
    int nIcon = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            if (shown.At(x, y) == back) continue;
            ++nIcon;
            EXPECT_TRUE(x >= 8 && x < 24 && y >= 8 && y < 24) << x << ", " << y;
        }
    }
    EXPECT_GT(nIcon, 100);
}

TEST_F(ImageBag, RoundsOfBagsLeaveNothingBehind) {
    PropertyBag stored;
    stored.WriteProperty(u"Pics", 2);
    stored.WriteProperty(u"Pic1", ValueOfPicture(PictureOfSize(6, 4)));
    stored.WriteProperty(u"Pic2", u"no picture");
    const auto round = [&] {
        for (const bool bUserMode : {true, false}) {
            form.UserMode(bUserMode);
            ctlImageBag& bag = LoadFrom(stored);
            bag.GetPictureClone(1);
            PropertyBag again;
            bag.OnWriteProperties(again);
            Pump();
            form.Remove(bag);
        }
    };
    for (int n = 0; n < 5; ++n)
        round();
    const testing::GdiCensus before = testing::GdiCensus::Take();
    for (int n = 0; n < 200; ++n)
        round();
    EXPECT_EQ(testing::GdiCensus::Take(), before);
}

} // namespace
} // namespace orvanta
