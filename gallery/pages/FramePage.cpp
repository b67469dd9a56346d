#include "controls/basic/ctlUniCheckXP.h"
#include "controls/basic/ctlUniFrameXP.h"
#include "gallery/Pages.h"

namespace orvanta::gallery {

void BuildFramePage(PageBuilder& page) {
    constexpr int kWidth = 130, kHeight = 64;
    const auto show = [&page](std::u16string_view sCaption, const auto& setup) {
        page.Show<ctlUniFrameXP>(sCaption, kWidth, kHeight, [&page, &setup](ctlUniFrameXP& c) {
            c.Caption(u"Options");
            setup(c);
            // Places on a frame are twips.
            auto& check = page.Put<ctlUniCheckXP>({180, 390, 1500, 300}, c);
            check.Caption(u"Inside");
            check.BackColor(c.BackColor());
        });
    };
    show(u"Etched", [](ctlUniFrameXP&) {});
    show(u"Etched, without a title", [](ctlUniFrameXP& c) { c.Caption({}); });
    show(u"Etched, disabled", [](ctlUniFrameXP& c) { c.Enabled(false); });
    show(u"Etched, UseShadow", [](ctlUniFrameXP& c) { c.UseShadow(true); });
    show(u"VistaStyle", [](ctlUniFrameXP& c) { c.VistaStyle(true); });
    show(u"VistaStyle, without a title", [](ctlUniFrameXP& c) {
        c.VistaStyle(true);
        c.Caption({});
    });
    show(u"VistaStyle, disabled", [](ctlUniFrameXP& c) {
        c.VistaStyle(true);
        c.Enabled(false);
    });
    show(u"VistaStyle, UseShadow", [](ctlUniFrameXP& c) {
        c.VistaStyle(true);
        c.UseShadow(true);
    });
    show(u"VistaStyle, coloured", [](ctlUniFrameXP& c) {
        c.VistaStyle(true);
        c.BackColor(MakeColor(216, 228, 244));
        c.TitleBackColor(MakeColor(88, 128, 184));
        c.ForeColor(MakeColor(16, 32, 64));
        c.BorderColor(MakeColor(56, 88, 136));
    });
}

} // namespace orvanta::gallery
