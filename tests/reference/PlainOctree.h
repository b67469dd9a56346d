#pragma once

#include <array>
#include <cstdint>
#include <vector>

// The octree of a palette in its plain form: recursive, with the bounds passed down, nodes in one array counted from 1.
namespace orvanta::reference {

class PlainOctree {
public:
    using Rgb = std::array<int, 3>;

    PlainOctree(int palSize, int levels) : m_palSize(palSize), m_levels(levels) {}

    // False when a surplus leaf could not be merged; it stays.
    bool AddPixel(int red, int green, int blue);
    std::vector<Rgb> Means() const;

private:
    struct Bounds {
        int min = 0, max = 255;
        // Which half the value falls into; the bounds become those of that half.
        int Narrow(int value);
    };
    struct Node {
        bool isLeaf = false;
        bool inList = false;
        std::int64_t sums[3] = {0, 0, 0};
        std::int64_t pixels = 0;
        int children[2][2][2] = {};
        int next = 0;
    };

    void AddColor(int node, int level, Bounds red, Bounds green, Bounds blue, const Rgb& color);
    bool ReduceTree();
    int NewNode();
    void FreeNode(int node);

    int m_palSize;
    int m_levels;
    std::vector<Node> m_nodes = std::vector<Node>(51); // [0] unused; [1] is the root
    int m_upperBound = 50;
    int m_nodeCount = 1;
    int m_free = 0;
    int m_leaves = 0;
    int m_reducible[9] = {};
};

} // namespace orvanta::reference
