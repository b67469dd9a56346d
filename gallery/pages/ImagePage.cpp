#include "controls/basic/ctlUniImage.h"
#include "gallery/Pages.h"
#include "gallery/SamplePictures.h"

namespace orvanta::gallery {

void BuildImagePage(PageBuilder& page) {
    constexpr int kWidth = 110, kHeight = 66;
    const auto show = [&page](std::u16string_view sCaption, void (*setup)(ctlUniImage&)) {
        page.Show<ctlUniImage>(sCaption, kWidth, kHeight, setup);
    };
    show(u"No picture, Border", [](ctlUniImage& c) { c.Border(true); });
    show(u"A picture that fits", [](ctlUniImage& c) { c.Picture(Landscape(60, 40)); });
    show(u"Stretch leaves it at its size", [](ctlUniImage& c) {
        c.Stretch(true);
        c.Picture(Landscape(60, 40));
    });
    show(u"Too large: cut", [](ctlUniImage& c) { c.Picture(Landscape(150, 80)); });
    show(u"Too large: Stretch", [](ctlUniImage& c) {
        c.Stretch(true);
        c.Border(true);
        c.Picture(Landscape(240, 90));
    });
    show(u"Too high: Stretch", [](ctlUniImage& c) {
        c.Stretch(true);
        c.Picture(Landscape(90, 120));
    });
    show(u"Keyed by its first pixel", [](ctlUniImage& c) {
        c.BackColor(MakeColor(216, 228, 200));
        c.Picture(Mark(48));
    });
    show(u"TransparencyType -1", [](ctlUniImage& c) {
        c.TransparencyType(-1);
        c.Picture(Mark(48));
    });
    show(u"TransparentColor white", [](ctlUniImage& c) {
        c.TransparencyType(1);
        c.TransparentColor(MakeColor(255, 255, 255));
        c.Picture(Mark(48));
    });
    show(u"Keyed and scaled", [](ctlUniImage& c) {
        c.Stretch(true);
        c.BackColor(MakeColor(216, 228, 200));
        c.Picture(Mark(120));
    });
    show(u"Disabled", [](ctlUniImage& c) {
        c.Picture(Landscape(60, 40));
        c.Enabled(false);
    });
    show(u"Disabled and keyed", [](ctlUniImage& c) {
        c.Picture(Mark(48));
        c.Enabled(false);
    });
    show(u"An icon", [](ctlUniImage& c) { c.Picture(SystemIcon()); });
    show(u"Square border, BorderColor", [](ctlUniImage& c) {
        c.Border(true);
        c.RoundedBorders(false);
        c.BorderColor(MakeColor(160, 48, 48));
        c.Picture(Landscape(60, 40));
    });
    show(u"UseRoundRegions", [](ctlUniImage& c) {
        c.Border(true);
        c.UseRoundRegions(true);
        c.Picture(Landscape(60, 40));
    });
}

} // namespace orvanta::gallery
