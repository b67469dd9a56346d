#pragma once

#include "drawing/OlePicture.h"
#include "grid/GridPicture.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace orvanta {

// The platform's picture object in a cell. Its size in pixels is taken once, from hundredths of a millimetre.
class OleGridPicture : public GridPicture {
public:
    OleGridPicture(OlePicture picture, std::int32_t iWidth, std::int32_t iHeight)
        : m_picture(std::move(picture)), m_iWidth(iWidth), m_iHeight(iHeight) {}

    std::int32_t Width() const override { return m_iWidth; }
    std::int32_t Height() const override { return m_iHeight; }
    const OlePicture& Picture() const { return m_picture; }

private:
    OlePicture m_picture;
    std::int32_t m_iWidth;
    std::int32_t m_iHeight;
};

// A reference for the grid; none for an empty picture. The resolution is that of the window, in dots per inch.
GridPictureRef GridPictureOf(const OlePicture& picture, std::int32_t lDotsX, std::int32_t lDotsY);
// The way back; empty for none, and for a picture of another kind.
OlePicture OlePictureOf(const GridPictureRef& picture);

} // namespace orvanta
