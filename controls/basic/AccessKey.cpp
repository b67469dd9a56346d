#include "controls/basic/AccessKey.h"

namespace orvanta {

std::u16string AccessKeyOf(std::u16string_view sCaption) {
    const std::size_t nFirst = sCaption.find(u'&');
    if (nFirst == std::u16string_view::npos) return {};
    const std::size_t nKey = sCaption.find_first_not_of(u'&', nFirst);
    if (nKey == std::u16string_view::npos) return {};
    return {sCaption[nKey]};
}

} // namespace orvanta
