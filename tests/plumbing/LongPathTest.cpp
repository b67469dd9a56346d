#include "plumbing/LongPath.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(LongPath, LocalAndRelativePathsGetThePrefix) {
    EXPECT_EQ(LongPathPrefix(u"C:\\a\\b.txt", 11), u"\\\\?\\C:\\a\\b.txt");
    EXPECT_EQ(LongPathPrefix(u"b.txt", 11), u"\\\\?\\b.txt");
    EXPECT_EQ(LongPathPrefix(u"\\b.txt", 11), u"\\\\?\\\\b.txt");
    EXPECT_EQ(LongPathPrefix(u"", 11), u"\\\\?\\");
}

TEST(LongPath, NetworkPathsAndPrefixedPathsAreLeftAlone) {
    EXPECT_EQ(LongPathPrefix(u"\\\\server\\share\\b.txt", 11), u"\\\\server\\share\\b.txt");
    EXPECT_EQ(LongPathPrefix(u"\\\\?\\C:\\b.txt", 11), u"\\\\?\\C:\\b.txt");
    EXPECT_EQ(LongPathPrefix(u"\\\\", 11), u"\\\\");
}

TEST(LongPath, SystemsBelowNt4DoNotGetThePrefix) {
    for (const std::int32_t lClass : {0, 1, 2, 3, 4, 5, 6})
        EXPECT_EQ(LongPathPrefix(u"C:\\a", lClass), u"C:\\a") << lClass;
    for (const std::int32_t lClass : {7, 8, 9, 10, 11}) {
        EXPECT_EQ(LongPathPrefix(u"C:\\a", lClass), u"\\\\?\\C:\\a") << lClass;
    }
}

} // namespace
} // namespace orvanta
