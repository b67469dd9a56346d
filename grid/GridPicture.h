#pragma once

#include "base/Event.h"
#include "base/TaggedValue.h"
#include "plumbing/SharedColors.h"

#include <cstdint>
#include <memory>

namespace orvanta {

// A picture as far as arithmetic needs it. Sizes are pixels.
class GridPicture {
public:
    virtual ~GridPicture() = default;
    virtual std::int32_t Width() const = 0;
    virtual std::int32_t Height() const = 0;
};

// Shared with whoever else holds it; empty for no picture.
using GridPictureRef = std::shared_ptr<const GridPicture>;

// The picture of one cell and how it is drawn. lPicXTransp and lPicYTransp are the pixel that gives the transparent
// colour, lPicTranspColor is that colour itself, -1 for none given.
struct CellPicture {
    GridPictureRef oPic;
    bool bPicTransparent = true;
    bool bPicGrayed = false;
    std::int32_t lPicXTransp = 0;
    std::int32_t lPicYTransp = 0;
    OleColor lPicTranspColor = -1;
};

// The same with a size in pixels, as the owner left it.
struct OwnerPicture {
    CellPicture cell;
    std::int32_t iWidth = 0;
    std::int32_t iHeight = 0;
};

// Column position and key, row, then what the owner may change: the picture, its size, transparent, greyed, the pixel
// and the colour that are transparent.
using OwnerDrawPictureEvent = Event<std::int32_t, const TaggedValue&, std::int32_t, GridPictureRef&, std::int32_t&,
                                    std::int32_t&, bool&, bool&, std::int32_t&, std::int32_t&, OleColor&>;

} // namespace orvanta
