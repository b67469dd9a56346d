#include "tests/reference/PlainFace.h"

namespace orvanta::testing {

namespace {

int Red(std::int32_t c) {
    return c % 256;
}
int Green(std::int32_t c) {
    return c / 256 % 256;
}
int Blue(std::int32_t c) {
    return c / 65536 % 256;
}
std::int32_t Rgb(int r, int g, int b) {
    return r + 256 * g + 65536 * b;
}

// To the nearest whole number, halves to even, for what is not negative.
int Whole(double d) {
    const int iDown = static_cast<int>(d);
    const double dOver = d - iDown;
    if (dOver > 0.5) return iDown + 1;
    if (dOver < 0.5) return iDown;
    return iDown + iDown % 2;
}

int Weighed(int a, float wA, int b, float wB) {
    const volatile float fA = static_cast<float>(a) * wA;
    const volatile float fB = static_cast<float>(b) * wB;
    const volatile float fSum = fA + fB;
    return Whole(static_cast<double>(fSum));
}

std::int32_t WeighedColor(std::int32_t a, float wA, std::int32_t b, float wB) {
    return Rgb(Weighed(Red(a), wA, Red(b), wB), Weighed(Green(a), wA, Green(b), wB), Weighed(Blue(a), wA, Blue(b), wB));
}

int Within(int i) {
    if (i < 0) return 0;
    if (i > 255) return 255;
    return i;
}

std::int32_t WithLuma(std::int32_t c, int target) {
    return PlainShade(c, target - PlainLuma(c));
}

} // namespace

std::int32_t PlainShade(std::int32_t c, int d) {
    return Rgb(Within(Red(c) + d), Within(Green(c) + d), Within(Blue(c) + d));
}

int PlainLuma(std::int32_t c) {
    return Within(Whole(0.3 * Red(c) + 0.59 * Green(c) + 0.11 * Blue(c)));
}

std::int32_t PlainMix(std::int32_t a, std::int32_t b, int p) {
    if (p < 0) p = 0;
    if (p > 100) p = 100;
    const volatile float wA = static_cast<float>(100 - p) / 100.0F;
    const volatile float wB = 1.0F - wA;
    return WeighedColor(a, wA, b, wB);
}

void PlainPicture::Set(int x, int y, std::int32_t c) {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) return;
    m_pixels[static_cast<std::size_t>(y * m_width + x)] = c;
}

void PlainPicture::Fill(int x1, int y1, int x2, int y2, std::int32_t c) {
    for (int y = y1; y < y2; ++y)
        for (int x = x1; x < x2; ++x)
            Set(x, y, c);
}

void PlainPicture::Frame(int x1, int y1, int x2, int y2, std::int32_t c) {
    for (int x = x1; x < x2; ++x) {
        Set(x, y1, c);
        Set(x, y2 - 1, c);
    }
    for (int y = y1; y < y2; ++y) {
        Set(x1, y, c);
        Set(x2 - 1, y, c);
    }
}

std::vector<std::int32_t> PlainBand(std::int32_t from, std::int32_t to, int n) {
    std::vector<std::int32_t> colors;
    if (n < 1) return colors;
    const volatile float step = 1.0F / static_cast<float>(n);
    volatile float w = 1.0F;
    for (int i = 0; i < n; ++i) {
        const volatile float rest = 1.0F - w;
        colors.push_back(WeighedColor(from, w, to, rest));
        w = w - step;
        if (w < 0.0F) w = 0.0F;
    }
    return colors;
}

void PlainPicture::BandDown(int x1, int y1, int x2, int y2, std::int32_t from, std::int32_t to) {
    for (const std::int32_t c : PlainBand(from, to, y2 - y1)) {
        Fill(x1, y1, x1 == x2 ? x1 + 1 : x2, y1 + 1, c);
        ++y1;
    }
}

void PlainPicture::BandRight(int x1, int y1, int x2, int y2, std::int32_t from, std::int32_t to) {
    for (const std::int32_t c : PlainBand(from, to, x2 - x1)) {
        Fill(x1, y1, x1 + 1, y1 == y2 ? y1 + 1 : y2, c);
        ++x1;
    }
}

void PlainFace(PlainSurface& p, const PlainBox& box, const PlainFaceForm& f, const RoundOutline& outline) {
    const int L = box.left;
    const int T = box.top;
    const int R = box.right;
    const int B = box.bottom;
    const int H = B - T;
    const std::int32_t back = f.back;
    const auto S = [back](int d) { return PlainShade(back, d); };
    const int luma = PlainLuma(back);
    const std::int32_t lo = S(-51);
    const std::int32_t hi = f.bAdapt && luma >= 171 ? 0xFFFFFF : WithLuma(back, 204);

    // Background.
    if (f.style == 0) {
        p.Fill(L, T, R, B, back);
        if (f.bPressed) {
            const std::int32_t hi0 = f.bAdapt && luma < 64 ? WithLuma(back, 170) : S(34);
            p.BandDown(L, B - 5, R, B, back, hi0);
            p.BandRight(R - 5, T, R, B, back, hi0);
            p.BandDown(L, T, R, T + 6, S(-34), back);
            p.BandRight(L, T, L + 6, B, S(-34), back);
        }
    }
    if (f.style == 1 && !f.bPressed) p.BandDown(L, T, R, B, S(51), S(-17));
    if (f.style == 1 && f.bPressed) p.BandDown(L, T, R, B, S(-17), S(51));
    if (f.style == 2) {
        const int split = Whole(H / 2.0);
        if (!f.bPressed) {
            p.BandDown(L, T, R, T + split, S(-17), S(51));
            p.BandDown(L, T + split, R, B, S(51), S(-17));
        } else {
            p.BandDown(L, T, R, T + split, S(51), S(-17));
            p.BandDown(L, T + split, R, B, S(-17), S(51));
        }
    }
    if (f.style == 3) {
        const int split = Whole(H / 3.0) + 2;
        if (!f.bPressed) {
            p.BandDown(L, T, R, T + split, S(34), back);
            p.BandDown(L, T + split, R, B, S(-17), back);
        } else {
            p.BandDown(L, T, R, T + split, S(-17), back);
            p.BandDown(L, T + split, R, B, S(-17), S(51));
        }
    }
    if (f.style == 4 && !f.bPressed) {
        const int q = Whole(H / 4.0);
        const std::int32_t m = PlainMix(lo, hi, Whole((q + 3.0) / H * 100.0));
        p.BandDown(L, T, R, B, lo, hi);
        if (f.bRounded) {
            p.Fill(L + 4, T + 2, R - 4, T + 3, hi);
            p.BandDown(L + 3, T + 3, R - 3, T + 3 + q, hi, m);
            p.Fill(L + 4, T + 3 + q, R - 4, T + 4 + q, m);
        } else {
            p.BandDown(L + 2, T + 3, R - 2, T + 3 + q, hi, m);
        }
    }
    if (f.style == 4 && f.bPressed) {
        p.BandDown(L, T, R, T + 5, lo, back);
        p.Fill(L, T + 5, R, T + 15, back);
        p.BandDown(L, T + 15, R, B, back, hi);
    }
    if (f.style == 5 || f.style == 6 || f.style == 7) {
        const int split = Whole(H / 2.0);
        if (f.bPressed) {
            p.BandDown(L, T, R, T + split, S(-17), back);
            p.BandDown(L, T + split, R, B, S(-17), S(51));
        } else if (f.style == 5) {
            p.BandDown(L, T, R, T + split, S(34), back);
            p.BandDown(L, T + split, R, B, S(-51), back);
        } else if (f.style == 6) {
            p.BandDown(L, T, R, T + split, S(128), S(32));
            p.BandDown(L, T + split, R, B, S(-51), back);
        } else {
            const std::int32_t g = f.bAdapt && luma < 102 ? WithLuma(back, 204) : S(85);
            p.BandDown(L, T, R, T + 7, 0xFFFFFF, S(85));
            p.BandDown(L, T + 7, R, T + split, S(85), back);
            p.BandDown(L, T + split, R, B, S(-51), g);
        }
    }
    if (f.style == 8) {
        p.BandDown(L, T, R, T + 4, f.bPressed ? lo : hi, back);
        p.Fill(L, T + 4, R, B - 4, back);
        p.BandDown(L, B - 4, R, B, back, f.bPressed ? hi : lo);
    }

    if (f.bBorder) {
        if (f.bRounded) {
            p.Frame(L, T, R, B, f.out);
            outline(box, [&](int x, int y) { p.Set(x, y, f.border); });
        } else {
            p.Frame(L, T, R, B, f.border);
        }

        // Side strips.
        const auto strips = [&](std::int32_t from, std::int32_t to) {
            p.BandDown(L + 1, T + 1, L + 1, B - 1, from, to);
            p.BandDown(R - 2, T + 1, R - 2, B - 1, from, to);
        };
        if ((f.style == 3 || f.style == 5) && !f.bPressed) strips(S(51), back);
        if ((f.style == 3 || f.style == 5) && f.bPressed) strips(back, S(51));
        if (f.style == 4 && f.bPressed) p.BandDown(L + 1, T + 1, L + 1, T + 11, lo, back);
        if (f.style == 6 && !f.bPressed) strips(S(128), back);
        if (f.style == 6 && f.bPressed) strips(back, S(51));
        if (f.style == 7 && f.bPressed) strips(back, S(51));
        if (f.style == 8 && !f.bPressed) {
            p.BandDown(L + 1, T + 1, L + 1, T + 11, hi, back);
            p.BandDown(R - 2, B - 11, R - 2, B - 1, back, lo);
        }
        if (f.style == 8 && f.bPressed) {
            p.BandDown(L + 1, T + 1, L + 1, T + 11, lo, back);
            p.BandDown(R - 2, B - 11, R - 2, B - 1, back, hi);
        }

        if (f.bRounded) {
            std::int32_t top = f.bPressed ? back : S(51);
            std::int32_t bottom = f.bPressed ? S(51) : back;
            if (f.style == 3 && !f.bPressed) top = S(34);
            if (f.style == 6 && !f.bPressed) top = S(128);
            if (f.style == 2) top = bottom = f.bPressed ? S(51) : S(-17);
            if (f.style == 4 || (f.style == 8 && f.bPressed)) {
                top = lo;
                bottom = hi;
            }
            if (f.style == 8 && !f.bPressed) {
                top = hi;
                bottom = lo;
            }
            if (f.style == 0) top = bottom = back;
            p.Set(L + 1, T + 1, PlainMix(f.border, top, 50));
            p.Set(R - 2, T + 1, PlainMix(f.border, top, 50));
            p.Set(L + 1, B - 2, PlainMix(f.border, bottom, 50));
            p.Set(R - 2, B - 2, PlainMix(f.border, bottom, 50));
            const std::int32_t soft = PlainMix(f.border, back, 30);
            p.Set(L + 1, T, soft);
            p.Set(L, T + 1, soft);
            p.Set(R - 2, T, soft);
            p.Set(R - 1, T + 1, soft);
            p.Set(L + 1, B - 1, soft);
            p.Set(L, B - 2, soft);
            p.Set(R - 2, B - 1, soft);
            p.Set(R - 1, B - 2, soft);
        }
    }

    if (f.bDefault) {
        p.Frame(L + 1, T + 1, R - 1, B - 1, 0xECBEA0);
    } else if (f.bCancel) {
        p.Frame(L + 1, T + 1, R - 1, B - 1, 0x808080);
    }
}

void PlainBoxBorder(PlainSurface& p, const PlainBox& box, std::int32_t back, std::int32_t border, bool bRounded,
                    std::int32_t out, bool bBottomOnly, const RoundOutline& outline) {
    const int L = box.left;
    const int T = box.top;
    const int R = box.right;
    const int B = box.bottom;
    p.Frame(L + 1, T + 1, R - 1, B - 1, back);
    if (bBottomOnly) {
        p.Frame(L, T, R, B, back);
        p.Fill(L + 1, B - 1, R - 1, B, border);
        return;
    }
    if (!bRounded) {
        p.Frame(L, T, R, B, border);
        return;
    }
    p.Frame(L, T, R, B, out);
    outline(box, [&](int x, int y) { p.Set(x, y, border); });
    const std::int32_t half = PlainMix(border, back, 50);
    p.Set(L + 1, T + 1, half);
    p.Set(R - 2, T + 1, half);
    p.Set(L + 1, B - 2, half);
    p.Set(R - 2, B - 2, half);
    const std::int32_t soft = PlainMix(border, back, 30);
    p.Set(L + 1, T, soft);
    p.Set(L, T + 1, soft);
    p.Set(R - 2, T, soft);
    p.Set(R - 1, T + 1, soft);
    p.Set(L + 1, B - 1, soft);
    p.Set(L, B - 2, soft);
    p.Set(R - 2, B - 1, soft);
    p.Set(R - 1, B - 2, soft);
}

} // namespace orvanta::testing
