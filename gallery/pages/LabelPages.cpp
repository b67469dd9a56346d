#include "controls/basic/ctlUniLabel.h"
#include "controls/basic/ctlUniLabelNoFlick.h"
#include "gallery/Pages.h"

namespace orvanta::gallery {

namespace {

// Both labels look alike in all their states; they differ in how they come to the screen.
template<typename Label>
void BuildPage(PageBuilder& page) {
    constexpr int kWidth = 116, kHeight = 44;
    const auto show = [&page](std::u16string_view sCaption, const auto& setup) {
        page.Show<Label>(sCaption, kWidth, kHeight, [&setup](Label& c) {
            c.Caption(u"Gr\u00FC\u00DFe, \u017B\u00F3\u0142w, \u0416\u0443\u043A and other words");
            setup(c);
        });
    };
    show(u"Plain", [](Label&) {});
    show(u"Alignment 1", [](Label& c) { c.Alignment(1); });
    show(u"Alignment 2, VAlignment 1", [](Label& c) {
        c.Alignment(2);
        c.VAlignment(1);
    });
    show(u"VAlignment 2", [](Label& c) { c.VAlignment(2); });
    show(u"BorderStyle 1", [](Label& c) { c.BorderStyle(1); });
    show(u"Border, rounded", [](Label& c) {
        c.BorderStyle(1);
        c.RoundedBorders(true);
    });
    show(u"UseRoundRegions", [](Label& c) {
        c.BorderStyle(1);
        c.UseRoundRegions(true);
        c.BackColor(MakeColor(200, 216, 240));
    });
    show(u"AutoSize, Margin 5", [](Label& c) {
        c.Caption(u"Two\r\nlines");
        c.BorderStyle(1);
        c.Margin(5);
        c.AutoSize(true);
    });
    show(u"BackStyle 0: its glyphs", [](Label& c) { c.PutProperty(u"BackStyle", 0); });
    show(u"Disabled", [](Label& c) { c.Enabled(false); });
    show(u"Style 3, coloured", [](Label& c) {
        c.Style(3);
        c.BorderStyle(1);
        c.BackColor(MakeColor(176, 200, 232));
        c.ForeColor(MakeColor(24, 48, 96));
    });
    show(u"An ampersand underlines", [](Label& c) { c.Caption(u"Save &as"); });
}

} // namespace

void BuildLabelPage(PageBuilder& page) {
    BuildPage<ctlUniLabel>(page);
}

void BuildLabelNoFlickPage(PageBuilder& page) {
    BuildPage<ctlUniLabelNoFlick>(page);
}

} // namespace orvanta::gallery
