#pragma once

#include "base/Rounding.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>

namespace orvanta {

// The pixels of smooth lines and curves, in the order in which they are drawn. A Plotter takes them:
//
//     void Solid(std::int32_t x, std::int32_t y);                            the line's colour as it is
//     void Blended(std::int32_t x, std::int32_t y, std::int32_t iStrength);  mixed in; 0 or less leaves the pixel alone
//
// Coordinates are pixels of the target, and may lie outside it.

namespace detail {

// A line along its longer axis u, each step one pixel in u; both callables take (u, v). A negative iMax blends as 0
// does: not at all.
template<typename Solid, typename Blended>
void WalkAlong(std::int32_t u1, std::int32_t v1, std::int32_t u2, std::int32_t v2, std::int32_t iMax,
               const Solid& solid, const Blended& blended) {
    const std::int32_t du = std::abs(u2 - u1), dv = std::abs(v2 - v1);
    const std::int32_t su = u2 < u1 ? -1 : 1, sv = v2 < v1 ? -1 : 1;
    constexpr std::int32_t kCapSlope = 85, kCapMiddle = 127;
    if (iMax < 0) iMax = 0;

    const std::int32_t iCap = dv * kCapSlope / du;
    blended(u1 - su, v1 - sv, iCap);
    blended(u1 - su, v1, kCapMiddle);
    blended(u2 + su, v2 + sv, iCap);
    blended(u2 + su, v2, kCapMiddle);

    // a = e * iMax / du is carried along as quotient and rest, so that no step divides. The error e stays below du, and
    // du * iMax fits 32 bits.
    std::int32_t e = static_cast<std::int32_t>(RoundHalfEven(du / 2.0));
    std::int32_t a = e * iMax / du, rest = e * iMax % du;
    const std::int32_t aStep = dv * iMax / du, restStep = dv * iMax % du;
    std::int32_t u = u1, v = v1;
    for (std::int32_t nLeft = du; nLeft >= 0; --nLeft, u += su) {
        solid(u, v);
        blended(u, v - sv, iMax - a);
        blended(u, v + sv, a);
        e += dv;
        a += aStep;
        rest += restStep;
        if (rest >= du) {
            rest -= du;
            ++a;
        }
        if (e >= du) {
            e -= du;
            a -= iMax;
            v += sv;
        }
    }
}

} // namespace detail

// A straight line with both end points; equal end points draw nothing. iMaxAntialiasFaction is the strength that the
// two neighbours of each pixel share. The soft ends do not depend on it.
template<typename Plotter>
void WalkLine(Plotter& plotter, std::int16_t X1, std::int16_t Y1, std::int16_t X2, std::int16_t Y2,
              std::int16_t iMaxAntialiasFaction) {
    const std::int32_t dx = std::abs(X2 - X1), dy = std::abs(Y2 - Y1);
    if (dx + dy == 0) return;
    if (dx <= dy) {
        detail::WalkAlong(
            Y1, X1, Y2, X2, iMaxAntialiasFaction, [&](std::int32_t y, std::int32_t x) { plotter.Solid(x, y); },
            [&](std::int32_t y, std::int32_t x, std::int32_t a) { plotter.Blended(x, y, a); });
    } else {
        detail::WalkAlong(
            X1, Y1, X2, Y2, iMaxAntialiasFaction, [&](std::int32_t x, std::int32_t y) { plotter.Solid(x, y); },
            [&](std::int32_t x, std::int32_t y, std::int32_t a) { plotter.Blended(x, y, a); });
    }
}

namespace detail {

// RoundHalfEven for numbers that fit the result, without a call or a jump: curves round seven numbers per point.
inline std::int32_t RoundSmall(double d) {
    const auto l = static_cast<std::int32_t>(d);
    const double dRest = d - l;
    const int iOdd = l & 1;
    return l + (int{dRest > 0.5} | (int{dRest == 0.5} & iOdd)) - (int{dRest < -0.5} | (int{dRest == -0.5} & iOdd));
}

} // namespace detail

namespace detail {

// Rounds a number that is known to dDoubt only. False when it could be rounded otherwise. A dDoubt of 0 stands for a
// number known in full.
inline bool RoundDoubted(double d, double dDoubt, std::int32_t& l) {
    if (dDoubt == 0) {
        l = RoundSmall(d);
        return true;
    }
    l = static_cast<std::int32_t>(d);
    const double dBeyond = std::abs(d - l) - 0.5;
    if (std::abs(dBeyond) <= dDoubt) return false;
    l += int{dBeyond > 0} * (d < 0 ? -1 : 1);
    return true;
}

// Spreads one point of a curve over the four pixels that it touches. A point beyond the range of coordinates, which no
// target has, draws nothing. With a dDoubt above 0 the point is known to that precision only: when the pixels or their
// strengths could come out otherwise, nothing is drawn and the result is false.
template<typename Plotter>
bool SplatPoint(Plotter& plotter, double dX, double dY, double dDoubt) {
    constexpr double kFarthest = INT32_MAX - 2;
    const double px = dX - 0.5, py = dY - 0.5;
    if (!(std::abs(px) < kFarthest && std::abs(py) < kFarthest)) return true;
    const double dStrengthDoubt = 600 * dDoubt; // two factors, one of them up to 255
    std::int32_t ix, iy, jy, a, b, c, d;
    if (!RoundDoubted(px, dDoubt, ix) || !RoundDoubted(py, dDoubt, iy) || !RoundDoubted(py + 1, dDoubt, jy))
        return false;
    const std::int32_t jx = ix + 1;
    const double h1 = (ix + 0.5 - px) * 255, h2 = 255 - h1;
    const double w1 = iy + 0.5 - py, w2 = py + 1 - jy + 0.5;
    if (!RoundDoubted(w1 * h1, dStrengthDoubt, a) || !RoundDoubted(w1 * h2, dStrengthDoubt, b)) return false;
    if (!RoundDoubted(w2 * h1, dStrengthDoubt, c) || !RoundDoubted(w2 * h2, dStrengthDoubt, d)) return false;
    plotter.Blended(ix, iy, a);
    plotter.Blended(jx, iy, b);
    plotter.Blended(ix, jy, c);
    plotter.Blended(jx, jy, d);
    return true;
}

inline constexpr double kQuarterTurn = 1.570796;
inline constexpr double kRadiansPerDegree = 0.017453289;

// An ellipse around X1, Y1, and the angles to walk.
struct Curve {
    std::int32_t X1, Y1, RadiusX, RadiusY;
    double dStart, dStop, dStep;
};

inline double CurveStep(std::int32_t RadiusX, std::int32_t RadiusY, std::int32_t Thickness) {
    const double dStep = Thickness == 1 ? 0.5340707 : 1.0681413;
    const double r = RadiusX > RadiusY ? RadiusX : RadiusY;
    return r == 0 ? dStep : dStep / std::abs(r);
}

// Cosine and sine of angles that follow each other closely. Every eighth is worked out in full, those between by adding
// the angle since then, which costs a fraction and is right to kDoubt on every curve that Suits.
class CloseAngles {
public:
    static constexpr double kDoubt = 1e-6; // of a coordinate, in pixels

    static bool Suits(const Curve& curve) {
        constexpr double kFarthest = 1e6, kMostTurned = 64, kWidest = 0.25;
        const auto nearby = [](std::int32_t l) { return l > -kFarthest && l < kFarthest; };
        return nearby(curve.X1) && nearby(curve.Y1) && nearby(curve.RadiusX) && nearby(curve.RadiusY) &&
               curve.dStart > -kMostTurned && curve.dStop < kMostTurned && curve.dStep * kBetween <= kWidest;
    }

    void Turn(double t) {
        if (m_nLeft == 0) {
            m_nLeft = kBetween;
            m_dAnchor = t;
            m_dAnchorCos = m_dCos = std::cos(t - kQuarterTurn);
            m_dAnchorSin = m_dSin = std::sin(t - kQuarterTurn);
            return;
        }
        --m_nLeft;
        const double d = t - m_dAnchor, d2 = d * d;
        // Of the two series, with reciprocals: a chain of divisions would cost more than it saves.
        const double dSin =
            d * (1 - d2 * (1 / 6.0) * (1 - d2 * (1 / 20.0) * (1 - d2 * (1 / 42.0) * (1 - d2 * (1 / 72.0)))));
        const double dCos =
            1 -
            d2 * 0.5 * (1 - d2 * (1 / 12.0) * (1 - d2 * (1 / 30.0) * (1 - d2 * (1 / 56.0) * (1 - d2 * (1 / 90.0)))));
        m_dCos = m_dAnchorCos * dCos - m_dAnchorSin * dSin;
        m_dSin = m_dAnchorSin * dCos + m_dAnchorCos * dSin;
    }
    double Cos() const { return m_dCos; }
    double Sin() const { return m_dSin; }

private:
    static constexpr int kBetween = 7;
    int m_nLeft = 0;
    double m_dAnchor = 0, m_dAnchorCos = 1, m_dAnchorSin = 0;
    double m_dCos = 1, m_dSin = 0;
};

// A whole coordinate would put the point exactly on the border of a pixel.
inline double OffTheBorder(double d) {
    return d == static_cast<double>(static_cast<std::int64_t>(d)) ? d + 0.001 : d;
}

// +1 or -1: which side of the centre a point is mirrored to.
struct Mirror {
    int x, y;
};

// Draws the point of each angle, mirrored; angle 0 is the top. Ends also where the angle is so large that a step no
// longer changes it.
template<typename Plotter>
void WalkCurve(Plotter& plotter, const Curve& curve, std::initializer_list<Mirror> mirrors) {
    const bool bClose = CloseAngles::Suits(curve);
    CloseAngles angles;
    for (double t = curve.dStart; t <= curve.dStop;) {
        if (bClose) angles.Turn(t);
        for (const Mirror& mirror : mirrors) {
            const auto splat = [&](double x, double y, double dDoubt) {
                return SplatPoint(plotter, curve.X1 + mirror.x * x, curve.Y1 + mirror.y * y, dDoubt);
            };
            if (bClose && splat(curve.RadiusX * angles.Cos(), curve.RadiusY * angles.Sin(), CloseAngles::kDoubt))
                continue;
            splat(OffTheBorder(curve.RadiusX * std::cos(t - kQuarterTurn)),
                  OffTheBorder(curve.RadiusY * std::sin(t - kQuarterTurn)), 0);
        }
        const double dNext = t + curve.dStep;
        if (!(dNext > t)) break;
        t = dNext;
    }
}

} // namespace detail

// A part of an ellipse around X1, Y1, clockwise from StartAngle to StopAngle in degrees; 0 is the top. A StopAngle
// below StartAngle gets 360 more. A Thickness other than 1 takes half as many points.
template<typename Plotter>
void WalkArc(Plotter& plotter, std::int32_t X1, std::int32_t Y1, std::int32_t RadiusX, std::int32_t RadiusY,
             float StartAngle, float StopAngle, std::int32_t Thickness) {
    const double dStart = StartAngle;
    double dStop = StopAngle;
    if (dStop < dStart) dStop += 360;
    detail::WalkCurve(plotter,
                      {X1, Y1, RadiusX, RadiusY, dStart * detail::kRadiansPerDegree, dStop * detail::kRadiansPerDegree,
                       detail::CurveStep(RadiusX, RadiusY, Thickness)},
                      {{1, 1}});
}

// A whole ellipse around X1, Y1, out of one quadrant that is mirrored right and left, below and above.
template<typename Plotter>
void WalkCircle(Plotter& plotter, std::int32_t X1, std::int32_t Y1, std::int32_t RadiusX, std::int32_t RadiusY,
                std::int32_t Thickness) {
    detail::WalkCurve(
        plotter, {X1, Y1, RadiusX, RadiusY, 0, detail::kQuarterTurn, detail::CurveStep(RadiusX, RadiusY, Thickness)},
        {{1, 1}, {-1, 1}, {1, -1}, {-1, -1}});
}

} // namespace orvanta
