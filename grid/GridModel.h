#pragma once

#include "base/Event.h"
#include "base/TaggedValue.h"
#include "grid/GridColumns.h"
#include "grid/GridLayout.h"
#include "grid/GridLocale.h"
#include "grid/GridPicture.h"
#include "grid/GridView.h"
#include "plumbing/SharedColors.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

// The grid without its window: columns, rows, cells, the current row, the selection, the order of rows, and where all
// of it stands in pixels. The window comes in as a GridView.
//
// Columns are addressed by key (a text, without regard to case) or by position from 1 (a number); rows count from 1,
// row 0 is the header, -1 is none. An unknown column raises the collection's failure (InvalidProcedureCall for a key,
// SubscriptOutOfRange for a position), a row without cells SubscriptOutOfRange, a value that does not fit its column
// TypeMismatch; nothing is changed then. What the grid refuses itself raises a failure with number 0x80040001.
//
// Nearly every call ends with a new picture, DrawControl; between BeginUpdate and EndUpdate there is none, and nothing
// is measured. A handler of an event may do what it likes with the grid, destroy it too.
class GridModel {
public:
    // Both outlive the grid.
    GridModel(GridView& view, const GridLocale& locale) : m_view(view), m_locale(locale) {}
    GridModel(const GridModel&) = delete;
    GridModel& operator=(const GridModel&) = delete;

    // Called once in run mode, when the properties are loaded.
    void InitRuntime();
    // The window is going: calls that are under way end with the event that they are in.
    void LeaveWindow() { m_layout.Leave(); }

    // Columns. vKey u"" for a column without a key; raises KeyAlreadyInUse, and TypeMismatch for a key that is no text.
    void AddColumn(std::u16string_view sText, std::int32_t iWidth = -1, std::int32_t iAlign = 0,
                   const TaggedValue& vKey = u"", bool bResizable = true, std::int32_t iHeaderAlign = 2,
                   bool bSortable = false, bool bSortWithCustomEvent = false, bool bRightToLeft = false,
                   std::int32_t iType = 0, bool bAllowEmptyNumbers = true);
    // Removes the last column when a key is given, whatever the key, and fails without one.
    void RemoveColumn(const std::optional<TaggedValue>& vKey = std::nullopt);
    bool ColExists(const TaggedValue& vKey) const { return m_columns.Exists(vKey); }
    std::int16_t Cols() const;
    TaggedValue ColKey(std::int32_t iCol) const { return m_columns.At(iCol)->vKey; }
    void Clear(bool bClearHeader);
    void SetColFormat(const TaggedValue& vKey, std::u16string_view sNumDecSep, std::u16string_view sNumValSep,
                      std::int16_t iNumFixInt, std::int16_t iNumFixDec, bool bNumSign, bool bNumAutoDecSep,
                      bool bNumAutoValSep);

    std::int32_t ColWidth(const TaggedValue& vColKey) const { return m_layout.ColWidth(vColKey); }
    void ColWidth(const TaggedValue& vColKey, std::int32_t iWidth);
    std::int32_t ColAlign(const TaggedValue& vColKey) const { return Column(vColKey).iAlign; }
    void ColAlign(const TaggedValue& vColKey, std::int32_t iAlign);
    std::int32_t ColHeaderAlign(const TaggedValue& vColKey) const { return Column(vColKey).iHeaderAlign; }
    void ColHeaderAlign(const TaggedValue& vColKey, std::int32_t iAlign);
    bool ColResizable(const TaggedValue& vColKey) const { return Column(vColKey).bResizable; }
    void ColResizable(const TaggedValue& vColKey, bool b);
    bool ColSortWithCustomEvent(const TaggedValue& vColKey) const { return Column(vColKey).bSortWithCustomEvent; }
    void ColSortWithCustomEvent(const TaggedValue& vColKey, bool b) { Column(vColKey).bSortWithCustomEvent = b; }
    bool ColAllowEmptyNumbers(const TaggedValue& vColKey) const { return Column(vColKey).bAllowEmptyNumbers; }
    void ColAllowEmptyNumbers(const TaggedValue& vColKey, bool b) { Column(vColKey).bAllowEmptyNumbers = b; }
    bool ColRightToLeft(const TaggedValue& vColKey) const { return Column(vColKey).bRightToLeft; }
    void ColRightToLeft(const TaggedValue& vColKey, bool b);
    std::int32_t ColType(const TaggedValue& vColKey) const { return Column(vColKey).iType; }
    std::u16string ColText(const TaggedValue& vColKey) const { return Column(vColKey).sText; }
    void ColText(const TaggedValue& vColKey, std::u16string_view sText);
    bool ColSortable(const TaggedValue& vColKey) const { return Column(vColKey).bSortable; }
    void ColSortable(const TaggedValue& vColKey, bool b) { Column(vColKey).bSortable = b; }

    // Rows. The cells of a row text are separated by tab characters; surplus ones are dropped.
    void AddRow(std::u16string_view sRowText, bool bSelect = false);
    // -1 removes the last row and leaves the current row as it is, even beyond the end.
    void RemoveRow(std::int32_t iRow, bool bCheckSize = true);
    std::int32_t Rows() const { return m_layout.Rows(); }
    void Rows(std::int32_t l);
    std::int32_t Row() const { return m_lRow; }
    void Row(std::int32_t l);
    bool RowSel(std::int32_t iRow) const;
    void RowSel(std::int32_t iRow, bool b);
    std::int32_t CountSelected() const;
    void SelectAll(bool b, bool bRefresh);
    void SelectRange(std::int32_t i1, std::int32_t i2, bool b, bool bRefresh);
    // Scrolls the current row into view. False when the grid is gone after it.
    bool FocusSelectedRow(bool bDoRefresh, bool bRefreshNow);

    // Cells; the Curr members work on the current row.
    TaggedValue CellValue(std::int32_t iRow, const TaggedValue& vColKey) const { return Column(vColKey).Value(iRow); }
    void CellValue(std::int32_t iRow, const TaggedValue& vColKey, const TaggedValue& vValue);
    TaggedValue CurrCellValue(const TaggedValue& vColKey) const { return CellValue(m_lRow, vColKey); }
    void CurrCellValue(const TaggedValue& vColKey, const TaggedValue& vValue) { CellValue(m_lRow, vColKey, vValue); }
    TaggedValue CellTag(std::int32_t iRow, const TaggedValue& vColKey) const { return Column(vColKey).Tag(iRow); }
    void CellTag(std::int32_t iRow, const TaggedValue& vColKey, const TaggedValue& vTag);
    TaggedValue CurrCellTag(const TaggedValue& vColKey) const { return CellTag(m_lRow, vColKey); }
    void CurrCellTag(const TaggedValue& vColKey, const TaggedValue& vTag) { CellTag(m_lRow, vColKey, vTag); }
    OleColor CellBackColor(std::int32_t iRow, const TaggedValue& vColKey) const;
    void CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, OleColor lColor);
    OleColor CurrCellBackColor(const TaggedValue& vColKey) const { return CellBackColor(m_lRow, vColKey); }
    void CurrCellBackColor(const TaggedValue& vColKey, OleColor lColor) { CellBackColor(m_lRow, vColKey, lColor); }
    OleColor CellForeColor(std::int32_t iRow, const TaggedValue& vColKey) const;
    void CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, OleColor lColor);
    OleColor CurrCellForeColor(const TaggedValue& vColKey) const { return CellForeColor(m_lRow, vColKey); }
    void CurrCellForeColor(const TaggedValue& vColKey, OleColor lColor) { CellForeColor(m_lRow, vColKey, lColor); }
    std::int32_t CellHeight(std::int32_t iRow, const TaggedValue& vColKey) const {
        return m_layout.CellHeight(iRow, vColKey);
    }
    std::int32_t CurrCellHeight(const TaggedValue& vColKey) const;
    void SetCellPicture(std::int32_t iRow, const TaggedValue& vColKey, GridPictureRef oPic,
                        std::optional<bool> bPicTransparent = std::nullopt,
                        std::optional<bool> bPicGrayed = std::nullopt,
                        std::optional<std::int32_t> lPicXTransp = std::nullopt,
                        std::optional<std::int32_t> lPicYTransp = std::nullopt,
                        std::optional<OleColor> lPicTranspColor = std::nullopt);
    void SetCurrCellPicture(const TaggedValue& vColKey, GridPictureRef oPic,
                            std::optional<bool> bPicTransparent = std::nullopt,
                            std::optional<bool> bPicGrayed = std::nullopt,
                            std::optional<std::int32_t> lPicXTransp = std::nullopt,
                            std::optional<std::int32_t> lPicYTransp = std::nullopt,
                            std::optional<OleColor> lPicTranspColor = std::nullopt);
    void GetCellPicture(std::int32_t iRow, const TaggedValue& vColKey, GridPictureRef& oPic, bool& bPicTransparent,
                        bool& bPicGrayed, std::int32_t& lPicXTransp, std::int32_t& lPicYTransp,
                        OleColor& lPicTranspColor) const;
    // iRow is not looked at: the picture is that of the current row.
    void GetCurrCellPicture(std::int32_t iRow, const TaggedValue& vColKey, GridPictureRef& oPic, bool& bPicTransparent,
                            bool& bPicGrayed, std::int32_t& lPicXTransp, std::int32_t& lPicYTransp,
                            OleColor& lPicTranspColor) const;

    // Nested calls count. bCheckSize must be true when rows or columns changed meanwhile.
    void BeginUpdate() { ++m_lUpdateCount; }
    void EndUpdate(bool bCheckSize, bool bRefreshNow);
    void NoUpdate();
    void Refresh(bool bRefreshNow) { DrawControl(true, bRefreshNow); }

    // Sorts the rows. Fewer than two rows, or an unknown column, change nothing. The current row keeps its number, the
    // selection goes with its rows.
    void SortByColum(const TaggedValue& vKey, bool bSortAsc);
    bool SortAsc() const { return m_bSortAsc; }
    // Whether the sort arrow stands on the column at that position.
    bool HasSortArrow(std::int32_t iCol) const;
    std::u16string FormatNumber(std::u16string_view sNumber, std::u16string_view sDecSep, std::u16string_view sValSep,
                                std::int16_t fixInt, std::int16_t fixDec, bool bSgn, bool bAutoDecSep,
                                bool bAutoValSep) const;
    std::int32_t OwnerDrawState() const { return m_layout.OwnerDrawState(); }

    // The look.
    OleColor BorderColor() const { return m_lBorderColor; }
    void BorderColor(OleColor c) { Store(m_lBorderColor, c); }
    OleColor BackColor() const { return m_lBackColor; }
    void BackColor(OleColor c) { Store(m_lBackColor, c); }
    OleColor ForeColor() const { return m_lForeColor; }
    void ForeColor(OleColor c) { Store(m_lForeColor, c); }
    OleColor CellsBorderColor() const { return m_lCellsBorderColor; }
    void CellsBorderColor(OleColor c) { Store(m_lCellsBorderColor, c); }
    OleColor SelBackColor() const { return m_lSelBackColor; }
    void SelBackColor(OleColor c) { Store(m_lSelBackColor, c); }
    OleColor SelForeColor() const { return m_lSelForeColor; }
    void SelForeColor(OleColor c) { Store(m_lSelForeColor, c); }
    OleColor HeaderBackColor() const { return m_lHeaderBackColor; }
    void HeaderBackColor(OleColor c) { Store(m_lHeaderBackColor, c); }
    OleColor HeaderForeColor() const { return m_lHeaderForeColor; }
    void HeaderForeColor(OleColor c) { Store(m_lHeaderForeColor, c); }
    std::int32_t HeaderStyle() const { return m_lHeaderStyle; }
    void HeaderStyle(std::int32_t l) { Store(m_lHeaderStyle, l); }
    std::int32_t SelectorStyle() const { return m_lSelectorStyle; }
    void SelectorStyle(std::int32_t l) { Store(m_lSelectorStyle, l); }
    bool ShowFocus() const { return m_bShowFocus; }
    void ShowFocus(bool b) { Store(m_bShowFocus, b); }
    std::int16_t MinRowHeight() const { return m_layout.MinRowHeight; }
    void MinRowHeight(std::int16_t i); // 0 to 14999, others are ignored
    bool AllowMultiLineText() const { return m_layout.AllowMultiLineText; }
    void AllowMultiLineText(bool b);
    bool ScrollOnMouseWheel() const { return m_bScrollOnMouseWheel; }
    void ScrollOnMouseWheel(bool b) { m_bScrollOnMouseWheel = b; }
    bool MultiSelect() const { return m_bMultiSelect; }
    void MultiSelect(bool b) { m_bMultiSelect = b; }

    // Geometry, in the frames that GridLayout describes.
    std::int32_t GetRowY(std::int32_t iRow) const { return m_layout.GetRowY(iRow); }
    std::int32_t GetRowByY(std::int32_t Y) const { return m_layout.GetRowByY(Y); }
    std::int32_t GetRowByAbsY(std::int32_t Y) const { return m_layout.GetRowByAbsY(Y); }
    std::int32_t GetColX(std::int32_t iCol) const { return m_layout.GetColX(iCol); }
    std::int32_t GetColByX(std::int32_t X) const { return m_layout.GetColByX(X); }
    std::int32_t GetColByAbsX(std::int32_t X) const { return m_layout.GetColByAbsX(X); }
    bool IsHeaderCoord(std::int32_t Y) const { return m_layout.IsHeaderCoord(Y); }
    bool IsRowCompletelyVisible(std::int32_t r) const { return m_layout.IsRowCompletelyVisible(r); }
    std::int16_t GetVisibleRows() const { return m_layout.GetVisibleRows(); }
    void GetCellRect(std::int32_t iRow, std::int32_t iCol, std::int32_t& X1, std::int32_t& Y1, std::int32_t& X2,
                     std::int32_t& Y2) const {
        m_layout.GetCellRect(iRow, iCol, X1, Y1, X2, Y2);
    }
    void GetCellAbsRect(std::int32_t iRow, std::int32_t iCol, std::int32_t& X1, std::int32_t& Y1, std::int32_t& X2,
                        std::int32_t& Y2) const {
        m_layout.GetCellAbsRect(iRow, iCol, X1, Y1, X2, Y2);
    }
    void GetCellRectByCoords(std::int32_t X, std::int32_t Y, std::int32_t& X1, std::int32_t& Y1, std::int32_t& X2,
                             std::int32_t& Y2) const {
        m_layout.GetCellRect(GetRowByY(Y), GetColByX(X), X1, Y1, X2, Y2);
    }
    std::int32_t ViewPortWidth() const { return m_layout.ViewPortWidth(); }
    std::int32_t ViewPortHeight() const { return m_layout.ViewPortHeight(); }
    std::int32_t VScroll_Max() const { return m_layout.VScroll_Max(); }
    void VScroll_Max(std::int32_t l) { m_layout.VScroll_Max(l); }
    std::int32_t VScroll_Value() const { return m_layout.VScroll_Value(); }
    void VScroll_Value(std::int32_t l) { m_layout.VScroll_Value(l); }
    std::int32_t HScroll_Max() const { return m_layout.HScroll_Max(); }
    void HScroll_Max(std::int32_t l) { m_layout.HScroll_Max(l); }
    std::int32_t HScroll_Value() const { return m_layout.HScroll_Value(); }
    void HScroll_Value(std::int32_t l) { m_layout.HScroll_Value(l); }

    const GridLayout& Layout() const { return m_layout; }
    GridLayout& Layout() { return m_layout; }
    const GridColumns& Columns() const { return m_columns; }

    // Brings sizes and scroll ranges up to date and has the view draw. A call during a call is lost. Failures are
    // ignored. False when a handler destroyed the grid meanwhile.
    bool DrawControl(bool bCheckSize, bool bRefreshNow);

    // The focus came to the surface, or left it.
    void EnterFocus() { Focus(true); }
    void ExitFocus() { Focus(false); }
    bool HasFocus() const { return m_bHasFocus; }

    // What the bars tell: a value changed, the thumb is being dragged.
    void VScrollChange();
    void HScrollChange() { DrawControl(false, true); }
    void VScrollDrag();
    void HScrollDrag();

    // The rules of selection by mouse and keyboard, with Shift and Ctrl as the keyboard stands now.
    void ApplyRowSelection(std::int32_t iRow, bool bKeyboard, bool bRefreshNow);
    // The current row alone, without scrolling or event.
    void MoveTo(std::int32_t iRow) { m_lRow = iRow; }

    Event<> SelectionChange;
    Event<> VScroll;
    Event<> HScroll;
    // Key, two rows, the direction for information, and the answer: true when the first row is to stand after the
    // second, in ascending terms. It comes in as the previous answer left it.
    Event<const TaggedValue&, std::int32_t, std::int32_t, bool, bool&> SortCompareRows;
    OwnerDrawPictureEvent OnOwnerDrawPicture;

private:
    const clsCtlUniGrid_Column& Column(const TaggedValue& vKey) const { return *m_columns.Find(vKey); }
    clsCtlUniGrid_Column& Column(const TaggedValue& vKey) { return *m_columns.Find(vKey); }
    clsCtlUniGrid_Column& FirstColumn(std::u16string_view sSource) const;
    bool IsCurrentRow() const { return m_lRow >= 1 && m_lRow <= Rows(); }
    void CheckRow(std::int32_t iRow) const;
    void Focus(bool bHasFocus);
    void SelectByRules(std::int32_t iRow, bool bKeyboard);
    void SortKey(TaggedValue vKey);
    void SortByValues(const clsCtlUniGrid_Column& column, bool bSortAsc);
    bool SortWithEvent(TaggedValue vKey, bool bSortAsc);
    void SwapRows(std::int32_t iRow1, std::int32_t iRow2);

    template<typename T>
    void Store(T& field, T value) {
        field = value;
        DrawControl(false, false);
    }

    GridView& m_view;
    const GridLocale& m_locale;
    GridColumns m_columns;
    GridLayout m_layout{m_columns, m_view, OnOwnerDrawPicture};

    std::int32_t m_lRow = -1;
    std::int32_t m_lRangeAnchor = -1;
    std::int32_t m_lUpdateCount = 0;
    bool m_bInDraw = false;
    bool m_bFocusing = false;
    bool m_bHasFocus = false;
    TaggedValue m_vSortKey;
    std::optional<double> m_dSortPosition; // the sort key as a number, if it reads as one
    bool m_bSortAsc = false;

    OleColor m_lBorderColor = kAutomatic;
    OleColor m_lBackColor = kSystemWindow;
    OleColor m_lForeColor = kSystemWindowText;
    OleColor m_lCellsBorderColor = kAutomatic;
    OleColor m_lSelBackColor = kSystemHighlight;
    OleColor m_lSelForeColor = kSystemHighlightText;
    OleColor m_lHeaderBackColor = kSystemButtonFace;
    OleColor m_lHeaderForeColor = kSystemButtonText;
    std::int32_t m_lHeaderStyle = -1;
    std::int32_t m_lSelectorStyle = -1;
    bool m_bShowFocus = true;
    bool m_bScrollOnMouseWheel = true;
    bool m_bMultiSelect = false;
};

} // namespace orvanta
