#pragma once

#include "base/Rounding.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <optional>

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

// RoundHalfEven for numbers that fit the result, without a call or a jump.
inline std::int32_t RoundSmall(double d) {
    const auto l = static_cast<std::int32_t>(d);
    const double dRest = d - l;
    const int iOdd = l & 1;
    return l + (int{dRest > 0.5} | (int{dRest == 0.5} & iOdd)) - (int{dRest < -0.5} | (int{dRest == -0.5} & iOdd));
}

// The four pixels that one point of a curve touches, from column x and rows top and bottom on, and their strengths.
struct Splat {
    std::int32_t x, top, bottom;
    std::int32_t topLeft, topRight, bottomLeft, bottomRight;

    template<typename Plotter>
    void Draw(Plotter& plotter) const {
        plotter.Blended(x, top, topLeft);
        plotter.Blended(x + 1, top, topRight);
        plotter.Blended(x, bottom, bottomLeft);
        plotter.Blended(x + 1, bottom, bottomRight);
    }
};

// Spreads a point over its pixels. One beyond the range of coordinates, which no target has, gives nothing.
inline std::optional<Splat> SplatOf(double dX, double dY) {
    constexpr double kFarthest = INT32_MAX - 2;
    const double px = dX - 0.5, py = dY - 0.5;
    if (!(std::abs(px) < kFarthest && std::abs(py) < kFarthest)) return std::nullopt;
    const std::int32_t ix = RoundSmall(px), iy = RoundSmall(py), jy = RoundSmall(py + 1);
    const double h1 = (ix + 0.5 - px) * 255, h2 = 255 - h1;
    const double w1 = iy + 0.5 - py, w2 = py + 1 - jy + 0.5;
    return Splat{ix, iy, jy, RoundSmall(w1 * h1), RoundSmall(w1 * h2), RoundSmall(w2 * h1), RoundSmall(w2 * h2)};
}

// The same for a point that is known to kDoubt only and lies within kNearby of the origin; nothing when its pixels or
// their strengths could come out otherwise. Away from the halves rounding needs no care for even and odd, and the lower
// row is the one behind the upper.
inline constexpr double kDoubt = 1e-6;
inline constexpr std::int32_t kNearby = 1 << 22;
inline std::optional<Splat> SplatOfDoubted(double dX, double dY) {
    constexpr double kPlaceLimit = 0.5 - kDoubt, kStrengthLimit = 0.5 - 600 * kDoubt; // a strength is 255 x 1 x 1
    const double px = dX - 0.5, py = dY - 0.5;
    const std::int32_t ix = static_cast<std::int32_t>(px + (kNearby + 0.5)) - kNearby;
    const std::int32_t iy = static_cast<std::int32_t>(py + (kNearby + 0.5)) - kNearby;
    const double dx = px - ix, dy = py - iy;
    const double h1 = (0.5 - dx) * 255, h2 = 255 - h1;
    const double w1 = 0.5 - dy, w2 = 0.5 + dy;
    constexpr double kHalf = 0.5;
    const auto round = [](double d) { return static_cast<std::int32_t>(d + kHalf); }; // no strength is negative
    const double da = w1 * h1, db = w1 * h2, dc = w2 * h1, dd = w2 * h2;
    const std::int32_t a = round(da), b = round(db), c = round(dc), d = round(dd);
    const auto farther = [](double d1, double d2) { return d1 < d2 ? d2 : d1; };
    const double dPlaceOff = farther(std::abs(dx), std::abs(dy));
    const double dStrengthOff =
        farther(farther(std::abs(da - a), std::abs(db - b)), farther(std::abs(dc - c), std::abs(dd - d)));
    if (dPlaceOff > kPlaceLimit || dStrengthOff > kStrengthLimit) return std::nullopt;
    return Splat{ix, iy, iy + 1, a, b, c, d};
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

// Cosine and sine of angles that follow each other by one step. Now and then they are worked out in full, and between
// that by turning the ones before, which costs a fraction and keeps coordinates right to kDoubt on a curve that Suits.
class TurningAngle {
public:
    static bool Suits(const Curve& curve) {
        constexpr double kFarthest = 1e6, kMostTurned = 64;
        static_assert(2 * kFarthest < kNearby);
        const auto nearby = [](std::int32_t l) { return l > -kFarthest && l < kFarthest; };
        return nearby(curve.X1) && nearby(curve.Y1) && nearby(curve.RadiusX) && nearby(curve.RadiusY) &&
               curve.dStart > -kMostTurned && curve.dStop < kMostTurned;
    }

    explicit TurningAngle(double dStep) : m_dStepCos(std::cos(dStep)), m_dStepSin(std::sin(dStep)) {}

    // To the first angle, or the one that follows the last.
    void TurnTo(double t) {
        if (m_nLeft-- == 0) {
            m_nLeft = kBetween;
            m_dCos = std::cos(t - kQuarterTurn);
            m_dSin = std::sin(t - kQuarterTurn);
            return;
        }
        const double dCos = m_dCos * m_dStepCos - m_dSin * m_dStepSin;
        m_dSin = m_dSin * m_dStepCos + m_dCos * m_dStepSin;
        m_dCos = dCos;
    }
    double Cos() const { return m_dCos; }
    double Sin() const { return m_dSin; }

private:
    static constexpr int kBetween = 31;
    double m_dStepCos, m_dStepSin;
    int m_nLeft = 0;
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
    const bool bSuits = TurningAngle::Suits(curve);
    TurningAngle angle(curve.dStep);
    for (double t = curve.dStart; t <= curve.dStop;) {
        if (bSuits) angle.TurnTo(t);
        for (const Mirror& mirror : mirrors) {
            const auto place = [&](double x, double y, auto&& splatOf) {
                return splatOf(curve.X1 + mirror.x * x, curve.Y1 + mirror.y * y);
            };
            std::optional<Splat> splat;
            if (bSuits) splat = place(curve.RadiusX * angle.Cos(), curve.RadiusY * angle.Sin(), SplatOfDoubted);
            if (!splat) {
                splat = place(OffTheBorder(curve.RadiusX * std::cos(t - kQuarterTurn)),
                              OffTheBorder(curve.RadiusY * std::sin(t - kQuarterTurn)), SplatOf);
            }
            if (splat) splat->Draw(plotter);
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
