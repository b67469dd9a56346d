#include "base/Failure.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace orvanta {
namespace {

struct Standard {
    Failure (*make)();
    std::uint32_t lNumber;
    const char16_t* sDescription;
};

TEST(Failure, TheRunTimeFailuresHaveTheirStandardNumbersAndTextsAndNoSource) {
    const Standard table[] = {
        {InvalidProcedureCall, 5, u"Invalid procedure call or argument"},
        {Overflow, 6, u"Overflow"},
        {SubscriptOutOfRange, 9, u"Subscript out of range"},
        {DivisionByZero, 11, u"Division by zero"},
        {TypeMismatch, 13, u"Type mismatch"},
        {KeyAlreadyInUse, 457, u"This key is already associated with an element of this collection"},
    };
    for (const Standard& row : table) {
        const Failure failure = row.make();
        EXPECT_EQ(failure.Number(), row.lNumber);
        EXPECT_EQ(failure.Source(), u"") << row.lNumber;
        EXPECT_EQ(failure.Description(), row.sDescription) << row.lNumber;
    }
}

TEST(Failure, TheSystemsOwnFailuresCarryOneNumber) {
    const Failure failure = OwnFailure(u"ufu_TextFileToString", u"Error reading file");
    EXPECT_EQ(failure.Number(), 0x80040001u);
    EXPECT_EQ(failure.Source(), u"ufu_TextFileToString");
    EXPECT_EQ(failure.Description(), u"Error reading file");
}

TEST(Failure, IsCaughtAsAStandardExceptionWithItsTextInAscii) {
    try {
        throw Failure(0x80040000u | 1001u, u"App.WindowProc", u"Größe \u20AC");
    } catch (const std::exception& e) {
        EXPECT_STREQ(e.what(), "Gr??e ?");
    }
}

} // namespace
} // namespace orvanta
