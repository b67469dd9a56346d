#include "grid/GridPainter.h"

#include "base/Failure.h"
#include "tests/grid/FakeGrid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::GridOnFake;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::MakePicture;
using ::testing::Not;
using ::testing::StartsWith;

// Writes down what is drawn, one line each. Colours below are names where a test gave one.
class RecordingCanvas : public GridCanvas {
public:
    void DrawFrame(OleColor back, OleColor border) override { Add("frame", back, border); }
    void FillSurface(OleColor back) override { Add("surface", back); }
    void BeginSheet(OleColor back) override { Add("sheet", back); }
    void EndSheet() override { Add("end of sheet"); }
    void CopyFromSheet(std::int32_t x, std::int32_t width, std::int32_t yBelow) override {
        Add("copy", x, width, yBelow);
    }
    void DrawFace(Target target, const PixelRect& rect, OleColor back, bool bFocus, std::int32_t style) override {
        Add(On(target) + "face", At(rect), back, bFocus ? "focus" : "-", style);
    }
    void Fill(Target target, const PixelRect& rect, OleColor c) override { Add(On(target) + "fill", At(rect), c); }
    void Frame(Target target, const PixelRect& rect, OleColor c) override { Add(On(target) + "line", At(rect), c); }
    void Text(Target target, std::u16string_view s, const PixelRect& rect, OleColor c, std::uint32_t flags) override {
        if (bTextFails) throw InvalidProcedureCall();
        std::ostringstream hex;
        hex << std::hex << flags;
        Add(On(target) + "text", std::string(s.begin(), s.end()), At(rect), c, hex.str());
    }
    void DrawMark(Target target, Mark mark, const PixelRect& rect) override {
        Add(On(target) + (mark == Mark::Flag ? "flag" : mark == Mark::SortUp ? "up" : "down"), At(rect));
    }
    void DrawPicture(Target target, const CellPicture& picture, const PixelRect& rect, std::int32_t width,
                     std::int32_t height) override {
        Add(On(target) + "picture", picture.oPic->Width(), At(rect), width, height,
            picture.bPicTransparent ? "transparent" : "-", picture.bPicGrayed ? "grey" : "-", picture.lPicXTransp,
            picture.lPicYTransp, picture.lPicTranspColor);
    }

    std::vector<std::string> lines;
    bool bTextFails = false;

private:
    static std::string On(Target target) { return target == Target::Sheet ? "sheet " : ""; }
    static std::string At(const PixelRect& r) {
        std::ostringstream out;
        out << '(' << r.left << ' ' << r.top << ' ' << r.right << ' ' << r.bottom << ')';
        return out.str();
    }
    template<typename... Parts>
    void Add(const Parts&... parts) {
        std::ostringstream out;
        ((out << parts << ' '), ...);
        lines.push_back(out.str());
        lines.back().pop_back();
    }
};

constexpr OleColor kBack = 1000;
constexpr OleColor kFore = 1001;
constexpr OleColor kSelBack = 1002;
constexpr OleColor kSelFore = 1003;
constexpr OleColor kHeadBack = 1004;
constexpr OleColor kHeadFore = 1005;
constexpr OleColor kFrameLine = 1006;
constexpr OleColor kCellLine = 1007;

class GridPainterTest : public ::testing::Test, protected GridOnFake {
protected:
    RecordingCanvas canvas;

    void SetUp() override {
        grid->BackColor(kBack);
        grid->ForeColor(kFore);
        grid->SelBackColor(kSelBack);
        grid->SelForeColor(kSelFore);
        grid->HeaderBackColor(kHeadBack);
        grid->HeaderForeColor(kHeadFore);
        grid->BorderColor(kFrameLine);
        grid->CellsBorderColor(kCellLine);
        grid->HeaderStyle(4);
        grid->SelectorStyle(5);
    }
    std::vector<std::string> Painted(bool bEnabled = true) {
        canvas.lines.clear();
        EXPECT_TRUE(GridPainter(*grid, canvas).Paint(bEnabled, view.lWidth, view.lHeight));
        return canvas.lines;
    }
    // The lines that begin with these words.
    std::vector<std::string> LinesOf(const std::string& sBegin) {
        std::vector<std::string> found;
        for (const std::string& s : Painted())
            if (s.starts_with(sBegin)) found.push_back(s);
        return found;
    }
    void Fixed(const char16_t* sText, std::int32_t iWidth, bool bSortable = false, std::int32_t iType = 0) {
        grid->AddColumn(sText, iWidth, 0, sText, true, 0, bSortable, false, false, iType);
    }
};

TEST_F(GridPainterTest, AGridWithoutColumnsIsItsFrameAndGround) {
    EXPECT_THAT(Painted(), ElementsAre("frame 1000 1006", "surface 1000"));
}

TEST_F(GridPainterTest, AGridWithoutRowsIsItsHeader) {
    Fixed(u"A", 50);
    Fixed(u"B", 40, true);
    EXPECT_THAT(Painted(),
                ElementsAre("frame 1000 1006", "surface 1000", "face (0 0 50 19) 1004 - 4", "line (0 0 50 19) 1007",
                            "text A (4 0 45 19) 1005 824", "face (49 0 89 19) 1004 - 4", "line (49 0 89 19) 1007",
                            "text B (53 0 73 19) 1005 824")); // 11 less for the arrow
}

TEST_F(GridPainterTest, CellsFollowTheirHeaderAndShareTheirLines) {
    Fixed(u"A", 50);
    Fixed(u"B", 40);
    grid->AddRow(u"a\tb");
    grid->AddRow(u"c\td");
    EXPECT_THAT(Painted(),
                ElementsAre("frame 1000 1006", "surface 1000", "face (0 0 50 19) 1004 - 4", "line (0 0 50 19) 1007",
                            "text A (4 0 45 19) 1005 824", "fill (0 18 50 37) 1000", "line (0 18 50 37) 1007",
                            "text a (4 18 44 37) 1001 824", "fill (0 36 50 55) 1000", "line (0 36 50 55) 1007",
                            "text c (4 36 44 55) 1001 824", "face (49 0 89 19) 1004 - 4", "line (49 0 89 19) 1007",
                            "text B (53 0 84 19) 1005 824", "fill (49 18 89 37) 1000", "line (49 18 89 37) 1007",
                            "text b (53 18 83 37) 1001 824", "fill (49 36 89 55) 1000", "line (49 36 89 55) 1007",
                            "text d (53 36 83 55) 1001 824"));
}

TEST_F(GridPainterTest, AutomaticLinesAreDarkerThanTheGround) {
    grid->BackColor(0xFFFFFF);
    grid->BorderColor(-1);
    grid->CellsBorderColor(-1);
    Fixed(u"A", 50);
    const std::string sDarker = std::to_string(0xBBBBBB);
    EXPECT_THAT(Painted(), Contains("frame 16777215 " + sDarker));
    EXPECT_THAT(LinesOf("line"), ElementsAre("line (0 0 50 19) " + sDarker));
}

TEST_F(GridPainterTest, OnlyWhatIsSeenIsDrawn) {
    Fixed(u"A", 200);
    Fixed(u"hidden", 0);
    Fixed(u"B", 200);
    Fixed(u"C", 200);
    grid->Rows(100);
    grid->Layout().HScroll_Value(250);
    grid->Layout().VScroll_Value(20);
    // A ends at -50. B starts at -51 and C at 148. From the header to 184 and a line below the bar: rows 21 to 31.
    EXPECT_THAT(LinesOf("face"), ElementsAre("face (-51 0 149 19) 1004 - 4", "face (148 0 348 19) 1004 - 4"));
    const std::vector<std::string> cells = LinesOf("fill (148");
    ASSERT_EQ(cells.size(), 11u);
    EXPECT_EQ(cells.front(), "fill (148 18 348 37) 1000");
    EXPECT_EQ(cells.back(), "fill (148 198 348 217) 1000");
    grid->Layout().HScroll_Value(0);
    EXPECT_EQ(LinesOf("face").size(), 2u); // C starts at 398, behind the right edge
}

TEST_F(GridPainterTest, AColumnThatEndsAtTheLeftEdgeIsStillDrawn) {
    Fixed(u"A", 200);
    Fixed(u"B", 300);
    grid->Layout().HScroll_Value(200);
    ASSERT_EQ(grid->Layout().HScroll_Value(), 199);
    EXPECT_EQ(LinesOf("face").front(), "face (-199 0 1 19) 1004 - 4");
}

TEST_F(GridPainterTest, CellColorsOfTheirOwnWinOverThoseOfTheGrid) {
    Fixed(u"A", 50);
    grid->AddRow(u"a");
    grid->CellForeColor(1, u"A", 7);
    grid->CellBackColor(1, u"A", 8);
    EXPECT_THAT(Painted(), Contains("fill (0 18 50 37) 8"));
    EXPECT_THAT(Painted(), Contains("text a (4 18 44 37) 7 824"));
}

TEST_F(GridPainterTest, TheCurrentRowIsAFaceInTheColorsOfTheSelection) {
    Fixed(u"A", 50);
    grid->AddRow(u"a");
    grid->CellForeColor(1, u"A", 7);
    grid->Row(1);
    EXPECT_THAT(Painted(), Contains("face (0 18 50 37) 1002 - 5"));
    EXPECT_THAT(Painted(), Contains("text a (4 18 44 37) 1003 824")); // the cell's own colour waits
    grid->Row(-1);
    EXPECT_THAT(Painted(), Contains("text a (4 18 44 37) 7 824"));
}

TEST_F(GridPainterTest, WithMultiSelectTheFlagGivesTheColorsAndTheCurrentRowTheFace) {
    Fixed(u"A", 50);
    grid->MultiSelect(true);
    grid->Rows(3);
    grid->Row(1);
    grid->RowSel(2, true);
    EXPECT_THAT(Painted(), Contains("face (0 18 50 37) 1000 - 5")); // current, not selected
    EXPECT_THAT(Painted(), Contains("fill (0 36 50 55) 1002"));     // selected, not current
    EXPECT_THAT(Painted(), Contains("fill (0 54 50 73) 1000"));
    grid->RowSel(1, true);
    EXPECT_THAT(Painted(), Contains("face (0 18 50 37) 1002 - 5"));
}

TEST_F(GridPainterTest, TheFocusMarkNeedsFocusAnEnabledGridAndTheWish) {
    Fixed(u"A", 50);
    grid->Rows(1);
    grid->Row(1);
    grid->EnterFocus();
    EXPECT_THAT(Painted(), Contains("face (0 18 50 37) 1002 focus 5"));
    EXPECT_THAT(Painted(false), Contains("face (0 18 50 37) 1002 - 5"));
    grid->ShowFocus(false);
    EXPECT_THAT(Painted(), Contains("face (0 18 50 37) 1002 - 5"));
    grid->ShowFocus(true);
    grid->ExitFocus();
    EXPECT_THAT(Painted(), Contains("face (0 18 50 37) 1002 - 5"));
}

TEST_F(GridPainterTest, AlignmentsThatAreNoneMeanLeftInCellsAndRightInHeaders) {
    Fixed(u"A", 50);
    grid->AddRow(u"a");
    std::vector<std::string> flags;
    for (const std::int32_t iAlign : {0, 1, 2, 3, -1}) {
        grid->ColAlign(u"A", iAlign);
        grid->ColHeaderAlign(u"A", iAlign);
        for (const std::string& s : LinesOf("text"))
            flags.push_back(s.substr(s.rfind(' ') + 1));
    }
    EXPECT_THAT(flags, ElementsAre("824", "824", "826", "826", "825", "825", "826", "824", "826", "824"));
    grid->ColRightToLeft(u"A", true);
    EXPECT_THAT(LinesOf("text"), ElementsAre("text A (4 0 45 19) 1005 20826", "text a (4 18 44 37) 1001 20824"));
}

TEST_F(GridPainterTest, TheArrowStandsAtTheRightOfTheSortedHeader) {
    Fixed(u"A", 50, true);
    Fixed(u"B", 50, true);
    grid->Rows(2);
    EXPECT_THAT(LinesOf("down"), IsEmpty());
    grid->SortByColum(u"B", true);
    EXPECT_THAT(LinesOf("down"), ElementsAre("down (89 0 99 19)"));
    grid->SortByColum(std::int32_t{1}, false);
    EXPECT_THAT(LinesOf("up"), ElementsAre("up (40 0 50 19)"));
    EXPECT_THAT(LinesOf("down"), IsEmpty());
    grid->Clear(false);
    EXPECT_THAT(LinesOf("up"), IsEmpty());
}

TEST_F(GridPainterTest, ANarrowSortableHeaderKeepsAnEmptyTextRectangle) {
    Fixed(u"A", 12, true);
    EXPECT_THAT(LinesOf("text"), ElementsAre("text A (4 0 4 19) 1005 824"));
}

TEST_F(GridPainterTest, FlagsShowTheirMarkAndOtherTypesAnEmptyText) {
    Fixed(u"F", 50, false, 2);
    Fixed(u"O", 50, false, 9);
    grid->AddRow(u"True\tx");
    grid->AddRow(u"False\tx");
    EXPECT_THAT(LinesOf("flag"), ElementsAre("flag (4 18 44 37)"));
    EXPECT_THAT(LinesOf("text  ("), ElementsAre("text  (53 18 93 37) 1001 824", "text  (53 36 93 55) 1001 824"));
}

TEST_F(GridPainterTest, APictureIsDrawnOverTheTextInsideTheCell) {
    Fixed(u"A", 50);
    grid->AddRow(u"a");
    grid->SetCellPicture(1, u"A", MakePicture(9, 9), false, true, 3, 4, 5);
    const std::vector<std::string> lines = Painted();
    EXPECT_EQ(lines[lines.size() - 2], "text a (4 18 44 37) 1001 824");
    EXPECT_EQ(lines.back(), "picture 9 (2 20 48 35) 50 13 - grey 3 4 5");
}

TEST_F(GridPainterTest, TheOwnerIsAskedAboutEachCellDrawnAndMaySupplyAPicture) {
    Fixed(u"A", 50);
    Fixed(u"B", 50);
    grid->Rows(100);
    const GridPictureRef supplied = MakePicture(11, 11);
    std::vector<std::int32_t> rows;
    grid->OnOwnerDrawPicture.Add([&](std::int32_t iCol, const TaggedValue&, std::int32_t iRow, GridPictureRef& oPic,
                                     std::int32_t&, std::int32_t&, bool&, bool& bGrayed, std::int32_t&, std::int32_t&,
                                     OleColor&) {
        EXPECT_EQ(grid->OwnerDrawState(), 1);
        if (iCol == 2) rows.push_back(iRow);
        if (iCol == 2 && iRow == 3) oPic = supplied;
        bGrayed = true;
    });
    EXPECT_THAT(LinesOf("picture"), ElementsAre("picture 11 (51 56 97 71) 50 13 transparent grey 0 0 -1"));
    EXPECT_THAT(rows, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST_F(GridPainterTest, RowsOfManyLinesAreDrawnOnASheetAndCopiedUnderTheHeader) {
    grid->AllowMultiLineText(true);
    Fixed(u"A", 100);
    grid->AddRow(u"one");
    grid->AddRow(u"one\r\ntwo");
    grid->AddRow(u"three");
    EXPECT_THAT(Painted(), ElementsAre("frame 1000 1006", "surface 1000", "sheet 1000", "face (0 0 100 19) 1004 - 4",
                                       "line (0 0 100 19) 1007", "text A (4 0 95 19) 1005 824",
                                       "sheet fill (0 0 100 19) 1000", "sheet line (0 0 100 19) 1007",
                                       "sheet text one (4 3 94 19) 1001 810", "sheet fill (0 18 100 50) 1000",
                                       "sheet line (0 18 100 50) 1007", "sheet text one\r\ntwo (4 21 94 50) 1001 810",
                                       "sheet fill (0 49 100 68) 1000", "sheet line (0 49 100 68) 1007",
                                       "sheet text three (4 52 94 68) 1001 810", "copy 0 100 19", "end of sheet"));
}

TEST_F(GridPainterTest, ARowPartlyScrolledUnderTheHeaderStartsAboveTheSheet) {
    grid->AllowMultiLineText(true);
    view.lHeight = 60;
    Fixed(u"A", 100);
    for (int n = 0; n < 9; ++n)
        grid->AddRow(u"one");
    grid->Layout().VScroll_Value(25);
    EXPECT_EQ(LinesOf("sheet fill").front(), "sheet fill (0 -6 100 13) 1000"); // row 2 is at 19
    EXPECT_EQ(LinesOf("copy").front(), "copy 0 100 19");
}

TEST_F(GridPainterTest, ATextIsCentredInATallRowRoundedHalfToEven) {
    grid->AllowMultiLineText(true);
    Fixed(u"A", 100);
    grid->AddRow(u"one");
    for (const auto& [iPicture, sText] : std::map<std::int32_t, std::string>{
             {17, "sheet text one (4 3 94 23) 1001 810"}, {18, "sheet text one (4 3 94 24) 1001 810"}}) {
        grid->SetCellPicture(1, u"A", MakePicture(5, iPicture));
        EXPECT_THAT(Painted(), Contains(sText)) << iPicture; // the measured height is the picture's
    }
    grid->MinRowHeight(20); // (20 - 13) / 2 is 3.5
    grid->SetCellPicture(1, u"A", nullptr);
    EXPECT_THAT(Painted(), Contains("sheet text one (4 4 94 20) 1001 810"));
    grid->MinRowHeight(22); // 4.5
    EXPECT_THAT(Painted(), Contains("sheet text one (4 4 94 22) 1001 810"));
}

TEST_F(GridPainterTest, AStepThatFailsIsLeftOutAndTheRestDrawn) {
    Fixed(u"A", 50);
    grid->AddColumn(u"N", 50, 0, u"N", true, 0, false, false, false, 1);
    grid->AddRow(u"a\t123");
    grid->SetColFormat(u"N", u"", u"", 2, -1, false, true, false); // more digits than wanted
    const std::vector<std::string> lines = Painted();
    EXPECT_EQ(lines.back(), "line (49 18 99 37) 1007");
    grid->SetCellPicture(1, u"N", MakePicture(4, 4));
    EXPECT_THAT(Painted().back(), StartsWith("picture 4"));
    canvas.bTextFails = true;
    EXPECT_EQ(LinesOf("fill").size(), 2u);
}

TEST_F(GridPainterTest, AnOwnerMayEmptyOrEndTheGridWhileItIsDrawn) {
    Fixed(u"A", 50);
    Fixed(u"B", 50);
    grid->Rows(3);
    const auto token = grid->OnOwnerDrawPicture.Add(
        [this](std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&, std::int32_t&, std::int32_t&, bool&,
               bool&, std::int32_t&, std::int32_t&, OleColor&) { grid->Clear(true); });
    EXPECT_EQ(LinesOf("face").size(), 1u);
    grid->OnOwnerDrawPicture.Remove(token);
    Fixed(u"A", 50);
    grid->Rows(3);
    grid->OnOwnerDrawPicture.Add([this](std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&, std::int32_t&,
                                        std::int32_t&, bool&, bool&, std::int32_t&, std::int32_t&,
                                        OleColor&) { grid.reset(); });
    EXPECT_FALSE(GridPainter(*grid, canvas).Paint(true, view.lWidth, view.lHeight));
}

TEST_F(GridPainterTest, ThePreviewIsFourCellsWithTheNameInTheLast) {
    GridPainter(*grid, canvas).PaintPreview(u"Grid1");
    EXPECT_THAT(canvas.lines,
                ElementsAre("frame 1000 1006", "surface 1000", "face (0 0 50 15) 1004 - 4", "line (0 0 50 15) 1007",
                            "face (49 0 100 15) 1004 - 4", "line (49 0 100 15) 1007", "face (0 14 50 30) 1002 - 5",
                            "line (0 14 50 30) 1007", "face (49 14 100 30) 1002 - 5", "line (49 14 100 30) 1007",
                            "text Grid1 (51 16 98 28) 1003 824"));
}

} // namespace
} // namespace orvanta
