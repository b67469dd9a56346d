#pragma once

#include "base/PixelRect.h"
#include "grid/GridPicture.h"
#include "plumbing/SharedColors.h"

#include <cstdint>
#include <string_view>

namespace orvanta {

// What a grid is drawn on. Header cells and, in single-line mode, all cells go straight onto the surface; cells of many
// lines go onto a sheet of the same size first, from which each column is copied under the header.
//
// Coordinates are pixels of the surface, or of the sheet. Colours are OLE colours. Text flags are the platform's DT_
// values.
class GridCanvas {
public:
    enum class Target { Surface, Sheet };
    enum class Mark { Flag, SortUp, SortDown };

    virtual ~GridCanvas() = default;

    // The control around the surface: white, with a border.
    virtual void DrawFrame(OleColor back, OleColor border) = 0;
    virtual void FillSurface(OleColor back) = 0;
    // A fresh sheet in that colour, with the font of the surface. Gone with EndSheet.
    virtual void BeginSheet(OleColor back) = 0;
    virtual void EndSheet() = 0;
    // Copies a stretch of the sheet, but for its first line, below a line of the surface.
    virtual void CopyFromSheet(std::int32_t x, std::int32_t width, std::int32_t yBelow) = 0;

    virtual void DrawFace(Target target, const PixelRect& rect, OleColor back, bool bFocus, std::int32_t style) = 0;
    virtual void Fill(Target target, const PixelRect& rect, OleColor c) = 0;
    virtual void Frame(Target target, const PixelRect& rect, OleColor c) = 0;
    virtual void Text(Target target, std::u16string_view s, const PixelRect& rect, OleColor c, std::uint32_t flags) = 0;
    // Centred, never stretched, without the colour of its top left pixel.
    virtual void DrawMark(Target target, Mark mark, const PixelRect& rect) = 0;
    // Centred, never stretched; no more of it than that width and height.
    virtual void DrawPicture(Target target, const CellPicture& picture, const PixelRect& rect, std::int32_t width,
                             std::int32_t height) = 0;
};

} // namespace orvanta
