#include "plumbing/WideText.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace orvanta {
namespace {

TEST(WideText, TextGoesToAWideCallAndBack) {
    const std::u16string sText = u"\u00E9\u65E5\xD83D\xDE00";
    EXPECT_EQ(lstrlenW(WideOf(sText)), 4);
    std::u16string sBuffer(8, u'#');
    lstrcpynW(WideBuffer(sBuffer), WideOf(sText), 8);
    EXPECT_EQ(sBuffer.substr(0, 4), sText);
    EXPECT_EQ(TextOfWide(WideOf(sBuffer)), sText);
    EXPECT_EQ(TextOfWide(WideOf(sBuffer), 2), u"\u00E9\u65E5");
    EXPECT_EQ(TextOfWide(L""), u"");
}

} // namespace
} // namespace orvanta
