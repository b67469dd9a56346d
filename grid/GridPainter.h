#pragma once

#include "base/PixelRect.h"
#include "grid/GridCanvas.h"
#include "grid/GridModel.h"

#include <cstdint>
#include <string_view>

namespace orvanta {

// Draws a grid, or the preview that stands for it in design mode. Failures are dropped and the next step drawn. Only
// what can be seen is drawn; the owner is asked about each of these cells.
class GridPainter {
public:
    GridPainter(GridModel& grid, GridCanvas& canvas);

    // bEnabled and the size are those of the window. False when a handler destroyed the grid meanwhile.
    bool Paint(bool bEnabled, std::int32_t lWidth, std::int32_t lHeight);
    void PaintPreview(std::u16string_view sName);

private:
    struct ColumnPlace {
        std::int32_t iCol;
        std::int32_t x;
        GridCanvas::Target target;
        std::uint32_t flags; // of cells, but for those of the mode
    };
    void Ground();
    void PaintHeader(const clsCtlUniGrid_Column& column, const ColumnPlace& place);
    bool PaintCells(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t lHeight);
    bool PaintCell(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t iRow,
                   const PixelRect& rect);
    void PaintContent(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t iRow,
                      const PixelRect& rect, OleColor foreColor);
    bool PaintPicture(const clsCtlUniGrid_Column& column, const ColumnPlace& place, std::int32_t iRow,
                      const PixelRect& rect);

    GridModel& m_grid;
    GridCanvas& m_canvas;
    OleColor m_frameColor;
    OleColor m_lineColor;
    bool m_bEnabled = true;
};

} // namespace orvanta
