#include "grid/GridModel.h"

#include "base/Failure.h"
#include "base/ResumeNext.h"
#include "base/Rounding.h"
#include "grid/FormatNumber.h"

#include <algorithm>
#include <utility>

namespace orvanta {

namespace {

// True for a stretch of a routine. A grid that is gone by then is left alone.
class Flagged {
public:
    Flagged(bool& bFlag, std::weak_ptr<const bool> alive) : m_bFlag(bFlag), m_alive(std::move(alive)) { bFlag = true; }
    ~Flagged() {
        if (!m_alive.expired()) m_bFlag = false;
    }
    Flagged(const Flagged&) = delete;
    Flagged& operator=(const Flagged&) = delete;

private:
    bool& m_bFlag;
    std::weak_ptr<const bool> m_alive;
};

} // namespace

void GridModel::InitRuntime() {
    m_lRow = -1;
    m_lRangeAnchor = -1;
    m_lUpdateCount = 0;
    m_columns.Clear();
    m_layout.Reset();
}

// Columns ------------------------------------------------------------------------------------------------------------

void GridModel::AddColumn(std::u16string_view sText, std::int32_t iWidth, std::int32_t iAlign, const TaggedValue& vKey,
                          bool bResizable, std::int32_t iHeaderAlign, bool bSortable, bool bSortWithCustomEvent,
                          bool bRightToLeft, std::int32_t iType, bool bAllowEmptyNumbers) {
    const auto column = std::make_shared<clsCtlUniGrid_Column>(m_locale);
    column->sText = sText;
    column->iMaxWidth = iWidth;
    column->iAlign = iAlign;
    column->bResizable = bResizable;
    column->iHeaderAlign = iHeaderAlign;
    column->vKey = vKey;
    column->bSortable = bSortable;
    column->bSortWithCustomEvent = bSortWithCustomEvent;
    column->bRightToLeft = bRightToLeft;
    column->iType = iType;
    column->bAllowEmptyNumbers = bAllowEmptyNumbers;
    for (std::int32_t n = Rows(); n > 0; --n)
        column->AddRow();
    if (vKey.IsNothing() || vKey == TaggedValue(u"")) {
        m_columns.Add(column);
    } else {
        if (!vKey.IsString()) throw TypeMismatch();
        m_columns.Add(column, vKey.ToText());
    }
    DrawControl(true, false);
}

void GridModel::RemoveColumn(const std::optional<TaggedValue>& vKey) {
    if (m_columns.Count() > 0) {
        if (!vKey) throw InvalidProcedureCall();
        m_columns.RemoveLast(); // whatever the key: callers rely on the last one going
    }
    DrawControl(true, false);
}

std::int16_t GridModel::Cols() const {
    return RoundToInteger<std::int16_t>(m_columns.Count());
}

void GridModel::Clear(bool bClearHeader) {
    if (bClearHeader) {
        m_columns.Clear();
    } else {
        for (std::int32_t iCol = 1; iCol <= m_columns.Count(); ++iCol)
            m_columns.At(iCol)->ClearRows();
    }
    m_lRow = -1;
    m_lRangeAnchor = -1;
    SortKey(std::int32_t{-1});
    if (DrawControl(true, false)) SelectionChange.Raise();
}

void GridModel::SetColFormat(const TaggedValue& vKey, std::u16string_view sNumDecSep, std::u16string_view sNumValSep,
                             std::int16_t iNumFixInt, std::int16_t iNumFixDec, bool bNumSign, bool bNumAutoDecSep,
                             bool bNumAutoValSep) {
    clsCtlUniGrid_Column& column = Column(vKey);
    column.sNumDecSep = sNumDecSep;
    column.sNumValSep = sNumValSep;
    column.iNumFixInt = iNumFixInt;
    column.iNumFixDec = iNumFixDec;
    column.bNumSign = bNumSign;
    column.bNumAutoDecSep = bNumAutoDecSep;
    column.bNumAutoValSep = bNumAutoValSep;
    DrawControl(true, false);
}

void GridModel::ColWidth(const TaggedValue& vColKey, std::int32_t iWidth) {
    Column(vColKey).iMaxWidth = iWidth;
    DrawControl(true, false);
}

void GridModel::ColAlign(const TaggedValue& vColKey, std::int32_t iAlign) {
    Store(Column(vColKey).iAlign, iAlign);
}

void GridModel::ColHeaderAlign(const TaggedValue& vColKey, std::int32_t iAlign) {
    Store(Column(vColKey).iHeaderAlign, iAlign);
}

void GridModel::ColResizable(const TaggedValue& vColKey, bool b) {
    Column(vColKey).bResizable = b;
    DrawControl(true, false);
}

void GridModel::ColRightToLeft(const TaggedValue& vColKey, bool b) {
    Store(Column(vColKey).bRightToLeft, b);
}

void GridModel::ColText(const TaggedValue& vColKey, std::u16string_view sText) {
    Column(vColKey).sText = sText;
    DrawControl(true, false);
}

// Cells --------------------------------------------------------------------------------------------------------------

void GridModel::CellValue(std::int32_t iRow, const TaggedValue& vColKey, const TaggedValue& vValue) {
    Column(vColKey).Value(iRow, vValue);
    DrawControl(true, false);
}

void GridModel::CellTag(std::int32_t iRow, const TaggedValue& vColKey, const TaggedValue& vTag) {
    Column(vColKey).Tag(iRow, vTag);
}

OleColor GridModel::CellBackColor(std::int32_t iRow, const TaggedValue& vColKey) const {
    return Column(vColKey).BackColor(iRow);
}

void GridModel::CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, OleColor lColor) {
    Column(vColKey).BackColor(iRow, lColor);
    DrawControl(true, false);
}

OleColor GridModel::CellForeColor(std::int32_t iRow, const TaggedValue& vColKey) const {
    return Column(vColKey).ForeColor(iRow);
}

void GridModel::CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, OleColor lColor) {
    Column(vColKey).ForeColor(iRow, lColor);
    DrawControl(true, false);
}

std::int32_t GridModel::CurrCellHeight(const TaggedValue& vColKey) const {
    return AllowMultiLineText() ? Column(vColKey).CellHeight(m_lRow) : m_layout.RowHeight();
}

void GridModel::SetCellPicture(std::int32_t iRow, const TaggedValue& vColKey, GridPictureRef oPic,
                               std::optional<bool> bPicTransparent, std::optional<bool> bPicGrayed,
                               std::optional<std::int32_t> lPicXTransp, std::optional<std::int32_t> lPicYTransp,
                               std::optional<OleColor> lPicTranspColor) {
    Column(vColKey).SetPicture(iRow, std::move(oPic), bPicTransparent, bPicGrayed, lPicXTransp, lPicYTransp,
                               lPicTranspColor);
    DrawControl(true, false);
}

void GridModel::SetCurrCellPicture(const TaggedValue& vColKey, GridPictureRef oPic, std::optional<bool> bPicTransparent,
                                   std::optional<bool> bPicGrayed, std::optional<std::int32_t> lPicXTransp,
                                   std::optional<std::int32_t> lPicYTransp, std::optional<OleColor> lPicTranspColor) {
    SetCellPicture(m_lRow, vColKey, std::move(oPic), bPicTransparent, bPicGrayed, lPicXTransp, lPicYTransp,
                   lPicTranspColor);
}

void GridModel::GetCellPicture(std::int32_t iRow, const TaggedValue& vColKey, GridPictureRef& oPic,
                               bool& bPicTransparent, bool& bPicGrayed, std::int32_t& lPicXTransp,
                               std::int32_t& lPicYTransp, OleColor& lPicTranspColor) const {
    Column(vColKey).GetPicture(iRow, oPic, bPicTransparent, bPicGrayed, lPicXTransp, lPicYTransp, lPicTranspColor);
}

void GridModel::GetCurrCellPicture(std::int32_t /*iRow*/, const TaggedValue& vColKey, GridPictureRef& oPic,
                                   bool& bPicTransparent, bool& bPicGrayed, std::int32_t& lPicXTransp,
                                   std::int32_t& lPicYTransp, OleColor& lPicTranspColor) const {
    GetCellPicture(m_lRow, vColKey, oPic, bPicTransparent, bPicGrayed, lPicXTransp, lPicYTransp, lPicTranspColor);
}

// Picture ------------------------------------------------------------------------------------------------------------

void GridModel::EndUpdate(bool bCheckSize, bool bRefreshNow) {
    NoUpdate();
    DrawControl(bCheckSize, bRefreshNow);
}

void GridModel::NoUpdate() {
    m_lUpdateCount = std::max(m_lUpdateCount - 1, 0);
}

void GridModel::MinRowHeight(std::int16_t i) {
    if (i < 0 || i >= 15000) return;
    m_layout.MinRowHeight = i;
    DrawControl(true, false);
}

void GridModel::AllowMultiLineText(bool b) {
    m_layout.AllowMultiLineText = b;
    Refresh(false);
}

bool GridModel::DrawControl(bool bCheckSize, bool bRefreshNow) {
    if (!m_view.UserMode()) {
        IgnoreFailure([&] { m_layout.HideHScroll(); });
        IgnoreFailure([&] { m_view.PaintPreview(); });
        return true;
    }
    if (m_lUpdateCount > 0 || m_bInDraw) return true;
    const std::weak_ptr<const bool> alive = m_layout.Watch();
    const Flagged inDraw(m_bInDraw, alive);
    if (bCheckSize || m_layout.NeedsSizes()) IgnoreFailure([&] { m_layout.CalcSizes(); });
    if (alive.expired()) return false;
    m_layout.UpdateHScroll();
    m_layout.UpdateVScroll();
    IgnoreFailure([&] { m_view.Paint(bRefreshNow); });
    return !alive.expired();
}

void GridModel::Focus(bool bHasFocus) {
    m_bHasFocus = bHasFocus;
    if (m_bShowFocus) DrawControl(false, false);
}

void GridModel::VScrollChange() {
    if (!m_bFocusing) DrawControl(false, true);
}

void GridModel::VScrollDrag() {
    if (DrawControl(false, true)) VScroll.Raise();
}

void GridModel::HScrollDrag() {
    if (DrawControl(false, true)) HScroll.Raise();
}

bool GridModel::FocusSelectedRow(bool bDoRefresh, bool bRefreshNow) {
    const std::weak_ptr<const bool> alive = m_layout.Watch();
    const Flagged focusing(m_bFocusing, alive);
    if (!IsCurrentRow()) return true;
    if (!m_layout.IsRowCompletelyVisible(m_lRow)) {
        double dTarget = 0;
        if (AllowMultiLineText()) {
            dTarget = RoundHalfEven(m_columns.At(1)->OffsetRow(m_lRow) - m_layout.ViewPortHeight() / 2.0 +
                                    m_layout.RowHeight());
        } else {
            const std::int32_t lVisible = m_layout.GetVisibleRows();
            const std::int32_t lHalf = lVisible / 2;
            dTarget = m_lRow - lVisible + lHalf;
        }
        const double dMax = std::max(m_layout.VScroll_Max(), 0);
        const auto lTarget = static_cast<std::int32_t>(std::clamp(dTarget, 0.0, dMax));
        if (lTarget != m_layout.VScroll_Value()) m_layout.VScroll_Value(lTarget);
    }
    return !bDoRefresh || DrawControl(false, bRefreshNow);
}

std::u16string GridModel::FormatNumber(std::u16string_view sNumber, std::u16string_view sDecSep,
                                       std::u16string_view sValSep, std::int16_t fixInt, std::int16_t fixDec, bool bSgn,
                                       bool bAutoDecSep, bool bAutoValSep) const {
    return orvanta::FormatNumber(sNumber, sDecSep, sValSep, fixInt, fixDec, bSgn, bAutoDecSep, bAutoValSep,
                                 m_locale.DecimalSeparator());
}

} // namespace orvanta
