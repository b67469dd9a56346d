#include "gallery/Pages.h"

namespace orvanta::gallery {

namespace {

constexpr Page kPages[] = {
    {u"ctlUniLabel", BuildLabelPage},          {u"ctlUniLabelNoFlick", BuildLabelNoFlickPage},
    {u"ctlUniButtonImageXP", BuildButtonPage}, {u"ctlUniCheckXP", BuildCheckPage},
    {u"ctlUniFrameXP", BuildFramePage},        {u"ctlUniImage", BuildImagePage},
    {u"ctlImageBag", BuildImageBagPage},
};

} // namespace

std::span<const Page> Pages() {
    return kPages;
}

} // namespace orvanta::gallery
