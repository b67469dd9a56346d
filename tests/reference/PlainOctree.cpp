#include "tests/reference/PlainOctree.h"

#include <cmath>

namespace orvanta::reference {

// std::nearbyint rounds halves to even in the mode that a test program runs in.

int PlainOctree::Bounds::Narrow(int value) {
    const int middle = static_cast<int>(std::nearbyint(min / 2.0 + max / 2.0));
    if (value <= middle) {
        max = middle;
        return 0;
    }
    min = middle;
    return 1;
}

bool PlainOctree::AddPixel(int red, int green, int blue) {
    AddColor(1, 1, {}, {}, {}, {red, green, blue});
    while (m_leaves > m_palSize) {
        if (!ReduceTree()) return false;
    }
    return true;
}

void PlainOctree::AddColor(int node, int level, Bounds red, Bounds green, Bounds blue, const Rgb& color) {
    const int redHalf = red.Narrow(color[0]), greenHalf = green.Narrow(color[1]), blueHalf = blue.Narrow(color[2]);
    if (m_nodes[static_cast<std::size_t>(node)].children[redHalf][greenHalf][blueHalf] == 0) {
        const int fresh = NewNode();
        m_nodes[static_cast<std::size_t>(node)].children[redHalf][greenHalf][blueHalf] = fresh;
        if (level == m_levels) m_nodes[static_cast<std::size_t>(fresh)].isLeaf = true;
    }
    const int childIndex = m_nodes[static_cast<std::size_t>(node)].children[redHalf][greenHalf][blueHalf];
    Node& child = m_nodes[static_cast<std::size_t>(childIndex)];
    if (child.isLeaf) {
        if (child.pixels == 0) m_leaves += 1;
        child.pixels += 1;
        for (std::size_t channel = 0; channel < 3; ++channel)
            child.sums[channel] += color[channel];
        return;
    }
    if (!child.inList) {
        child.next = m_reducible[level];
        m_reducible[level] = childIndex;
        child.inList = true;
    }
    AddColor(childIndex, level + 1, red, green, blue, color);
}

bool PlainOctree::ReduceTree() {
    int level = m_levels;
    while (level >= 1 && m_reducible[level] == 0)
        level -= 1;
    if (level < 1) return false;
    const int node = m_reducible[level];
    Node& merged = m_nodes[static_cast<std::size_t>(node)];
    m_reducible[level] = merged.next;
    for (int index = 0; index < 8; ++index) {
        int& slot = merged.children[index % 2][index / 2 % 2][index / 4];
        if (slot == 0) continue;
        const Node& child = m_nodes[static_cast<std::size_t>(slot)];
        for (std::size_t channel = 0; channel < 3; ++channel)
            merged.sums[channel] += child.sums[channel];
        merged.pixels += child.pixels;
        FreeNode(slot);
        m_leaves -= 1;
        slot = 0;
    }
    m_leaves += 1;
    merged.isLeaf = true;
    return true;
}

int PlainOctree::NewNode() {
    m_nodeCount += 1;
    if (m_free == 0) {
        if (m_nodeCount > m_upperBound) {
            m_upperBound = static_cast<int>(std::nearbyint(m_nodeCount * 1.1));
            m_nodes.resize(static_cast<std::size_t>(m_upperBound) + 1);
        }
        return m_nodeCount;
    }
    const int node = m_free;
    Node& reused = m_nodes[static_cast<std::size_t>(node)];
    m_free = reused.next;
    for (int index = 0; index < 8; ++index)
        reused.children[index % 2][index / 2 % 2][index / 4] = 0;
    for (std::int64_t& sum : reused.sums)
        sum = 0;
    reused.pixels = 0;
    reused.next = 0;
    return node;
}

void PlainOctree::FreeNode(int node) {
    Node& freed = m_nodes[static_cast<std::size_t>(node)];
    freed.next = m_free;
    m_free = node;
    freed.isLeaf = false;
    freed.inList = false;
    m_nodeCount -= 1;
}

std::vector<PlainOctree::Rgb> PlainOctree::Means() const {
    std::vector<Rgb> means;
    for (int node = 1; node <= m_upperBound; ++node) {
        const Node& leaf = m_nodes[static_cast<std::size_t>(node)];
        if (!leaf.isLeaf) continue;
        Rgb mean{};
        for (std::size_t channel = 0; channel < 3; ++channel) {
            mean[channel] = static_cast<int>(
                std::nearbyint(static_cast<double>(leaf.sums[channel]) / static_cast<double>(leaf.pixels)));
        }
        means.push_back(mean);
    }
    return means;
}

} // namespace orvanta::reference
