#include "controls/basic/ctlImageBag.h"
#include "controls/basic/ctlUniImage.h"
#include "gallery/Pages.h"
#include "gallery/SamplePictures.h"

namespace orvanta::gallery {

void BuildImageBagPage(PageBuilder& page) {
    page.Show<ctlImageBag>(u"Not shown at run time", 90, 40, [](ctlImageBag& bag) {
        bag.Pictures().Add(Landscape(60, 40));
        bag.Pictures().Add(Mark(32));
    });
    const auto& bag = static_cast<const ctlImageBag&>(*page.Specimens().front().control);
    page.Show<ctlUniImage>(u"GetPicture(1)", 80, 50, [&bag](ctlUniImage& c) { c.Picture(bag.GetPicture(1)); });
    page.Show<ctlUniImage>(u"GetPictureClone(2)", 80, 50,
                           [&bag](ctlUniImage& c) { c.Picture(bag.GetPictureClone(2)); });
}

} // namespace orvanta::gallery
