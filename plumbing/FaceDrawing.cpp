#include "plumbing/FaceDrawing.h"

#include "base/Rounding.h"
#include "plumbing/FaceShades.h"
#include "plumbing/SharedShapes.h"

namespace orvanta {

namespace {

constexpr OleColor kDefaultFrame = 0xECBEA0;
constexpr OleColor kCancelFrame = 0x808080;
constexpr OleColor kWhite = 0xFFFFFF;

RECT Shrunk(const RECT& rect, int n) {
    return {rect.left + n, rect.top + n, rect.right - n, rect.bottom - n};
}

// The nth part of a length as a whole number.
int PartOf(int lLength, int n) {
    return RoundToInteger<int>(static_cast<double>(lLength) / n);
}

class FacePainter {
public:
    FacePainter(HDC dc, const RECT& rect, OleColor back, bool bPressed, bool bRounded, std::int32_t style, bool bAdapt)
        : m_dc(dc), m_rect(rect), m_shades(back, bAdapt), m_bPressed(bPressed), m_bRounded(bRounded), m_style(style) {}

    void Background() const {
        switch (m_style) {
        case 0: Flat(); break;
        case 1:
            if (m_bPressed) {
                Rows(0, Height(), S(-17), S(51));
            } else {
                Rows(0, Height(), S(51), S(-17));
            }
            break;
        case 2:
            if (m_bPressed) {
                Halves(PartOf(Height(), 2), S(51), S(-17), S(-17), S(51));
            } else {
                Halves(PartOf(Height(), 2), S(-17), S(51), S(51), S(-17));
            }
            break;
        case 3:
            if (m_bPressed) {
                PressedHalves(PartOf(Height(), 3) + 2);
            } else {
                Halves(PartOf(Height(), 3) + 2, S(34), Back(), S(-17), Back());
            }
            break;
        case 4: Glossy(); break;
        case 5:
        case 6:
        case 7: Split(); break;
        case 8: Framed(); break;
        default: break;
        }
    }

    void Border(OleColor border, OleColor outColor) const {
        if (m_bRounded) {
            FillOrFrame(m_dc, m_rect, outColor, false);
            DrawRoundRectR(m_dc, m_rect, false, Back(), border, 1, PS_SOLID, 4);
        } else {
            FillOrFrame(m_dc, m_rect, border, false);
        }
        SideStrips();
        if (m_bRounded) Corners(border);
    }

private:
    OleColor Back() const { return m_shades.Back(); }
    OleColor S(std::int16_t d) const { return m_shades.Shade(d); }
    int Height() const { return m_rect.bottom - m_rect.top; }

    // A band of rows across the face, from y1 to y2 counted from its top.
    void Rows(int y1, int y2, OleColor from, OleColor to) const {
        GradientV(m_dc, m_rect.left, m_rect.top + y1, m_rect.right, m_rect.top + y2, from, to);
    }
    void Solid(int y1, int y2) const {
        if (y1 < y2) FillOrFrameCoords(m_dc, m_rect.left, m_rect.top + y1, m_rect.right, m_rect.top + y2, Back(), true);
    }
    void Halves(int lSplit, OleColor top1, OleColor top2, OleColor low1, OleColor low2) const {
        Rows(0, lSplit, top1, top2);
        Rows(lSplit, Height(), low1, low2);
    }
    void PressedHalves(int lSplit) const { Halves(lSplit, S(-17), Back(), S(-17), S(51)); }

    void Flat() const {
        Solid(0, Height());
        if (!m_bPressed) return;
        const OleColor hi = m_shades.FlatHigh();
        Rows(Height() - 5, Height(), Back(), hi);
        GradientH(m_dc, m_rect.right - 5, m_rect.top, m_rect.right, m_rect.bottom, Back(), hi);
        Rows(0, 6, S(-34), Back());
        GradientH(m_dc, m_rect.left, m_rect.top, m_rect.left + 6, m_rect.bottom, S(-34), Back());
    }

    void Glossy() const {
        const OleColor lo = m_shades.Low();
        const OleColor hi = m_shades.High();
        if (m_bPressed) {
            Rows(0, 5, lo, Back());
            Solid(5, 15);
            Rows(15, Height(), Back(), hi);
            return;
        }
        Rows(0, Height(), lo, hi);
        if (Height() > 0) Highlight(lo, hi);
    }

    void Highlight(OleColor lo, OleColor hi) const {
        const int q = PartOf(Height(), 4);
        const int lShare = RoundToInteger<int>(static_cast<double>(q + 3) / Height() * 100);
        const OleColor m = MixColors(lo, hi, lShare);
        const int lSide = m_bRounded ? 3 : 2;
        const int y = m_rect.top + 3;
        if (m_bRounded) DrawLineOle(m_dc, m_rect.left + 4, y - 1, m_rect.right - 4, y - 1, hi, 1, PS_SOLID);
        GradientV(m_dc, m_rect.left + lSide, y, m_rect.right - lSide, y + q, hi, m);
        if (m_bRounded) DrawLineOle(m_dc, m_rect.left + 4, y + q, m_rect.right - 4, y + q, m, 1, PS_SOLID);
    }

    // The styles 5, 6 and 7 share their split and their pressed face.
    void Split() const {
        const int lSplit = PartOf(Height(), 2);
        if (m_bPressed) {
            PressedHalves(lSplit);
        } else if (m_style == 5) {
            Halves(lSplit, S(34), Back(), S(-51), Back());
        } else if (m_style == 6) {
            Halves(lSplit, S(128), S(32), S(-51), Back());
        } else {
            Rows(0, 7, kWhite, S(85));
            Rows(7, lSplit, S(85), Back());
            Rows(lSplit, Height(), S(-51), m_shades.Glow());
        }
    }

    void Framed() const {
        const OleColor first = m_bPressed ? m_shades.Low() : m_shades.High();
        const OleColor last = m_bPressed ? m_shades.High() : m_shades.Low();
        Rows(0, 4, first, Back());
        Solid(4, Height() - 4);
        Rows(Height() - 4, Height(), Back(), last);
    }

    // One pixel wide, on the column x inside the frame, from y1 to y2.
    void Strip(int x, int y1, int y2, OleColor from, OleColor to) const { GradientV(m_dc, x, y1, x, y2, from, to); }

    void BothStrips(OleColor from, OleColor to) const {
        Strip(m_rect.left + 1, m_rect.top + 1, m_rect.bottom - 1, from, to);
        Strip(m_rect.right - 2, m_rect.top + 1, m_rect.bottom - 1, from, to);
    }

    void SideStrips() const {
        switch (m_style) {
        case 3:
        case 5:
        case 6:
        case 7:
            if (m_bPressed) {
                BothStrips(Back(), S(51));
            } else if (m_style != 7) {
                BothStrips(m_style == 6 ? S(128) : S(51), Back());
            }
            break;
        case 4:
            if (m_bPressed) Strip(m_rect.left + 1, m_rect.top + 1, m_rect.top + 11, m_shades.Low(), Back());
            break;
        case 8:
            Strip(m_rect.left + 1, m_rect.top + 1, m_rect.top + 11, m_bPressed ? m_shades.Low() : m_shades.High(),
                  Back());
            Strip(m_rect.right - 2, m_rect.bottom - 11, m_rect.bottom - 1, Back(),
                  m_bPressed ? m_shades.High() : m_shades.Low());
            break;
        default: break;
        }
    }

    // What the border is mixed with in the inner corners.
    struct CornerShades {
        OleColor top;
        OleColor bottom;
    };
    CornerShades ShadesOfCorners() const {
        switch (m_style) {
        case 0: return {Back(), Back()};
        case 2: return m_bPressed ? CornerShades{S(51), S(51)} : CornerShades{S(-17), S(-17)};
        case 4: return {m_shades.Low(), m_shades.High()};
        case 8:
            return m_bPressed ? CornerShades{m_shades.Low(), m_shades.High()}
                              : CornerShades{m_shades.High(), m_shades.Low()};
        default: break;
        }
        // All others follow style 5, but for their own light edge.
        if (m_bPressed) return {Back(), S(51)};
        if (m_style == 3) return {S(34), Back()};
        if (m_style == 6) return {S(128), Back()};
        return {S(51), Back()};
    }

    void Corners(OleColor border) const {
        const CornerShades shades = ShadesOfCorners();
        const OleColor top = MixColors(border, shades.top, 50);
        const OleColor bottom = MixColors(border, shades.bottom, 50);
        SetPixelOle(m_dc, m_rect.left + 1, m_rect.top + 1, top);
        SetPixelOle(m_dc, m_rect.right - 2, m_rect.top + 1, top);
        SetPixelOle(m_dc, m_rect.left + 1, m_rect.bottom - 2, bottom);
        SetPixelOle(m_dc, m_rect.right - 2, m_rect.bottom - 2, bottom);
        SoftenFrame(m_dc, m_rect, MixColors(border, Back(), 30));
    }

    HDC m_dc;
    RECT m_rect;
    FaceShades m_shades;
    bool m_bPressed;
    bool m_bRounded;
    std::int32_t m_style;
};

} // namespace

void DrawFace(HDC dc, const RECT& rect, OleColor back, bool bBorder, OleColor border, bool bPressed, bool bDefault,
              bool bCancel, bool bFocus, bool bRounded, std::int32_t style, OleColor outColor, bool bAdapt) {
    if (!dc) return;
    const FacePainter painter(dc, rect, back, bPressed, bRounded, ResolveFaceStyle(style), bAdapt);
    painter.Background();
    if (bBorder) painter.Border(BorderColorFor(border, back), outColor == kAutomatic ? back : outColor);
    if (bDefault) {
        FillOrFrame(dc, Shrunk(rect, 1), kDefaultFrame, false);
    } else if (bCancel) {
        FillOrFrame(dc, Shrunk(rect, 1), kCancelFrame, false);
    }
    if (bFocus) DrawFocusRectOn(dc, Shrunk(rect, 2));
}

} // namespace orvanta
