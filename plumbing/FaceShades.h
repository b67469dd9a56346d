#pragma once

#include "plumbing/SharedColors.h"

#include <cstdint>

namespace orvanta {

// The shades that the face styles make of one base colour. With bAdapt the highlights of very dark and very light bases
// are chosen so that they still show.
class FaceShades {
public:
    FaceShades(OleColor back, bool bAdapt) : m_back(ResolveColor(back)), m_luma(ColorLuma(back)), m_bAdapt(bAdapt) {}

    OleColor Back() const { return m_back; }
    OleColor Shade(std::int16_t d) const { return ShadeColor(m_back, d); }

    // The lit edge of a pressed flat face.
    OleColor FlatHigh() const { return m_bAdapt && m_luma < 64 ? SetColorLuma(m_back, 170) : Shade(34); }
    // Dark and bright end of the styles 4 and 8.
    OleColor Low() const { return Shade(-51); }
    OleColor High() const { return m_bAdapt && m_luma >= 171 ? OleColor{0xFFFFFF} : SetColorLuma(m_back, 204); }
    // The glow at the lower edge of style 7.
    OleColor Glow() const { return m_bAdapt && m_luma < 102 ? SetColorLuma(m_back, 204) : Shade(85); }

private:
    OleColor m_back;
    std::int16_t m_luma;
    bool m_bAdapt;
};

} // namespace orvanta
