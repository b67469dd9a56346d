#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// The custom colours of the colour dialog: sixteen plain 0x00BBGGRR values, white until they are set. As text they are
// their decimal numbers in order, separated by commas.
class CustomColors {
public:
    static constexpr std::size_t kCount = 16;

    CustomColors() { m_colors.fill(kWhite); }

    // The dialog's own record: it reads the colours from here and stores them here.
    std::uint32_t* Data() { return m_colors.data(); }

    std::u16string ToText() const;
    // An entry that is missing, or is no plain colour, leaves its colour as it is; entries beyond the sixteenth count
    // for nothing.
    void FromText(std::u16string_view sColors);

private:
    static constexpr std::uint32_t kWhite = 0xFFFFFF;

    std::array<std::uint32_t, kCount> m_colors{};
};

} // namespace orvanta
