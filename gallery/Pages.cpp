#include "gallery/Pages.h"

namespace orvanta::gallery {

namespace {

constexpr Page kPages[] = {
    {u"ctlUniImage", BuildImagePage},
    {u"ctlImageBag", BuildImageBagPage},
};

} // namespace

std::span<const Page> Pages() {
    return kPages;
}

} // namespace orvanta::gallery
