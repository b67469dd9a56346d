#include "files/IniRows.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace orvanta {
namespace {

TEST(IniRow, IsCutAtItsFirstEqualsSign) {
    const IniRows vRows = {u"key=value", u"a=b=c", u"k=", u" key = value "};
    EXPECT_EQ(IniRowKey(vRows, 0), u"key");
    EXPECT_EQ(IniRowValue(vRows, 0), u"value");
    EXPECT_EQ(IniRowKey(vRows, 1), u"a");
    EXPECT_EQ(IniRowValue(vRows, 1), u"b=c");
    EXPECT_EQ(IniRowKey(vRows, 2), u"k");
    EXPECT_EQ(IniRowValue(vRows, 2), u"");
    EXPECT_EQ(IniRowKey(vRows, 3), u" key ");
    EXPECT_EQ(IniRowValue(vRows, 3), u" value ");
}

TEST(IniRow, WithoutKeyHasNeitherKeyNorValue) {
    const IniRows vRows = {u"", u"no sign", u"=value", u"=a=b", u"="};
    for (std::int32_t idx = 0; idx < 5; ++idx) {
        EXPECT_EQ(IniRowKey(vRows, idx), u"") << idx;
        EXPECT_EQ(IniRowValue(vRows, idx), u"") << idx;
    }
}

TEST(IniRow, OutsideTheListIsASubscriptFailure) {
    const IniRows vRows = {u"a=b"};
    for (const std::int32_t idx :
         {-1, 1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        for (auto* part : {IniRowKey, IniRowValue}) {
            try {
                part(vRows, idx);
                ADD_FAILURE() << "nothing was raised for " << idx;
            } catch (const Failure& failure) {
                EXPECT_EQ(failure.Number(), 9u);
            }
        }
    }
}

} // namespace
} // namespace orvanta
