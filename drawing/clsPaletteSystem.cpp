// What a palette asks the platform: system colours, pictures and the user.
#include "base/Failure.h"
#include "base/Text.h"
#include "drawing/clsDIBSection.h"
#include "drawing/clsPalette.h"
#include "plumbing/SharedColors.h"
#include "plumbing/modUniMsgBox.h"

#include <array>

namespace orvanta {

namespace {

void AskWhetherToGoOn() {
    if (!UniMsgAsk(u"Error in reducing nodes", u"")) ExitProcess(0);
}

} // namespace

void clsPalette::CreateOptimal(const clsDIBSection& oDib, std::int32_t lPalSize, std::uint8_t nLevels,
                               std::optional<std::int32_t> lReservedColor) {
    if (oDib.Bpp() != 24) {
        throw OwnFailure(u"clsPalette.ApplyPalette", u"clsPalette.ApplyPalette.DIB Must be 24 bpp");
    }
    OctreeQuantizer quantizer(lPalSize, nLevels, AskWhetherToGoOn);
    if (oDib.BitsPtr()) {
        GdiFlush();
        const PixelBits pixels = oDib.Pixels();
        for (std::int32_t row = 0; row < pixels.height; ++row)
            quantizer.AddRow(pixels.Row(row), static_cast<std::size_t>(pixels.width));
    }
    Destroy();
    if (lReservedColor) {
        std::uint8_t iRed = 0, iGrn = 0, iBlu = 0;
        pColorToComponents(*lReservedColor, iRed, iGrn, iBlu);
        Add(iRed, iGrn, iBlu);
    }
    const std::vector<PaletteEntry> means = quantizer.Means();
    m_entries.insert(m_entries.end(), means.begin(), means.end());
}

void clsPalette::pColorToComponents(std::int32_t lColor, std::uint8_t& iRed, std::uint8_t& iGrn, std::uint8_t& iBlu) {
    const COLORREF color = static_cast<COLORREF>(ResolveColor(lColor));
    iRed = GetRValue(color);
    iGrn = GetGValue(color);
    iBlu = GetBValue(color);
}

void clsPalette::CreateFromDib(const clsDIBSection& oDib) {
    Destroy();
    UINT nWanted = 0;
    switch (oDib.Bpp()) {
    case 1: nWanted = 1; break; // one, although the table has two: users of 1 bit sections rely on it
    case 4: nWanted = 16; break;
    case 8: nWanted = 256; break;
    default: throw OwnFailure(u"clsPalette.CreateFromDib", u"Cannot create palette!");
    }
    std::array<RGBQUAD, 256> colors{};
    const UINT nGiven = GetDIBColorTable(oDib.Hdc(), 0, nWanted, colors.data());
    for (UINT n = 0; n < nGiven; ++n)
        Add(colors[n].rgbRed, colors[n].rgbGreen, colors[n].rgbBlue);
}

} // namespace orvanta
