#include "grid/GridLayout.h"

#include "base/Rounding.h"
#include "grid/CheckedLong.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace orvanta {

namespace {

constexpr std::int32_t kCellPadding = 6;    // above and below a text together
constexpr std::int32_t kColumnPadding = 10; // left and right
constexpr std::int32_t kArrowGap = 2;
constexpr std::int32_t kNothingChanged = std::numeric_limits<std::int32_t>::max();

// All that the text of a number depends on beside the number.
std::u16string FormatOf(const clsCtlUniGrid_Column& column) {
    if (column.iType != 1) return {};
    const auto unit = [](int i) { return static_cast<char16_t>(i); };
    std::u16string s = column.sNumDecSep;
    s.append({u'\0', unit(column.bNumSign), unit(column.bNumAutoDecSep), unit(column.bNumAutoValSep)});
    s.append({unit(column.iNumFixInt), unit(column.iNumFixDec), column.Locale().DecimalSeparator()});
    return s.append(column.sNumValSep);
}

} // namespace

bool GridLayout::CalcSizes() {
    const std::int32_t lCols = m_columns.Count();
    if (lCols == 0) return true;
    MeasureRowHeight();
    for (std::int32_t iCol = 1; iCol <= lCols; ++iCol) {
        const GridColumns::Ref column = m_columns.At(iCol);
        if (!MeasureColumn(*column, iCol)) return false;
    }
    if (AllowMultiLineText) {
        PlaceRows();
    } else {
        m_lPlacedRowHeight = -1;
    }
    SumWidths();
    return true;
}

void GridLayout::MeasureRowHeight() {
    const std::uint64_t nFont = m_view.FontStamp();
    if (m_lTextLineHeight == 0 || nFont != m_nTextLineFont) {
        std::int32_t w = 0;
        m_view.MeasureTextLine(u"Xg", w, m_lTextLineHeight);
        m_nTextLineFont = nFont;
    }
    m_iRowHeight = std::max(RoundToInteger<std::int16_t>(m_lTextLineHeight + kCellPadding), MinRowHeight);
}

// The steps are those of measuring every cell. Rows that count already and did not change are left out as long as no
// owner wants to be asked about them.
bool GridLayout::MeasureColumn(GridColumns::Column& column, std::int32_t iCol) {
    const bool bFixed = column.iMaxWidth != -1;
    column.iCurrentWidth = bFixed ? column.iMaxWidth : 0;
    if (bFixed && !AllowMultiLineText) return true;

    GridColumns::Column::Findings found = column.Found();
    const bool bUseWidth = bFixed;
    const std::int32_t lWrapWidth = bUseWidth ? column.iMaxWidth : 0;
    const std::uint64_t nFont = m_view.FontStamp();
    std::u16string sFormat = FormatOf(column);
    const bool bSameRule = found.nFont == nFont && found.bMultiLine == AllowMultiLineText &&
                           found.bUseWidth == bUseWidth && found.lWrapWidth == lWrapWidth &&
                           found.iType == column.iType && found.sFormat == sFormat;
    const bool bOwner = m_ownerDraw.HasHandlers();
    const bool bEveryCell = !bSameRule || bOwner || found.bOwnerAsked;
    if (!bSameRule) column.ForgetMeasures();
    if (found.nFont != nFont) found.lHeaderWidth = -1;
    if (AllowMultiLineText) column.KeepHeights();

    const std::int32_t lWidth = bFixed ? 0 : HeaderWidth(column, found);
    const std::int32_t lLast = AllowMultiLineText ? column.Rows() : std::min(column.Rows(), kLastMeasuredRow);
    const std::int32_t iHeightsFrom = bEveryCell ? 1 : column.ChangedFrom();
    const bool bAppended = !bEveryCell && column.ChangedFrom() > found.lRows;
    const std::int32_t iFrom = bAppended ? found.lRows + 1 : bFixed ? iHeightsFrom : 1;
    std::int32_t lWidest = bAppended ? found.lWidest : 0;
    if (lLast >= 1) m_lOwnerDrawState = 0;
    for (std::int32_t iRow = iFrom; iRow <= lLast; ++iRow) {
        CellStore::Measure measure{};
        if (!MeasureCell(column, iCol, iRow, measure)) return false;
        lWidest = std::max(lWidest, measure.lWidth);
        if (AllowMultiLineText && iRow >= iHeightsFrom) column.SettleTextHeight(iRow, measure.lHeight);
    }
    if (!bFixed) column.iCurrentWidth = CheckedLong(std::int64_t{std::max(lWidth, lWidest)} + kColumnPadding);

    if (AllowMultiLineText) m_lResizedFrom = std::min(m_lResizedFrom, iHeightsFrom);
    found.nFont = nFont;
    found.bMultiLine = AllowMultiLineText;
    found.bUseWidth = bUseWidth;
    found.lWrapWidth = lWrapWidth;
    found.iType = column.iType;
    found.sFormat = std::move(sFormat);
    found.bOwnerAsked = bOwner;
    found.lRows = lLast;
    found.lWidest = lWidest;
    column.Settled(std::move(found));
    return true;
}

std::int32_t GridLayout::HeaderWidth(const GridColumns::Column& column, GridColumns::Column::Findings& found) {
    if (found.lHeaderWidth < 0 || found.sHeader != column.sText) {
        std::int32_t h = 0;
        found.lHeaderWidth = 0;
        m_view.MeasureTextLine(column.sText, found.lHeaderWidth, h);
        found.sHeader = column.sText;
    }
    return found.lHeaderWidth + (column.bSortable ? kSortArrowWidth + kArrowGap : 0);
}

bool GridLayout::MeasureCell(GridColumns::Column& column, std::int32_t iCol, std::int32_t iRow,
                             CellStore::Measure& measure) {
    measure = MeasureText(column, iRow);
    std::int32_t iWidth = 0;
    std::int32_t iHeight = 0;
    if (m_ownerDraw.HasHandlers()) {
        const std::weak_ptr<const bool> alive = Watch();
        const OwnerPicture picture = AskOwner(column, iCol, iRow, 0);
        if (alive.expired()) return false;
        iWidth = picture.iWidth;
        iHeight = picture.iHeight;
    } else if (const GridPictureRef& oPic = column.Cells().Picture(iRow).oPic) {
        iWidth = oPic->Width();
        iHeight = oPic->Height();
    }
    measure.lWidth = std::max(measure.lWidth, iWidth);
    measure.lHeight = std::max(measure.lHeight, iHeight);
    return true;
}

CellStore::Measure GridLayout::MeasureText(GridColumns::Column& column, std::int32_t iRow) {
    if (column.iType == 2) return {kFlagSize, kFlagSize};
    if (column.iType != 0 && column.iType != 1) return {0, 0};
    if (const auto remembered = column.Remembered(iRow)) return *remembered;
    const bool bUseWidth = column.iMaxWidth != -1; // a fixed column is measured for its heights only
    std::u16string sBuffer;
    const std::u16string_view s = column.DisplayText(iRow, sBuffer);
    CellStore::Measure measure{bUseWidth ? column.iMaxWidth : 0, 0};
    if (AllowMultiLineText && column.iType == 0) {
        m_view.MeasureTextBlock(s, bUseWidth, measure.lWidth, measure.lHeight);
    } else {
        m_view.MeasureTextLine(s, measure.lWidth, measure.lHeight);
    }
    column.Remember(iRow, measure);
    return measure;
}

OwnerPicture GridLayout::AskOwner(const GridColumns::Column& column, std::int32_t iCol, std::int32_t iRow,
                                  std::int32_t lState) {
    m_lOwnerDrawState = lState;
    OwnerPicture picture;
    picture.cell = column.GetPicture(iRow);
    if (picture.cell.oPic) {
        picture.iWidth = picture.cell.oPic->Width();
        picture.iHeight = picture.cell.oPic->Height();
    }
    CellPicture& cell = picture.cell;
    m_ownerDraw.Raise(iCol, column.vKey, iRow, cell.oPic, picture.iWidth, picture.iHeight, cell.bPicTransparent,
                      cell.bPicGrayed, cell.lPicXTransp, cell.lPicYTransp, cell.lPicTranspColor);
    return picture;
}

// Row 2 starts at the full height of row 1, each later row overlaps its upper neighbour by its border line.
void GridLayout::PlaceRows() {
    if (m_nPlacedColumns != m_columns.Version() || m_lPlacedRowHeight != m_iRowHeight) m_lResizedFrom = 1;
    m_nPlacedColumns = m_columns.Version();
    m_lPlacedRowHeight = m_iRowHeight;

    const GridColumns::Column& first = *m_columns.At(1);
    const auto step = [](std::int32_t iRow, std::int32_t lHeight) {
        return std::int64_t{lHeight} - (iRow > 1 ? 1 : 0);
    };
    std::int64_t lOffset = 0;
    if (m_lResizedFrom > 1 && m_lResizedFrom <= first.Rows()) {
        const std::int32_t iBefore = m_lResizedFrom - 1;
        lOffset = first.OffsetRow(iBefore) + step(iBefore, first.CellHeight(iBefore));
    }
    for (std::int32_t iRow = m_lResizedFrom; iRow <= first.Rows(); ++iRow) {
        const std::int32_t lHeight = TallestCell(iRow);
        for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol)
            m_columns.At(iCol)->SettleRow(iRow, CheckedLong(lOffset), lHeight);
        lOffset += step(iRow, lHeight);
    }
    m_lResizedFrom = kNothingChanged;
}

std::int32_t GridLayout::TallestCell(std::int32_t iRow) const {
    std::int32_t lHeight = 0;
    for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol) {
        const GridColumns::Column& column = *m_columns.At(iCol);
        const std::int32_t lCell = iRow <= column.Rows()
                                       ? std::max(CheckedLong(std::int64_t{column.TextHeight(iRow)} + kCellPadding),
                                                  std::int32_t{m_iRowHeight})
                                       : column.CellHeight(iRow); // a column that missed a failing row
        lHeight = std::max(lHeight, lCell);
    }
    return lHeight;
}

void GridLayout::SumWidths() {
    std::int64_t lTotal = 1;
    const std::int32_t lCols = m_columns.Count();
    for (std::int32_t iCol = 1; iCol <= lCols; ++iCol) {
        const std::int32_t iWidth = m_columns.At(iCol)->iCurrentWidth;
        lTotal += iWidth - (iWidth > 0 ? 1 : 0);
    }
    GridColumns::Column& last = *m_columns.At(lCols);
    const std::int64_t lGap = m_view.ScaleWidth() - lTotal;
    if (lGap > 0 && last.iMaxWidth == -1) {
        last.iCurrentWidth = CheckedLong(last.iCurrentWidth + lGap);
        lTotal += lGap;
    }
    m_lTotalWidth = CheckedLong(lTotal);
}

} // namespace orvanta
