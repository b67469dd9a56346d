#include "plumbing/SharedNumbers.h"

#include "plumbing/DesignRun.h"
#include "plumbing/FaceStyle.h"
#include "plumbing/SharedInput.h"

#include <gtest/gtest.h>

namespace orvanta {
namespace {

TEST(SharedNumbers, AWordHasItsFirstByteLow) {
    EXPECT_EQ(MakeWord(0x34, 0x12), 0x1234);
    EXPECT_EQ(MakeWord(0xFF, 0xFF), -1);
    EXPECT_EQ(MakeWord(0, 0x80), -32768);
}

TEST(SharedNumbers, TheHalvesOfALongAreSigned) {
    EXPECT_EQ(LoWordOf(0x12345678), 0x5678);
    EXPECT_EQ(HiWordOf(0x12345678), 0x1234);
    EXPECT_EQ(LoWordOf(0x0001FFFF), -1);
    EXPECT_EQ(HiWordOf(0x0001FFFF), 1);
    EXPECT_EQ(LoWordOf(-1), -1);
    EXPECT_EQ(HiWordOf(-1), -1);
    EXPECT_EQ(HiWordOf(-65536), -1);
}

TEST(SharedNumbers, ALongIsMadeOfItsHalves) {
    EXPECT_EQ(MakeLongOf(0x5678, 0x1234), 0x12345678);
    EXPECT_EQ(MakeLongOf(-1, 0), 0xFFFF);
    EXPECT_EQ(MakeLongOf(0, -1), -65536);
    EXPECT_EQ(MakeLongOf(-2, -1), -2);
}

TEST(SharedNumbers, ACharacterIsItsCodeUnitWithoutASign) {
    EXPECT_EQ(AscWide(u"Axy"), 65);
    EXPECT_EQ(AscWide(u"\uFFFD"), 65533);
    EXPECT_EQ(ChrWide(65), u"A");
    EXPECT_EQ(ChrWide(65533), u"\uFFFD");
    EXPECT_EQ(ChrWide(0), std::u16string(1, u'\0'));
}

TEST(SharedNumbers, ANegativeCharacterNumberIsTakenAsA16BitOne) {
    EXPECT_EQ(ChrWide(-3), u"\uFFFD");
    EXPECT_EQ(ChrWide(-32768), u"\u8000");
}

TEST(SharedNumbers, WhatIsNoCodeUnitIsAnInvalidCall) {
    for (const std::int32_t i : {65536, -65537}) {
        try {
            ChrWide(i);
            ADD_FAILURE() << i;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 5u);
        }
    }
    EXPECT_THROW(AscWide(u""), Failure);
}

TEST(SharedInput, EachMousePointerHasItsCursor) {
    const std::int32_t ids[] = {32512, 32512, 32515, 32513, 32641, 32640, 32643, 32645,
                                32642, 32644, 32516, 32514, 32648, 32650, 32651, 32646};
    for (std::int32_t i = 0; i <= 15; ++i)
        EXPECT_EQ(MousePointerToCursorId(i), ids[i]) << i;
}

TEST(SharedInput, AnyOtherMousePointerHasNone) {
    EXPECT_EQ(MousePointerToCursorId(16), 0);
    EXPECT_EQ(MousePointerToCursorId(99), 0);
    EXPECT_EQ(MousePointerToCursorId(-1), 0);
}

TEST(FaceStyle, IsThreeUntilOneIsSetForTheProgram) {
    EXPECT_EQ(DefaultFaceStyle(), 3);
    EXPECT_EQ(ResolveFaceStyle(-1), 3);
    DefaultFaceStyle(6);
    EXPECT_EQ(DefaultFaceStyle(), 6);
    EXPECT_EQ(ResolveFaceStyle(-1), 6);
    EXPECT_EQ(ResolveFaceStyle(0), 0);
    EXPECT_EQ(ResolveFaceStyle(8), 8);
    ClearDefaultFaceStyle();
    EXPECT_EQ(ResolveFaceStyle(-1), 3);
}

TEST(DesignRun, IsNeverSoInTheBuiltSystem) {
    EXPECT_FALSE(IsDesignRun());
}

} // namespace
} // namespace orvanta
