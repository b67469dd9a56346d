#include "controls/contract/DataObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvanta::testing {

namespace {

using ::testing::ElementsAre;

TEST(DataObject, HoldsEachFormatInItsOwnForm) {
    DataObject data;
    data.SetText(u"schön");
    data.SetFiles({u"C:\\a.txt", u"C:\\b.txt"});
    data.SetBytes({1, 2, 3}, 300);
    EXPECT_THAT(data.Formats(), ElementsAre(kFormatUnicodeText, kFormatFiles, 300));
    EXPECT_EQ(data.GetText(), u"schön");
    EXPECT_THAT(data.Files(), ElementsAre(u"C:\\a.txt", u"C:\\b.txt"));
    EXPECT_EQ(data.GetBytes(300), (PropertyBytes{1, 2, 3}));
    EXPECT_FALSE(data.GetFormat(kFormatText));
    data.Clear();
    EXPECT_FALSE(data.GetFormat(300));
    EXPECT_EQ(data.GetText(), u"");
}

TEST(DataObject, APromisedFormatIsBroughtWhenItIsAskedFor) {
    DataObject data;
    int nAsked = 0;
    data.SetFormat(kFormatUnicodeText);
    EXPECT_TRUE(data.GetFormat(kFormatUnicodeText));
    EXPECT_EQ(data.GetText(), u"");
    data.BringsPromised([&](std::int16_t iFormat) -> std::optional<DataObject::Content> {
        EXPECT_EQ(iFormat, kFormatUnicodeText);
        ++nAsked;
        return DataObject::Content{u"late", {}, {}};
    });
    EXPECT_FALSE(data.Stored(kFormatUnicodeText));
    EXPECT_EQ(nAsked, 0);
    EXPECT_EQ(data.GetText(), u"late");
    EXPECT_EQ(data.GetText(kFormatText), u"");
    EXPECT_EQ(nAsked, 1);
}

TEST(DataObject, WhoBringsTheDataMayPutItIntoTheObjectItself) {
    DataObject data;
    data.SetFormat(kFormatText);
    data.BringsPromised([&data](std::int16_t iFormat) {
        data.BringsPromised(nullptr);
        data.SetText(u"kept", iFormat);
        return data.Stored(iFormat);
    });
    EXPECT_EQ(data.GetText(kFormatText), u"kept");
    EXPECT_EQ(data.GetText(kFormatText), u"kept");
}

} // namespace

} // namespace orvanta::testing
