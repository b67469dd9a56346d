#include "plumbing/ProgramFailure.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(ProgramFailure, TheProgramsNameHasNeitherFolderNorExtension) {
    EXPECT_EQ(ExecutableName(), u"plumbing_windows_tests");
}

TEST(ProgramFailure, ACodeAboveAThousandIsOredIntoTheNumber) {
    const Failure failure = PlumbingFailure(13651, u"what happened");
    EXPECT_EQ(failure.Number(), 0x80043553u);
    EXPECT_EQ(failure.Source(), u"plumbing_windows_tests.WindowProc");
    EXPECT_EQ(failure.Description(), u"what happened");
    EXPECT_EQ(PlumbingFailure(1001, u"").Number(), 0x800403E9u);
}

TEST(ProgramFailure, ACodeUpToAThousandIsRaisedAsItStandsWithItsStandardText) {
    const Failure invalid = PlumbingFailure(5, u"not this text");
    EXPECT_EQ(invalid.Number(), 5u);
    EXPECT_EQ(invalid.Description(), u"Invalid procedure call or argument");
    EXPECT_EQ(PlumbingFailure(6, u"").Description(), u"Overflow");
    EXPECT_EQ(PlumbingFailure(1000, u"").Number(), 1000u);
    EXPECT_EQ(PlumbingFailure(1000, u"").Description(), u"Application-defined or object-defined error");
}

} // namespace
} // namespace orvanta
