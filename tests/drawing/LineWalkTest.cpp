#include "drawing/LineWalk.h"
#include "drawing/LinePlotters.h"

#include "tests/reference/PlainSmoothLines.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace orvanta {
namespace {

// A picture in memory, 0x00BBGGRR, that answers like a device context: reading outside gives 0xFFFFFFFF, writing
// nothing.
class Canvas {
public:
    Canvas(int width, int height, std::uint32_t lColor)
        : m_width(width), m_height(height), m_pixels(static_cast<std::size_t>(width * height), lColor) {}

    std::uint32_t Get(std::int32_t x, std::int32_t y) const { return Inside(x, y) ? m_pixels[Index(x, y)] : ~0u; }
    void Set(std::int32_t x, std::int32_t y, std::uint32_t lColor) {
        if (Inside(x, y)) m_pixels[Index(x, y)] = lColor;
    }
    reference::PlainSurface Plain() {
        return {[this](int x, int y) { return Get(x, y); },
                [this](int x, int y, std::uint32_t color) { Set(x, y, color); }};
    }
    // Fills with noise; black pixels among it, which read as zero.
    void Scatter(std::mt19937& random) {
        for (std::uint32_t& lPixel : m_pixels)
            lPixel = random() % 5 == 0 ? 0 : static_cast<std::uint32_t>(random()) & 0xFFFFFF;
    }
    std::size_t CountUnlike(std::uint32_t lColor) const {
        return m_pixels.size() - static_cast<std::size_t>(std::count(m_pixels.begin(), m_pixels.end(), lColor));
    }
    // As bytes of a bottom-up picture with rows of whole 32-bit words.
    std::vector<std::uint8_t> Bytes(int nBytesPerPixel) const {
        const std::size_t nRow = static_cast<std::size_t>((m_width * nBytesPerPixel + 3) / 4 * 4);
        std::vector<std::uint8_t> bytes(nRow * static_cast<std::size_t>(m_height));
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                std::uint8_t* pixel = &bytes[nRow * static_cast<std::size_t>(m_height - 1 - y) +
                                             static_cast<std::size_t>(x * nBytesPerPixel)];
                for (int c = 0; c < 3; ++c)
                    pixel[c] = static_cast<std::uint8_t>(Get(x, y) >> (16 - 8 * c));
            }
        }
        return bytes;
    }
    bool operator==(const Canvas&) const = default;
    int Width() const { return m_width; }
    int Height() const { return m_height; }

private:
    bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < m_width && y < m_height; }
    std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y * m_width + x); }
    int m_width, m_height;
    std::vector<std::uint32_t> m_pixels;
};

template<int BytesPerPixel, typename Draw>
std::vector<std::uint8_t> DrawnOnBits(const Canvas& before, std::uint32_t lColor, const Draw& draw) {
    std::vector<std::uint8_t> bytes = before.Bytes(BytesPerPixel);
    const PixelBits bits{bytes.data(), before.Width(), before.Height(),
                         bytes.size() / static_cast<std::size_t>(before.Height())};
    BitsPlotter<BytesPerPixel> plotter(bits, lColor);
    draw(plotter);
    return bytes;
}

// Draws the same with calls, into 24 and 32 bits, and plainly; all must be equal.
template<typename Draw, typename DrawPlainly>
void ExpectEqualsPlain(std::mt19937& random, std::uint32_t lColor, const Draw& draw, const DrawPlainly& drawPlainly) {
    Canvas before(1 + static_cast<int>(random() % 90), 1 + static_cast<int>(random() % 90), 0);
    before.Scatter(random);
    Canvas drawn = before, plain = before;
    PixelPlotter plotter(drawn, lColor);
    draw(plotter);
    drawPlainly(plain.Plain());
    EXPECT_EQ(drawn, plain);
    EXPECT_EQ(DrawnOnBits<3>(before, lColor, draw), plain.Bytes(3));
    EXPECT_EQ(DrawnOnBits<4>(before, lColor, draw), plain.Bytes(4));
}

TEST(LineWalk, LinesEqualThePlainOnesOnEveryKindOfTarget) {
    std::mt19937 random(20240503);
    const auto coordinate = [&random] { return static_cast<std::int16_t>(static_cast<int>(random() % 140) - 30); };
    for (int n = 0; n < 1500; ++n) {
        const std::int16_t X1 = coordinate(), Y1 = coordinate();
        const std::int16_t X2 = n % 7 == 0 ? X1 : coordinate(), Y2 = n % 7 == 1 ? Y1 : coordinate();
        const auto iMax = static_cast<std::int16_t>(n % 3 == 0 ? 255 : random() % 300);
        const std::uint32_t lColor = static_cast<std::uint32_t>(random()) & 0xFFFFFF;
        SCOPED_TRACE(::testing::Message() << X1 << ',' << Y1 << ' ' << X2 << ',' << Y2 << ' ' << iMax);
        ExpectEqualsPlain(
            random, lColor, [&](auto& plotter) { WalkLine(plotter, X1, Y1, X2, Y2, iMax); },
            [&](const auto& surface) { reference::PlainLineGP(surface, X1, Y1, X2, Y2, lColor, iMax); });
    }
}

TEST(LineWalk, ArcsAndCirclesEqualThePlainOnesOnEveryKindOfTarget) {
    std::mt19937 random(20240504);
    const auto upTo = [&random](int n) { return static_cast<std::int32_t>(random() % static_cast<unsigned>(n)); };
    for (int n = 0; n < 600; ++n) {
        const std::int32_t X1 = upTo(110) - 10, Y1 = upTo(110) - 10, RadiusX = upTo(60) - 3, RadiusY = upTo(60) - 3;
        const auto fStart = static_cast<float>(upTo(8000)) / 10 - 400, fStop = fStart + static_cast<float>(upTo(400));
        const float fEnd = n % 3 == 0 ? fStart - 350 : fStop;
        const std::int32_t Thickness = upTo(3);
        const std::uint32_t lColor = static_cast<std::uint32_t>(random()) & 0xFFFFFF;
        SCOPED_TRACE(::testing::Message() << X1 << ',' << Y1 << " radii " << RadiusX << ',' << RadiusY << " from "
                                          << fStart << " to " << fEnd << " thickness " << Thickness);
        ExpectEqualsPlain(
            random, lColor, [&](auto& plotter) { WalkArc(plotter, X1, Y1, RadiusX, RadiusY, fStart, fEnd, Thickness); },
            [&](const auto& surface) {
                reference::PlainArcGP(surface, X1, Y1, RadiusX, RadiusY, fStart, fEnd, lColor, Thickness);
            });
        ExpectEqualsPlain(
            random, lColor, [&](auto& plotter) { WalkCircle(plotter, X1, Y1, RadiusX, RadiusY, Thickness); },
            [&](const auto& surface) {
                reference::PlainCircleGP(surface, X1, Y1, RadiusX, RadiusY, lColor, Thickness);
            });
    }
}

// What a plotter is told, for rules that stand before any pixel.
struct Recorder {
    std::vector<std::array<std::int32_t, 3>> calls; // x, y, strength; 1000 for Solid

    void Solid(std::int32_t x, std::int32_t y) { calls.push_back({x, y, 1000}); }
    void Blended(std::int32_t x, std::int32_t y, std::int32_t iStrength) { calls.push_back({x, y, iStrength}); }
};

TEST(LineWalk, EqualEndPointsDrawNothing) {
    Recorder recorder;
    WalkLine(recorder, 5, 5, 5, 5, 255);
    EXPECT_TRUE(recorder.calls.empty());
}

TEST(LineWalk, AShortFlatLineIsDrawnPixelByPixelInOrder) {
    Recorder recorder;
    WalkLine(recorder, 0, 0, 3, 1, 200);
    // Caps: 1 * 85 / 3 = 28. e starts at 1.5, to the even 2: a = 2 * 200 / 3 = 133; then e = 3 steps down and becomes
    // 0.
    EXPECT_EQ(recorder.calls, (std::vector<std::array<std::int32_t, 3>>{{-1, -1, 28},
                                                                        {-1, 0, 127},
                                                                        {4, 2, 28},
                                                                        {4, 1, 127},
                                                                        {0, 0, 1000},
                                                                        {0, -1, 67},
                                                                        {0, 1, 133}, //
                                                                        {1, 1, 1000},
                                                                        {1, 0, 200},
                                                                        {1, 2, 0}, //
                                                                        {2, 1, 1000},
                                                                        {2, 0, 134},
                                                                        {2, 2, 66}, //
                                                                        {3, 1, 1000},
                                                                        {3, 0, 67},
                                                                        {3, 2, 133}}));
}

TEST(LineWalk, ASteepLineExchangesTheAxesAndGoesInItsOwnDirection) {
    Recorder recorder;
    WalkLine(recorder, 0, 0, -1, -2, 255);
    // Caps: 1 * 85 / 2 = 42. e starts at 1: a = 127; e = 2 steps to the left and becomes 0.
    EXPECT_EQ(recorder.calls, (std::vector<std::array<std::int32_t, 3>>{{1, 1, 42},
                                                                        {0, 1, 127},
                                                                        {-2, -3, 42},
                                                                        {-1, -3, 127},
                                                                        {0, 0, 1000},
                                                                        {1, 0, 128},
                                                                        {-1, 0, 127}, //
                                                                        {-1, -1, 1000},
                                                                        {0, -1, 255},
                                                                        {-2, -1, 0}, //
                                                                        {-1, -2, 1000},
                                                                        {0, -2, 128},
                                                                        {-2, -2, 127}}));
}

TEST(LineWalk, ADiagonalCountsAsSteep) {
    Recorder recorder;
    WalkLine(recorder, 0, 0, 2, 2, 255);
    EXPECT_EQ(recorder.calls[0], (std::array<std::int32_t, 3>{-1, -1, 85}));
    EXPECT_EQ(recorder.calls[1], (std::array<std::int32_t, 3>{0, -1, 127}));
    EXPECT_EQ(recorder.calls[5], (std::array<std::int32_t, 3>{-1, 0, 128})); // neighbours in x
}

TEST(LineWalk, HalfOfTheLengthIsRoundedToEven) {
    // dy 5: e starts at 2.5, to the even 2, so a = 2 * 100 / 5 = 40; dy 7: 3.5, to 4: 4 * 100 / 7 = 57.
    Recorder five, seven;
    WalkLine(five, 0, 0, 0, 5, 100);
    WalkLine(seven, 0, 0, 0, 7, 100);
    EXPECT_EQ(five.calls[6][2], 40);
    EXPECT_EQ(seven.calls[6][2], 57);
}

TEST(LineWalk, AHorizontalLineWithoutAntialiasingKeepsItsNeighbours) {
    Canvas canvas(12, 5, 0xC0C0C0);
    PixelPlotter plotter(canvas, 0x0000FFu);
    WalkLine(plotter, 2, 2, 9, 2, 0);
    // Eight pixels of the line and the soft pixel before and behind it.
    EXPECT_EQ(canvas.CountUnlike(0xC0C0C0), 10u);
    for (int x = 2; x <= 9; ++x)
        EXPECT_EQ(canvas.Get(x, 2), 0x0000FFu);
    EXPECT_EQ(canvas.Get(1, 2), canvas.Get(10, 2));
    EXPECT_EQ(canvas.Get(1, 2), 0x6060DEu); // (192 * 128 + 255 * 127) / 256 = 222, 192 * 128 / 256 = 96
}

TEST(LineWalk, ANegativeShareBlendsAsZeroDoes) {
    Canvas negative(30, 30, 0x808080), zero = negative;
    PixelPlotter negativePlotter(negative, 0xFFu), zeroPlotter(zero, 0xFFu);
    WalkLine(negativePlotter, 3, 4, 25, 13, -200);
    WalkLine(zeroPlotter, 3, 4, 25, 13, 0);
    EXPECT_EQ(negative, zero);
}

TEST(LineWalk, NoProductOverflowsOnTheLongestLines) {
    // One sanitized walk from corner to corner of the 16-bit plane, with the largest share.
    struct Counter {
        std::int64_t nSolid = 0, lSum = 0;
        void Solid(std::int32_t, std::int32_t) { ++nSolid; }
        void Blended(std::int32_t, std::int32_t, std::int32_t iStrength) { lSum += iStrength; }
    } flat;
    WalkLine(flat, -32768, -32768, 32767, 32766, 32767);
    EXPECT_EQ(flat.nSolid, 65536);
    // Both neighbours of each pixel share 32767; caps: 2 * (84 + 127), since 65534 * 85 / 65535 = 84.
    EXPECT_EQ(flat.lSum, 65536LL * 32767 + 422);
}

TEST(LineColor, AStrengthOfZeroLeavesThePixelAloneEvenThoughTheFormulaWouldDarken) {
    Canvas canvas(1, 1, 0xFFFFFF);
    PixelPlotter plotter(canvas, 0u);
    plotter.Blended(0, 0, 0);
    EXPECT_EQ(canvas.Get(0, 0), 0xFFFFFFu);
    plotter.Blended(0, 0, 1);
    EXPECT_EQ(canvas.Get(0, 0), 0xFDFDFDu); // 255 * 254 / 256 = 253
}

TEST(LineColor, AStrengthOf253IsTheColourItselfAnd252IsDarkerThanTheFullMix) {
    Canvas canvas(1, 1, 0);
    PixelPlotter plotter(canvas, 0xFFFFFFu);
    plotter.Blended(0, 0, 252);
    EXPECT_EQ(canvas.Get(0, 0), 0xFBFBFBu); // 255 * 252 / 256 = 251
    plotter.Blended(0, 0, 253);
    EXPECT_EQ(canvas.Get(0, 0), 0xFFFFFFu);
}

TEST(LineColor, AFullStrengthReadsNothing) {
    struct WriteOnly {
        int nWrites = 0;
        std::uint32_t Get(std::int32_t, std::int32_t) const {
            ADD_FAILURE() << "the pixel was read";
            return 0;
        }
        void Set(std::int32_t, std::int32_t, std::uint32_t) { ++nWrites; }
    } target;
    PixelPlotter plotter(target, 0x123456u);
    plotter.Blended(0, 0, 253);
    plotter.Blended(0, 0, 0);
    EXPECT_EQ(target.nWrites, 1);
}

TEST(LineColor, ABlendTreatsTheThreeChannelsApart) {
    // (200 * 155 + 10 * 100) / 256 = 125, (100 * 155 + 20 * 100) / 256 = 68, (50 * 155 + 255 * 100) / 256 = 129
    EXPECT_EQ(BlendLineColor(200u | 100u << 8 | 50u << 16, 10u | 20u << 8 | 255u << 16, 100),
              125u | 68u << 8 | 129u << 16);
}

// The bounds of what was drawn on a white canvas.
struct Extent {
    int left = 1000, top = 1000, right = -1, bottom = -1;
};
Extent ExtentOf(const Canvas& canvas) {
    Extent extent;
    for (int y = 0; y < canvas.Height(); ++y) {
        for (int x = 0; x < canvas.Width(); ++x) {
            if (canvas.Get(x, y) == 0xFFFFFF) continue;
            extent = {std::min(extent.left, x), std::min(extent.top, y), std::max(extent.right, x),
                      std::max(extent.bottom, y)};
        }
    }
    return extent;
}

// The plain curve as calls: only blends of a strength above 0 are told apart.
template<typename Draw>
std::vector<std::array<std::int32_t, 3>> PlainCalls(const Draw& draw) {
    std::vector<std::array<std::int32_t, 3>> calls;
    // A background of black and a line of white give back the strength: 255 * a / 256 is a - 1.
    draw(reference::PlainSurface{[](int, int) { return 0u; },
                                 [&](int x, int y, std::uint32_t color) {
                                     const auto iOwn = static_cast<std::int32_t>(color & 255);
                                     calls.push_back({x, y, iOwn == 255 ? 253 : iOwn + 1});
                                 }});
    return calls;
}

TEST(LineWalk, CurvesOfEverySizeGiveExactlyThePointsOfThePlainOnes) {
    std::mt19937 random(20240509);
    const auto upTo = [&random](int n) { return static_cast<std::int32_t>(random() % static_cast<unsigned>(n)); };
    for (int n = 0; n < 40; ++n) {
        const std::int32_t size = n % 8 == 0 ? 3000 : 300;
        const std::int32_t X1 = upTo(2000) - 1000, Y1 = n % 11 == 0 ? 999999 + upTo(3) : upTo(2000);
        const std::int32_t RadiusX = upTo(size) - size / 10, RadiusY = upTo(size) - size / 10, Thickness = 1 + upTo(2);
        const auto fStart = static_cast<float>(upTo(720) - 360), fStop = fStart + static_cast<float>(upTo(360));
        SCOPED_TRACE(::testing::Message() << X1 << ',' << Y1 << " radii " << RadiusX << ',' << RadiusY << " from "
                                          << fStart << " to " << fStop << " thickness " << Thickness);
        Recorder recorder;
        WalkArc(recorder, X1, Y1, RadiusX, RadiusY, fStart, fStop, Thickness);
        WalkCircle(recorder, X1, Y1, RadiusX, RadiusY, Thickness);
        std::erase_if(recorder.calls, [](const auto& call) { return call[2] <= 0; });
        for (auto& call : recorder.calls)
            call[2] = std::min(call[2], 253);
        auto expected = PlainCalls([&](const auto& surface) {
            reference::PlainArcGP(surface, X1, Y1, RadiusX, RadiusY, fStart, fStop, 0xFFFFFF, Thickness);
            reference::PlainCircleGP(surface, X1, Y1, RadiusX, RadiusY, 0xFFFFFF, Thickness);
        });
        ASSERT_TRUE(recorder.calls == expected);
    }
}

// The widest curves and the farthest turns for which angles are not worked out one by one, and just beyond.
TEST(LineWalk, CurvesOfAMillionPixelsGiveExactlyThePointsOfThePlainOnes) {
    for (const std::int32_t radius : {999'999, 1'000'001, -999'999}) {
        for (const float fStart : {-3600.0f, 12.5f, 3665.5f}) {
            Recorder recorder;
            WalkArc(recorder, 999'999, -999'999, radius, 999'999, fStart, fStart + 1, 1);
            std::erase_if(recorder.calls, [](const auto& call) { return call[2] <= 0; });
            for (auto& call : recorder.calls)
                call[2] = std::min(call[2], 253);
            const auto expected = PlainCalls([&](const auto& surface) {
                reference::PlainArcGP(surface, 999'999, -999'999, radius, 999'999, fStart, fStart + 1, 0xFFFFFF, 1);
            });
            ASSERT_TRUE(recorder.calls == expected) << radius << " from " << fStart;
        }
    }
}

TEST(LineWalk, AnArcFrom350To10RunsThroughTheTop) {
    Canvas canvas(100, 100, 0xFFFFFF);
    PixelPlotter plotter(canvas, 0u);
    WalkArc(plotter, 50, 50, 40, 40, 350.0f, 10.0f, 1);
    EXPECT_NE(canvas.Get(50, 10), 0xFFFFFFu);
    const Extent extent = ExtentOf(canvas);
    EXPECT_GE(extent.top, 9);
    EXPECT_LE(extent.bottom, 12);
    EXPECT_NEAR(extent.left, 43, 1); // 50 - 40 sin 10
    EXPECT_NEAR(extent.right, 57, 1);
}

TEST(LineWalk, AngleZeroIsTheTopAndAnglesGrowClockwise) {
    Canvas canvas(100, 100, 0xFFFFFF);
    PixelPlotter plotter(canvas, 0u);
    WalkArc(plotter, 50, 50, 40, 30, 0.0f, 90.0f, 1);
    const Extent extent = ExtentOf(canvas);
    EXPECT_NEAR(extent.left, 50, 1);
    EXPECT_NEAR(extent.top, 20, 1);
    EXPECT_NEAR(extent.right, 90, 1);
    EXPECT_NEAR(extent.bottom, 50, 1);
}

TEST(LineWalk, AnyThicknessButOneTakesHalfAsManyPoints) {
    const auto points = [](std::int32_t Thickness) {
        Recorder recorder;
        WalkArc(recorder, 0, 0, 20, 10, 0.0f, 360.0f, Thickness);
        return recorder.calls.size() / 4;
    };
    // 6.2831840 radians by 0.5340707 / 20 and by 1.0681413 / 20, and the start.
    EXPECT_EQ(points(1), 236u);
    EXPECT_EQ(points(2), 118u);
    EXPECT_EQ(points(0), 118u);
    EXPECT_EQ(points(-1), 118u);
}

TEST(LineWalk, TheLargerRadiusSetsTheStepEvenWhenBothAreNegative) {
    const auto points = [](std::int32_t RadiusX, std::int32_t RadiusY) {
        Recorder recorder;
        WalkArc(recorder, 0, 0, RadiusX, RadiusY, 0.0f, 360.0f, 1);
        return recorder.calls.size() / 4;
    };
    EXPECT_EQ(points(20, 10), points(10, 20));
    EXPECT_EQ(points(-20, -40), points(20, 20)); // -20 is the larger one
    EXPECT_EQ(points(0, 0), 12u);                // 6.283184 by 0.5340707, and the start
    EXPECT_EQ(points(0, -5), 12u);
}

TEST(LineWalk, ACircleIsSixteenPixelsPerStepAndMirrorsItself) {
    Recorder recorder;
    WalkCircle(recorder, 50, 50, 20, 20, 1);
    EXPECT_EQ(recorder.calls.size(), 16u * 59); // 1.570796 by 0.5340707 / 20, and the start
    // The first point is the top of the ellipse, mirrored to the right and left, then to the bottom.
    EXPECT_EQ(recorder.calls[0][1], 30); // 50 - 20
    EXPECT_EQ(recorder.calls[8][1], 69); // 50 + 20 lies on the border of 69 and 70
}

TEST(LineWalk, WholeCoordinatesMoveOffThePixelBorder) {
    // With both radii 0 each point is (0, 0), moved to (0.001, 0.001): px = 9.501, so ix = 10 and jx = 11.
    Recorder recorder;
    WalkArc(recorder, 10, 20, 0, 0, 0.0f, 1.0f, 1);
    // h1 = (10.5 - 9.501) * 255 = 254.745, w1 = 0.999: 254.49, 0.25, 0.25 and 0.0003.
    EXPECT_EQ(recorder.calls,
              (std::vector<std::array<std::int32_t, 3>>{{10, 20, 254}, {11, 20, 0}, {10, 21, 0}, {11, 21, 0}}));
}

TEST(LineWalk, PointsBeyondTheRangeOfCoordinatesAreLeftOut) {
    Recorder recorder;
    WalkArc(recorder, 2147483647, -2147483647, 100, 100, 0.0f, 1.0f, 1);
    EXPECT_TRUE(recorder.calls.empty());
}

TEST(LineWalk, AnglesThatAStepNoLongerChangesEndTheArc) {
    Recorder recorder;
    WalkArc(recorder, 0, 0, 10, 10, 1e30f, 2e30f, 1);
    EXPECT_EQ(recorder.calls.size(), 4u);
    WalkArc(recorder, 0, 0, 10, 10, NAN, 10.0f, 1);
    EXPECT_EQ(recorder.calls.size(), 4u);
}

} // namespace
} // namespace orvanta
