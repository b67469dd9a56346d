#pragma once

#include "drawing/OctreeQuantizer.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace orvanta {

class clsDIBSection;

// An ordered list of RGB entries, counted from 1, with lookup, fixed palettes and the colours of a picture reduced to a
// given number. Channels are 0 to 255. An index outside the list raises SubscriptOutOfRange.
//
//     clsPalette palette;
//     palette.CreateWebSafe256();
//     const std::int32_t iNearest = palette.ClosestIndex(200, 100, 50);
class clsPalette {
public:
    // The entries become at most lPalSize colours that stand for those of a 24-bit picture, from a tree of nLevels
    // levels (see OctreeQuantizer and its failures). A reserved colour comes first and is not counted in lPalSize. Any
    // other depth raises "DIB Must be 24 bpp" and keeps the entries. When the tree can be reduced no further a message
    // box asks whether to go on: No ends the process at once.
    void CreateOptimal(const clsDIBSection& oDib, std::int32_t lPalSize, std::uint8_t nLevels,
                       std::optional<std::int32_t> lReservedColor = std::nullopt);

    // Appends one entry, also when it is there already.
    void Add(std::uint8_t Red, std::uint8_t Green, std::uint8_t Blue);

    // Splits an OLE colour; a negative one is a system colour.
    static void pColorToComponents(std::int32_t lColor, std::uint8_t& iRed, std::uint8_t& iGrn, std::uint8_t& iBlu);

    void Destroy() { m_entries.clear(); }

    // The first entry with the smallest sum of channel differences. 0 when there is none, and when all are as far away
    // as black from white.
    std::int32_t ClosestIndex(std::uint8_t Red, std::uint8_t Green, std::uint8_t Blue) const;

    std::int32_t Count() const { return static_cast<std::int32_t>(m_entries.size()); }
    std::uint8_t Red(std::int32_t iIndex) const { return At(iIndex).red; }
    std::uint8_t Green(std::int32_t iIndex) const { return At(iIndex).green; }
    std::uint8_t Blue(std::int32_t iIndex) const { return At(iIndex).blue; }
    std::span<const PaletteEntry> Entries() const { return m_entries; }

    void Clone(const clsPalette& cPal) { m_entries = cPal.m_entries; }

    // The colour table of a 1, 4 or 8 bit section, of a 1 bit section its first entry only. Any other depth raises
    // "Cannot create palette!", with the palette empty already.
    void CreateFromDib(const clsDIBSection& oDib);

    void CreateMono2();       // black and white
    void Create16();          // the system colours
    void CreateHalfTone256(); // 125 entries: five values of each channel
    void CreateWebSafe256();  // 255 entries: six values of each channel between the system colours, and greys

private:
    const PaletteEntry& At(std::int32_t iIndex) const;

    std::vector<PaletteEntry> m_entries;
};

// A palette that a caller and the surfaces share; empty for none.
using PaletteReference = std::shared_ptr<clsPalette>;

} // namespace orvanta
