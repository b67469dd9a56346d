#pragma once

#include "grid/GridLocale.h"

namespace orvanta {

// The language of the user as the system knows it, asked at each call.
class SystemGridLocale : public GridLocale {
public:
    char16_t DecimalSeparator() const override;
    void AppendSortKey(std::u16string_view s, std::string& sKey) const override;
};

} // namespace orvanta
