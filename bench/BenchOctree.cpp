// A picture of one megapixel brought down to 256 colours, beside ImageMagick's `convert -colors 256 +dither` on the
// same picture. From the peer's time its own reading is taken off, measured by a run that only reads; nothing is
// written. What both leave of the picture is told as the mean error of a channel.
#include "bench/support/Measure.h"
#include "bench/support/Processes.h"
#include "drawing/OctreeQuantizer.h"
#include "drawing/clsPalette.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using namespace orvanta;

constexpr int kSize = 1024;
using Pixels = std::vector<std::uint8_t>; // red, green, blue

// A landscape of slow waves and a bright disc, with the grain of a photograph.
Pixels MakePicture() {
    std::mt19937 random(42);
    std::normal_distribution<double> grain(0, 6);
    Pixels pixels;
    pixels.reserve(3 * kSize * kSize);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double u = x / 160.0, v = y / 130.0, disc = std::hypot(x - 700, y - 300) < 150 ? 90 : 0;
            const double red = 120 + 90 * std::sin(u) * std::cos(v / 2) + disc;
            const double green = 110 + 70 * std::sin(v + u / 3) + disc / 2;
            const double blue = 90 + 80 * std::cos(u / 2 - v);
            for (const double channel : {red, green, blue})
                pixels.push_back(static_cast<std::uint8_t>(std::clamp(channel + grain(random), 0.0, 255.0)));
        }
    }
    return pixels;
}

Pixels BlueFirst(const Pixels& pixels) {
    Pixels turned = pixels;
    for (std::size_t n = 0; n < turned.size(); n += 3)
        std::swap(turned[n], turned[n + 2]);
    return turned;
}

void WriteFile(const std::string& sPath, const Pixels& pixels) {
    std::ofstream file(sPath, std::ios::binary);
    file << "P6\n" << kSize << ' ' << kSize << "\n255\n";
    file.write(reinterpret_cast<const char*>(pixels.data()), static_cast<std::streamsize>(pixels.size()));
}

Pixels ReadFile(const std::string& sPath) {
    std::ifstream file(sPath, std::ios::binary);
    std::string sMagic;
    int width = 0, height = 0, maximum = 0;
    file >> sMagic >> width >> height >> maximum;
    file.get();
    Pixels pixels(3 * kSize * kSize);
    file.read(reinterpret_cast<char*>(pixels.data()), static_cast<std::streamsize>(pixels.size()));
    return pixels;
}

double MeanError(const Pixels& a, const Pixels& b) {
    double dSum = 0;
    for (std::size_t n = 0; n < a.size(); ++n)
        dSum += std::abs(a[n] - b[n]);
    return dSum / static_cast<double>(a.size());
}

std::vector<PaletteEntry> Reduce(const Pixels& blueFirst) {
    OctreeQuantizer quantizer(256, 6, [] {});
    for (std::size_t row = 0; row < kSize; ++row)
        quantizer.AddRow(blueFirst.data() + row * 3 * kSize, kSize);
    return quantizer.Means();
}

// Every pixel replaced by its nearest entry.
Pixels Mapped(const Pixels& pixels, const clsPalette& palette) {
    std::unordered_map<std::uint32_t, std::int32_t> nearest;
    Pixels mapped;
    for (std::size_t n = 0; n < pixels.size(); n += 3) {
        const auto [place, bNew] =
            nearest.try_emplace(static_cast<std::uint32_t>(pixels[n] << 16 | pixels[n + 1] << 8 | pixels[n + 2]));
        if (bNew) place->second = palette.ClosestIndex(pixels[n], pixels[n + 1], pixels[n + 2]);
        for (const std::uint8_t channel :
             {palette.Red(place->second), palette.Green(place->second), palette.Blue(place->second)}) {
            mapped.push_back(channel);
        }
    }
    return mapped;
}

} // namespace

int main() {
    const Pixels picture = MakePicture(), blueFirst = BlueFirst(picture);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "bench_octree";
    std::filesystem::create_directories(folder);
    const std::string sIn = (folder / "in.ppm").string(), sOut = (folder / "out.ppm").string();
    WriteFile(sIn, picture);

    double dOurs = 1e9, dReading = 1e9, dPeer = 1e9;
    for (int n = 0; n < 9; ++n) {
        dOurs = std::min(dOurs, bench::BestSeconds(1, [&] { bench::Keep(Reduce(blueFirst)); }));
        dReading = std::min(dReading, bench::RunProcess({"convert", sIn, "null:"}).dSeconds);
        dPeer = std::min(dPeer, bench::RunProcess({"convert", sIn, "-colors", "256", "+dither", "null:"}).dSeconds);
    }
    dPeer -= dReading;

    clsPalette palette;
    for (const PaletteEntry& entry : Reduce(blueFirst))
        palette.Add(entry.red, entry.green, entry.blue);
    bench::RunProcess({"convert", sIn, "-colors", "256", "+dither", sOut});
    std::printf("mean error of a channel: ours %.3f with %d colours, ImageMagick %.3f with 256 at most\n",
                MeanError(picture, Mapped(picture, palette)), palette.Count(), MeanError(picture, ReadFile(sOut)));
    std::filesystem::remove_all(folder);
    std::printf(
        "RATIO | 1 megapixel to 256 colours | ours %.1f ms | peer ImageMagick %.1f ms | ratio %.3f | wanted at most "
        "0.25\n",
        dOurs * 1e3, dPeer * 1e3, dOurs / dPeer);
}
