#include "base/Text.h"
#include "controls/basic/ctlUniCheckXP.h"
#include "gallery/Pages.h"

namespace orvanta::gallery {

void BuildCheckPage(PageBuilder& page) {
    constexpr int kWidth = 120, kHeight = 34;
    const auto show = [&page](std::u16string_view sCaption, const auto& setup) {
        page.Show<ctlUniCheckXP>(sCaption, kWidth, kHeight, [&setup](ctlUniCheckXP& c) {
            c.Caption(u"&Wrap lines");
            setup(c);
        });
    };
    show(u"Unchecked", [](ctlUniCheckXP&) {});
    show(u"Pressed", [](ctlUniCheckXP& c) { c.Pressed(true); });
    show(u"Align 1: box at the right", [](ctlUniCheckXP& c) {
        c.Align(1);
        c.Pressed(true);
    });
    show(u"Focus", [](ctlUniCheckXP& c) {
        c.OnEnterFocus();
        c.Host().Refresh();
    });
    show(u"Disabled", [](ctlUniCheckXP& c) { c.Enabled(false); });
    show(u"Disabled and Pressed", [](ctlUniCheckXP& c) {
        c.Pressed(true);
        c.Enabled(false);
    });
    show(u"A caption that wraps", [](ctlUniCheckXP& c) { c.Caption(u"Say when it has gone wrong"); });
    show(u"Colours", [](ctlUniCheckXP& c) {
        c.BackColor(MakeColor(232, 224, 200));
        c.ForeColor(MakeColor(96, 32, 32));
        c.CheckBackColor(MakeColor(255, 248, 224));
        c.CheckForeColor(MakeColor(160, 48, 48));
        c.BorderColor(MakeColor(96, 32, 32));
        c.Pressed(true);
    });
    for (const std::int32_t lStyle : {0, 1, 2, 3, 4, 5, 6, 7, 8}) {
        show(Concat({u"Style ", DecimalText(lStyle)}), [lStyle](ctlUniCheckXP& c) {
            c.Style(lStyle);
            c.Pressed(true);
        });
    }
}

} // namespace orvanta::gallery
