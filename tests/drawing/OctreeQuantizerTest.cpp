#include "drawing/OctreeQuantizer.h"

#include "base/Failure.h"
#include "tests/drawing/Rgb.h"
#include "tests/reference/PlainOctree.h"

#include <gtest/gtest.h>

#include <random>

namespace orvanta {
namespace {

using testing::Rgb;

using Pixels = std::vector<std::uint8_t>; // blue, green, red

void Append(Pixels& pixels, int red, int green, int blue) {
    for (const int channel : {blue, green, red})
        pixels.push_back(static_cast<std::uint8_t>(channel));
}

// How often the quantizer could not reduce, and the colours.
struct Outcome {
    int nStuck = 0;
    std::vector<PaletteEntry> means;
    bool operator==(const Outcome&) const = default;
};

Outcome Quantized(const Pixels& pixels, int palSize, int levels) {
    Outcome outcome;
    OctreeQuantizer quantizer(palSize, static_cast<std::uint8_t>(levels), [&] { ++outcome.nStuck; });
    quantizer.AddRow(pixels.data(), pixels.size() / 3);
    outcome.means = quantizer.Means();
    return outcome;
}

Outcome PlainlyQuantized(const Pixels& pixels, int palSize, int levels) {
    Outcome outcome;
    reference::PlainOctree tree(palSize, levels);
    for (std::size_t n = 0; n < pixels.size(); n += 3) {
        if (!tree.AddPixel(pixels[n + 2], pixels[n + 1], pixels[n])) ++outcome.nStuck;
    }
    for (const auto& mean : tree.Means())
        outcome.means.push_back(Rgb(mean[0], mean[1], mean[2]));
    return outcome;
}

enum class Scene { Noise, Gradient, FewColors };

Pixels MakeScene(Scene scene, std::mt19937& random, std::size_t nPixels) {
    const auto upTo = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::vector<std::array<int, 3>> few(40);
    for (auto& color : few)
        color = {upTo(256), upTo(256), upTo(256)};
    Pixels pixels;
    for (std::size_t n = 0; n < nPixels; ++n) {
        const int t = static_cast<int>(255 * n / nPixels);
        switch (scene) {
        case Scene::Noise: Append(pixels, upTo(256), upTo(256), upTo(256)); break;
        case Scene::Gradient: Append(pixels, t, (t * 3 + upTo(20)) % 256, 255 - t); break;
        case Scene::FewColors:
            const auto& color = few[static_cast<std::size_t>(upTo(40))];
            Append(pixels, color[0], color[1], color[2]);
            break;
        }
    }
    return pixels;
}

TEST(OctreeQuantizer, EqualsThePlainTreeByteForByteOnRandomPictures) {
    std::mt19937 random(20240501);
    for (const Scene scene : {Scene::Noise, Scene::Gradient, Scene::FewColors}) {
        for (const int levels : {1, 2, 3, 5, 6, 8}) {
            for (const int palSize : {1, 7, 8, 9, 16, 64, 256, 1000}) {
                const Pixels pixels = MakeScene(scene, random, 3000);
                EXPECT_EQ(Quantized(pixels, palSize, levels), PlainlyQuantized(pixels, palSize, levels))
                    << "scene " << static_cast<int>(scene) << ", " << levels << " levels, " << palSize << " colours";
            }
        }
    }
}

TEST(OctreeQuantizer, EveryPixelAloneComesOutAsItIs) {
    std::mt19937 random(7);
    for (const int levels : {1, 4, 8}) {
        for (int n = 0; n < 200; ++n) {
            Pixels pixels = MakeScene(Scene::Noise, random, 1);
            EXPECT_EQ(Quantized(pixels, 256, levels).means,
                      (std::vector<PaletteEntry>{Rgb(pixels[2], pixels[1], pixels[0])}));
        }
    }
}

TEST(OctreeQuantizer, APictureWithFewerColoursThanWantedKeepsThemExactlyInTheOrderOfTheirFirstPixels) {
    Pixels pixels;
    Append(pixels, 200, 10, 30);
    Append(pixels, 0, 0, 0);
    Append(pixels, 255, 255, 255);
    Append(pixels, 200, 10, 30);
    Append(pixels, 201, 10, 30);
    EXPECT_EQ(Quantized(pixels, 4, 8).means,
              (std::vector<PaletteEntry>{Rgb(200, 10, 30), Rgb(0, 0, 0), Rgb(255, 255, 255), Rgb(201, 10, 30)}));
}

TEST(OctreeQuantizer, ColoursThatFallIntoOneLeafAtTheLastLevelAreMixed) {
    Pixels pixels;
    Append(pixels, 10, 0, 0);
    Append(pixels, 13, 0, 0);
    // Level 1 splits at 128: both are in the lower half.
    EXPECT_EQ(Quantized(pixels, 4, 1).means, std::vector<PaletteEntry>{Rgb(12, 0, 0)}); // 11.5 to the even 12
    Append(pixels, 130, 0, 0);
    EXPECT_EQ(Quantized(pixels, 4, 1).means, (std::vector<PaletteEntry>{Rgb(12, 0, 0), Rgb(130, 0, 0)}));
}

TEST(OctreeQuantizer, MeansAreRoundedHalvesToEven) {
    Pixels pixels;
    Append(pixels, 0, 1, 2);
    Append(pixels, 1, 2, 5);
    EXPECT_EQ(Quantized(pixels, 4, 1).means, std::vector<PaletteEntry>{Rgb(0, 2, 4)}); // 0.5, 1.5 and 3.5
}

TEST(OctreeQuantizer, TheFirstHalfOfEachChannelEndsAt128NotAt127) {
    Pixels pixels;
    Append(pixels, 127, 0, 0);
    Append(pixels, 128, 0, 0); // the middle of 0 and 255 is 127.5, rounded to 128
    EXPECT_EQ(Quantized(pixels, 8, 1).means.size(), 1u);
    Append(pixels, 129, 0, 0);
    EXPECT_EQ(Quantized(pixels, 8, 1).means.size(), 2u);
}

TEST(OctreeQuantizer, ANodeInTheMiddleOfALevelIsMergedWithoutTouchingOthers) {
    Pixels pixels;
    Append(pixels, 0, 0, 0);
    Append(pixels, 200, 200, 200);
    Append(pixels, 250, 250, 250); // the white branch was linked last, so its leaves are merged
    EXPECT_EQ(Quantized(pixels, 2, 2).means, (std::vector<PaletteEntry>{Rgb(0, 0, 0), Rgb(225, 225, 225)}));
}

TEST(OctreeQuantizer, ASurplusLeafStaysWhenNothingCanBeMergedAndEachFurtherPixelAsksAgain) {
    Pixels pixels;
    Append(pixels, 0, 0, 0);
    Append(pixels, 255, 0, 0);
    Append(pixels, 0, 255, 0);
    Append(pixels, 0, 255, 0);
    const Outcome outcome = Quantized(pixels, 2, 1);
    EXPECT_EQ(outcome.nStuck, 2);
    EXPECT_EQ(outcome.means, (std::vector<PaletteEntry>{Rgb(0, 0, 0), Rgb(255, 0, 0), Rgb(0, 255, 0)}));
}

TEST(OctreeQuantizer, FirstBranchesAreNeverMerged) {
    std::mt19937 random(11);
    const Outcome outcome = Quantized(MakeScene(Scene::Noise, random, 500), 1, 6);
    EXPECT_EQ(outcome.means.size(), 8u);
    EXPECT_GT(outcome.nStuck, 0);
}

TEST(OctreeQuantizer, AFailureOfTheCallerEndsTheRow) {
    Pixels pixels;
    Append(pixels, 0, 0, 0);
    Append(pixels, 255, 0, 0);
    OctreeQuantizer quantizer(1, 1, [] { throw InvalidProcedureCall(); });
    EXPECT_THROW(quantizer.AddRow(pixels.data(), 2), Failure);
}

TEST(OctreeQuantizer, LevelsBeyondTheEightListsRaiseSubscriptOutOfRange) {
    Pixels pixels;
    Append(pixels, 1, 2, 3);
    for (const std::uint8_t levels : {std::uint8_t{0}, std::uint8_t{10}}) {
        OctreeQuantizer quantizer(256, levels, [] {});
        try {
            quantizer.AddRow(pixels.data(), 1);
            ADD_FAILURE() << "no failure with " << int{levels} << " levels";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 9u);
        }
    }
    // Leaves on level 9 need no list until two must be merged.
    EXPECT_EQ(Quantized(pixels, 1, 9).means, std::vector<PaletteEntry>{Rgb(1, 2, 3)});
    Append(pixels, 1, 2, 2);
    EXPECT_EQ(Quantized(pixels, 2, 9).means.size(), 2u);
    EXPECT_THROW(Quantized(pixels, 1, 9), Failure);
}

TEST(OctreeQuantizer, ASumBeyond32BitsRaisesOverflow) {
    // 2,147,483,647 / 255 = 8,421,504.5: one white pixel more than that passes the limit.
    const std::size_t nFits = 8421504;
    const Pixels row(3 * 4096, 255);
    OctreeQuantizer quantizer(256, 1, [] {});
    for (std::size_t n = 0; n < nFits / 4096; ++n)
        quantizer.AddRow(row.data(), 4096);
    quantizer.AddRow(row.data(), nFits % 4096);
    EXPECT_EQ(quantizer.Means(), std::vector<PaletteEntry>{Rgb(255, 255, 255)});
    try {
        quantizer.AddRow(row.data(), 1);
        ADD_FAILURE() << "no overflow";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 6u);
    }
}

} // namespace
} // namespace orvanta
