#include "base/Text.h"
#include "controls/basic/ctlUniButtonImageXP.h"
#include "gallery/Pages.h"
#include "gallery/SamplePictures.h"

namespace orvanta::gallery {

void BuildButtonPage(PageBuilder& page) {
    constexpr int kWidth = 88, kHeight = 42;
    constexpr std::int32_t kLayouts = 12, kStyles = 9;
    const auto show = [&page](std::u16string_view sCaption, const auto& setup) {
        page.Show<ctlUniButtonImageXP>(sCaption, kWidth, kHeight, [&setup](ctlUniButtonImageXP& c) {
            c.Caption(u"Open");
            c.Style(-1);
            c.BorderColor(kAutomatic);
            setup(c);
        });
    };
    show(u"Style -1", [](ctlUniButtonImageXP&) {});
    show(u"Rounded", [](ctlUniButtonImageXP& c) { c.RoundedBorders(true); });
    show(u"Mouse down", [](ctlUniButtonImageXP& c) { c.OnMouseDown(1, 0, 5, 5); });
    show(u"Tristate, Pressed", [](ctlUniButtonImageXP& c) {
        c.Tristate(true);
        c.Pressed(true);
    });
    show(u"Focus", [](ctlUniButtonImageXP& c) { c.OnEnterFocus(); });
    show(u"Default left, Cancel right", [](ctlUniButtonImageXP& c) {
        ControlExtender& extender = c.Host().Extender();
        if (c.Host().Ambient().UserMode()) {
            extender.Default(true);
        } else {
            extender.Cancel(true);
        }
    });
    show(u"Disabled", [](ctlUniButtonImageXP& c) {
        c.Picture(Mark(16));
        c.Enabled(false);
    });
    show(u"Stretch", [](ctlUniButtonImageXP& c) {
        c.Caption({});
        c.Stretch(true);
        c.Picture(Landscape(150, 60));
    });
    for (std::int32_t lStyle = 0; lStyle < kStyles; ++lStyle) {
        show(Concat({u"Style ", DecimalText(lStyle)}), [lStyle](ctlUniButtonImageXP& c) {
            c.Style(lStyle);
            c.RoundedBorders(true);
            c.BackColor(MakeColor(176, 200, 232));
        });
    }
    for (std::int32_t lPos = 0; lPos < kLayouts; ++lPos) {
        show(Concat({u"ImagePos ", DecimalText(lPos)}), [lPos](ctlUniButtonImageXP& c) {
            c.ImagePos(lPos);
            c.Picture(Mark(16));
        });
    }
}

} // namespace orvanta::gallery
