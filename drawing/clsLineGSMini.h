#pragma once

#include <windows.h>

#include <cstdint>

namespace orvanta {

// Lines, ellipses and arcs with smooth edges on any DC, in pixels. Colours are OLE colours. Pixels of a clsDIBSection
// of 24 or 32 bits are read and written in its memory, unless its DC is clipped, scaled or moved; any other DC costs
// two calls per pixel, with the same result. Nothing is raised; a DC of 0 draws nothing.
class clsLineGSMini {
public:
    // An ellipse around X1, Y1. A Thickness other than 1 takes half as many points.
    void CircleGP(HDC lHdc, std::int32_t X1, std::int32_t Y1, std::int32_t RadiusX, std::int32_t RadiusY,
                  std::int32_t lColor, std::int32_t Thickness) const;

    // A part of it, clockwise from StartAngle to StopAngle in degrees; 0 is the top.
    void ArcGP(HDC lHdc, std::int32_t X1, std::int32_t Y1, std::int32_t RadiusX, std::int32_t RadiusY, float StartAngle,
               float StopAngle, std::int32_t lColor, std::int32_t Thickness) const;

    // A straight line with both end points and soft ends. iMaxAntialiasFaction, 0 to 255, is the strength that the two
    // neighbours of each pixel share.
    void LineGP(HDC lHdc, std::int16_t X1, std::int16_t Y1, std::int16_t X2, std::int16_t Y2, std::int32_t lColor,
                std::int16_t iMaxAntialiasFaction) const;
};

} // namespace orvanta
