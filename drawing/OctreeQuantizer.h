#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace orvanta {

// One entry of a palette, with the bytes in the platform's order.
struct PaletteEntry {
    std::uint8_t blue = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
    std::uint8_t reserved = 0;

    bool operator==(const PaletteEntry&) const = default;
};

// Reduces the colours of a picture to lPalSize or fewer. Each colour falls into a leaf of a tree that halves the three
// channels level by level; when there are more leaves than wanted, the children of the deepest node that was linked
// last are merged into it. Which colours come out, and in which order, depends on the order of the pixels.
//
//     OctreeQuantizer quantizer(256, 6, [] {});
//     for (...) quantizer.AddRow(row, nPixels);
//     palette = quantizer.Means();
//
// Raises SubscriptOutOfRange for nLevels that the eight lists of reducible nodes cannot serve (0, or above 8 as soon as
// a node must be merged), and Overflow when the channel sums of a leaf pass 2,147,483,647. After a failure only Means
// and the destructor may be called.
class OctreeQuantizer {
public:
    // cannotReduce is called when there are too many leaves and none can be merged: with fewer colours asked for than
    // the tree has first branches. When it returns, the surplus leaf stays and the next pixel follows.
    OctreeQuantizer(std::int32_t lPalSize, std::uint8_t nLevels, std::function<void()> cannotReduce);

    // Adds nPixels pixels of three bytes each: blue, green, red.
    void AddRow(const std::uint8_t* pixels, std::size_t nPixels);

    // The mean colour of each leaf, channels rounded halves to even, in the order of the nodes.
    std::vector<PaletteEntry> Means() const;

private:
    static constexpr std::size_t kChildren = 8;
    static constexpr std::size_t kListedLevels = 8;
    static constexpr std::int32_t kNone = 0;
    static constexpr std::int32_t kRoot = 1;

    struct Node {
        std::array<std::int32_t, kChildren> children{}; // by red half + 2 green half + 4 blue half
        std::int32_t lRed = 0, lGreen = 0, lBlue = 0;
        std::int32_t lPixels = 0;
        std::int32_t lNext = kNone; // in the list of its level, or in the list of free nodes
        bool bLeaf = false;
        bool bListed = false;
    };

    void AddColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    bool ReduceTree();
    std::int32_t Allocate();
    void Free(std::int32_t lNode);
    std::int32_t& ListOf(std::size_t nLevel);
    Node& At(std::int32_t lNode) { return m_nodes[static_cast<std::size_t>(lNode)]; }

    std::int32_t m_lPalSize;
    std::size_t m_nLevels;
    std::function<void()> m_cannotReduce;
    std::vector<Node> m_nodes; // [0] is not used
    std::array<std::int32_t, kListedLevels> m_reducible{};
    std::int32_t m_lFree = kNone;
    std::int32_t m_lLeaves = 0;
};

} // namespace orvanta
