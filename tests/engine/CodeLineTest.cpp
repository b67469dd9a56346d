#include "engine/CodeLine.h"

#include "tests/support/Unicode.h"

#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

TEST(CodeLine, AStartIsASubBetweenBlanksOrAtTheBeginningOrAFunctionAnywhere) {
    for (const char16_t* sLine : {u"Private Sub A()", u"Sub A()", u"x Sub ", u"' the Sub is here", u"Exit Sub : x",
                                  u"Function A()", u"Function ", u"Public Function A()", u"Declare Function A Lib",
                                  u"myFunction x", u"s = \"Function \"", u"\t Sub A()"})
        EXPECT_EQ(KindOfCodeLine(sLine), CodeLineKind::ProcedureStart) << testing::ToUtf8(sLine);
}

TEST(CodeLine, OtherWordingIsNoStart) {
    for (const char16_t* sLine : {u"", u"\tSub A()", u"Sub\tA", u"xSub A", u"Exit Sub", u"private sub a()", u"Function",
                                  u"Functions ", u"Property Get A()", u" Subs ", u"GoSub A", u"FUNCTION A"})
        EXPECT_EQ(KindOfCodeLine(sLine), CodeLineKind::Plain) << testing::ToUtf8(sLine);
}

TEST(CodeLine, AnEndStandsAtTheFirstColumn) {
    for (const char16_t* sLine :
         {u"End Sub", u"End Function", u"End Sub' x", u"End Subs", u"End Function'", u"End Sub\t"})
        EXPECT_EQ(KindOfCodeLine(sLine), CodeLineKind::ProcedureEnd) << testing::ToUtf8(sLine);
    for (const char16_t* sLine :
         {u" End Sub", u"\tEnd Sub", u"End  Sub", u"end sub", u"End Property", u"End If", u"x: End Sub"})
        EXPECT_EQ(KindOfCodeLine(sLine), CodeLineKind::Plain) << testing::ToUtf8(sLine);
}

TEST(CodeLine, AnEndWithAWordBehindABlankIsAStart) {
    EXPECT_EQ(KindOfCodeLine(u"End Sub ' note"), CodeLineKind::ProcedureStart);
    EXPECT_EQ(KindOfCodeLine(u"End Function ' note"), CodeLineKind::ProcedureStart);
    EXPECT_EQ(KindOfCodeLine(u"End Sub 'x Function y"), CodeLineKind::ProcedureStart);
}

TEST(CodeLine, AKindIsFoundFarIntoALongLine) {
    EXPECT_EQ(KindOfCodeLine(std::u16string(1000, u'S') + u" Sub "), CodeLineKind::ProcedureStart);
    EXPECT_EQ(KindOfCodeLine(std::u16string(1000, u'u') + u" Sub"), CodeLineKind::Plain);
}

struct CallCase {
    const char16_t* sLine;
    bool bHasArgs;
    const char16_t* sWanted;
};

TEST(CodeLine, TheArgumentGoesToTheFirstCallOfTheLine) {
    const CallCase cases[] = {
        // without brackets
        {u"Text1_KeyPress KeyAscii", true, u"Text1_KeyPress KeyAscii,  0"},
        {u"Text1_KeyPress", false, u"Text1_KeyPress 0"},
        {u"Text1_KeyPress ' again", false, u"Text1_KeyPress  0' again"},
        {u"Text1_KeyPress'", true, u"Text1_KeyPress,  0'"},
        {u"Text1_KeyPress Asc(\"'\") ' x", true, u"Text1_KeyPress Asc(\"'\") ,  0' x"},
        {u"Text1_KeyPress \"it's", true, u"Text1_KeyPress \"it's,  0"}, // a quote left open hides the rest
        {u"Text1_KeyPress \"\"'", true, u"Text1_KeyPress \"\",  0'"},
        {u"x = \"Text1_KeyPress ' y", true, u"x = \"Text1_KeyPress ,  0' y"}, // the scan starts at the handler
        {u"' Text1_KeyPress", true, u"' Text1_KeyPress,  0"},
        {u"Text1_KeyPress 1: Text1_KeyPress 2", true, u"Text1_KeyPress 1: Text1_KeyPress 2,  0"},
        // with brackets
        {u"Call Text1_KeyPress(13)", true, u"Call Text1_KeyPress(13,  0)"},
        {u"Call Text1_KeyPress()", false, u"Call Text1_KeyPress( 0)"},
        {u"Call Text1_KeyPress(Asc(Left(s, 1))) ' x", true, u"Call Text1_KeyPress(Asc(Left(s, 1)),  0) ' x"},
        {u"Call Text1_KeyPress(\")\")", true, u"Call Text1_KeyPress(\",  0)\")"}, // quotes play no part
        {u"Call Text1_KeyPress(1", true, u"Call Text1_KeyPress(1"},
        {u"Text1_KeyPress(1): Text1_KeyPress(2)", true, u"Text1_KeyPress(1,  0): Text1_KeyPress(2)"},
        {u"(Text1_KeyPress(1))", true, u"(Text1_KeyPress(1,  0))"},
        // "(" behind a later occurrence counts for the test, and the scan starts at the first
        {u"Text1_KeyPress x: Text1_KeyPress(2)", true, u"Text1_KeyPress x: Text1_KeyPress(2,  0)"},
        {u"Text1_KeyPress f(x): Text1_KeyPress(2)", true, u"Text1_KeyPress f(x,  0): Text1_KeyPress(2)"},
    };
    for (const CallCase& c : cases) {
        const std::u16string_view sLine = c.sLine;
        EXPECT_EQ(WithArgument(sLine, u"Text1_KeyPress", sLine.find(u"Text1_KeyPress"), c.bHasArgs), c.sWanted)
            << testing::ToUtf8(sLine);
    }
}

// A ")" in front of the first "(" makes the count negative, and the "(" that brings it back to 0 ends nothing: only a
// ")" is compared with 0.
TEST(CodeLine, TheBracketScanComparesItsCountAtClosingBracketsOnly) {
    const std::u16string_view sHandler = u"0)Text1_Click";
    EXPECT_EQ(WithArgument(u"0)Text1_Click(a)", sHandler, 0, true), u"0)Text1_Click(a)");
    EXPECT_EQ(WithArgument(u"0)Text1_Click((a))", sHandler, 0, true), u"0)Text1_Click((a,  0))");
    EXPECT_EQ(WithArgument(u"0)Text1_Click(a(b), c) d", sHandler, 0, true), u"0)Text1_Click(a(b,  0), c) d");
}

} // namespace
} // namespace orvanta
