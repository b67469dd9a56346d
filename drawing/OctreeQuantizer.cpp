#include "drawing/OctreeQuantizer.h"

#include "base/Failure.h"
#include "base/Rounding.h"

#include <utility>

namespace orvanta {

namespace {

// A linked node stands on level 8 at most, so its leaf child is at most one level deeper.
constexpr std::size_t kPathLevels = 9;
constexpr unsigned kBitsPerLevel = 3;

using PathTable = std::array<std::uint32_t, 256>;

// The halves that a channel value falls into, one bit of three per level, the first level in the lowest bits. The
// bounds are halved with rounding to even, so the halves are not the bits of the value.
PathTable MakePaths(unsigned nChannel) {
    PathTable paths{};
    for (unsigned v = 0; v < 256; ++v) {
        double dMin = 0, dMax = 255;
        for (unsigned level = 0; level < kPathLevels; ++level) {
            const double dMiddle = RoundHalfEven(dMin / 2 + dMax / 2);
            if (v <= dMiddle) {
                dMax = dMiddle;
            } else {
                dMin = dMiddle;
                paths[v] |= 1u << (level * kBitsPerLevel + nChannel);
            }
        }
    }
    return paths;
}

void AddChecked(std::int32_t& lSum, std::int32_t lMore) {
    const std::int64_t lResult = std::int64_t{lSum} + lMore;
    if (lResult > INT32_MAX) throw Overflow();
    lSum = static_cast<std::int32_t>(lResult);
}

} // namespace

OctreeQuantizer::OctreeQuantizer(std::int32_t lPalSize, std::uint8_t nLevels, std::function<void()> cannotReduce)
    : m_lPalSize(lPalSize), m_nLevels(nLevels), m_cannotReduce(std::move(cannotReduce)), m_nodes(kRoot + 1) {}

void OctreeQuantizer::AddRow(const std::uint8_t* pixels, std::size_t nPixels) {
    for (const std::uint8_t* end = pixels + 3 * nPixels; pixels != end; pixels += 3) {
        AddColor(pixels[2], pixels[1], pixels[0]);
        while (m_lLeaves > m_lPalSize) {
            if (ReduceTree()) continue;
            m_cannotReduce();
            break;
        }
    }
}

void OctreeQuantizer::AddColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    static const PathTable redPaths = MakePaths(0), greenPaths = MakePaths(1), bluePaths = MakePaths(2);
    std::uint32_t lPath = redPaths[red] | greenPaths[green] | bluePaths[blue];

    std::int32_t lNode = kRoot;
    for (std::size_t level = 1;; ++level, lPath >>= kBitsPerLevel) {
        const std::size_t nSlot = lPath & (kChildren - 1);
        std::int32_t lChild = At(lNode).children[nSlot];
        if (lChild == kNone) {
            lChild = Allocate();
            At(lNode).children[nSlot] = lChild;
            At(lChild).bLeaf = level == m_nLevels;
        }
        Node& child = At(lChild);
        if (child.bLeaf) {
            if (child.lPixels == 0) ++m_lLeaves;
            AddChecked(child.lPixels, 1);
            AddChecked(child.lRed, red);
            AddChecked(child.lGreen, green);
            AddChecked(child.lBlue, blue);
            return;
        }
        if (!child.bListed) {
            std::int32_t& lHead = ListOf(level);
            child.lNext = std::exchange(lHead, lChild);
            child.bListed = true;
        }
        lNode = lChild;
    }
}

bool OctreeQuantizer::ReduceTree() {
    std::size_t level = m_nLevels;
    while (level > 0 && ListOf(level) == kNone)
        --level;
    if (level == 0) return false;

    std::int32_t& lHead = ListOf(level);
    const std::int32_t lNode = lHead;
    lHead = At(lNode).lNext;
    Node& node = At(lNode);
    for (std::int32_t& lSlot : node.children) {
        const std::int32_t lChild = std::exchange(lSlot, kNone);
        if (lChild == kNone) continue;
        const Node& child = At(lChild);
        AddChecked(node.lPixels, child.lPixels);
        AddChecked(node.lRed, child.lRed);
        AddChecked(node.lGreen, child.lGreen);
        AddChecked(node.lBlue, child.lBlue);
        Free(lChild);
        --m_lLeaves;
    }
    ++m_lLeaves;
    node.bLeaf = true;
    return true;
}

std::int32_t OctreeQuantizer::Allocate() {
    if (m_lFree == kNone) {
        m_nodes.emplace_back();
        return static_cast<std::int32_t>(m_nodes.size() - 1);
    }
    const std::int32_t lNode = m_lFree;
    m_lFree = At(lNode).lNext;
    At(lNode) = Node();
    return lNode;
}

void OctreeQuantizer::Free(std::int32_t lNode) {
    Node& node = At(lNode);
    node.bLeaf = false;
    node.bListed = false;
    node.lNext = std::exchange(m_lFree, lNode);
}

std::int32_t& OctreeQuantizer::ListOf(std::size_t nLevel) {
    if (nLevel < 1 || nLevel > kListedLevels) throw SubscriptOutOfRange();
    return m_reducible[nLevel - 1];
}

std::vector<PaletteEntry> OctreeQuantizer::Means() const {
    std::vector<PaletteEntry> means;
    for (const Node& node : m_nodes) {
        if (!node.bLeaf) continue;
        const auto mean = [&node](std::int32_t lSum) {
            return static_cast<std::uint8_t>(RoundHalfEven(static_cast<double>(lSum) / node.lPixels));
        };
        means.push_back({mean(node.lBlue), mean(node.lGreen), mean(node.lRed)});
    }
    return means;
}

} // namespace orvanta
