#include "gallery/SamplePictures.h"

#include "drawing/clsMEMDC.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/SharedShapes.h"

#include <windows.h>

#include <algorithm>
#include <functional>
#include <iterator>

namespace orvanta::gallery {

namespace {

void FillEllipse(HDC dc, int left, int top, int right, int bottom, OleColor c) {
    const OwnedBrush brush = CreateBrushOle(c);
    const Selection pen(dc, GetStockObject(NULL_PEN)), fill(dc, brush.Get());
    Ellipse(dc, left, top, right, bottom);
}

struct Sample {
    const char16_t* sName;
    OlePicture (*make)();
};

constexpr Sample kSamples[] = {
    {u"none", [] { return OlePicture(); }},           {u"landscape", [] { return Landscape(96, 64); }},
    {u"panorama", [] { return Landscape(240, 90); }}, {u"mark", [] { return Mark(24); }},
    {u"icon", [] { return SystemIcon(); }},
};

} // namespace

OlePicture Landscape(int width, int height) {
    clsMEMDC surface;
    surface.CreateDC(width, height, TRANSPARENT);
    const HDC dc = surface.Hdc();
    GradientV(dc, 0, 0, width, height, MakeColor(112, 160, 224), MakeColor(232, 240, 255));
    const int sun = height / 4;
    FillEllipse(dc, width - 2 * sun, sun / 2, width - sun, sun / 2 + sun, MakeColor(248, 200, 72));
    FillEllipse(dc, -width / 4, height / 2, width * 3 / 4, height * 3 / 2, MakeColor(80, 136, 88));
    FillEllipse(dc, width / 3, height * 5 / 8, width * 4 / 3, height * 3 / 2, MakeColor(112, 168, 96));
    return surface.Picture();
}

OlePicture Mark(int size) {
    clsMEMDC surface;
    surface.CreateDC(size, size, TRANSPARENT);
    surface.DrawBackColor(MakeColor(255, 0, 255));
    FillEllipse(surface.Hdc(), 0, 0, size, size, MakeColor(32, 96, 168));
    FillEllipse(surface.Hdc(), size / 4, size / 4, size * 3 / 4, size * 3 / 4, MakeColor(255, 255, 255));
    return surface.Picture();
}

OlePicture SystemIcon() {
    return OlePicture::OfIcon(CopyIcon(LoadIconW(nullptr, IDI_INFORMATION)));
}

OlePicture SampleByName(std::u16string_view sName) {
    const auto found = std::find_if(std::begin(kSamples), std::end(kSamples),
                                    [sName](const Sample& sample) { return sample.sName == sName; });
    return found == std::end(kSamples) ? OlePicture() : found->make();
}

std::vector<std::u16string> SampleNames() {
    std::vector<std::u16string> names;
    for (const Sample& sample : kSamples)
        names.emplace_back(sample.sName);
    return names;
}

} // namespace orvanta::gallery
