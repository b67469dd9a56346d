#include "grid/SystemGridLocale.h"

#include "grid/RowOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;

std::string SystemKey(std::u16string_view s) {
    std::string sKey = "kept";
    SystemGridLocale().AppendSortKey(s, sKey);
    EXPECT_TRUE(sKey.starts_with("kept"));
    return sKey.substr(4);
}

TEST(SystemGridLocaleTest, TheSeparatorIsThatOfTheUsersNumbers) {
    EXPECT_EQ(SystemGridLocale().DecimalSeparator(), u'.');
}

TEST(SystemGridLocaleTest, CapitalsAreEqualAndLettersInOrder) {
    EXPECT_EQ(SystemKey(u"Apple"), SystemKey(u"aPPLE"));
    EXPECT_EQ(SystemKey(u"\u00C9t\u00E9"), SystemKey(u"\u00E9T\u00C9"));
    EXPECT_LT(SystemKey(u"a"), SystemKey(u"B"));
    EXPECT_LT(SystemKey(u"e"), SystemKey(u"\u00E9"));
    EXPECT_LT(SystemKey(u"\u00E9"), SystemKey(u"f")); // by the language, not by the code
    EXPECT_LT(SystemKey(u"appl"), SystemKey(u"apple"));
}

TEST(SystemGridLocaleTest, AnEmptyTextStandsBeforeAllOthers) {
    EXPECT_EQ(SystemKey(u""), "");
    EXPECT_LT(SystemKey(u""), SystemKey(u" "));
}

TEST(SystemGridLocaleTest, ALongTextHasAKeyToo) {
    const std::u16string sLong(5000, u'\u00E9');
    EXPECT_GT(SystemKey(sLong).size(), sLong.size());
    EXPECT_LT(SystemKey(sLong), SystemKey(sLong + u"a"));
}

TEST(SystemGridLocaleTest, RowsAreSortedByIt) {
    const SystemGridLocale locale;
    clsCtlUniGrid_Column column(locale);
    for (const char16_t* s : {u"f", u"\u00C9", u"e", u"E", u""})
        column.AddTextRow(s);
    EXPECT_THAT(AscendingRows(column, 5), ElementsAre(5, 3, 4, 2, 1));
}

} // namespace
} // namespace orvanta
