#include "utilities/CustomColors.h"

#include "base/ResumeNext.h"
#include "base/TaggedValue.h"
#include "base/Text.h"

#include <algorithm>

namespace orvanta {

std::u16string CustomColors::ToText() const {
    std::u16string sText;
    for (const std::uint32_t lColor : m_colors) {
        if (!sText.empty()) sText += u',';
        sText += DecimalText(lColor);
    }
    return sText;
}

void CustomColors::FromText(std::u16string_view sColors) {
    const auto pieces = Split(sColors, u",");
    const std::size_t nCount = std::min(pieces.size(), kCount);
    for (std::size_t n = 0; n < nCount; ++n) {
        IgnoreFailure([&] {
            const std::int32_t lColor = TaggedValue(pieces[n]).ToInteger();
            if (lColor >= 0 && lColor <= 0xFFFFFF) m_colors[n] = static_cast<std::uint32_t>(lColor);
        });
    }
}

} // namespace orvanta
