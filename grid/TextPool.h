#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace orvanta {

// Keeps texts one behind the other in large blocks: a new text costs no allocation, and all are dropped at once. A
// single text is never released; the pool counts what was given up, and its owner moves what it still needs into a
// fresh pool when that pays.
class TextPool {
public:
    // A copy that lives as long as the pool.
    std::u16string_view Keep(std::u16string_view s);

    // Says that a kept text of that length is not needed any more.
    void GiveUp(std::size_t nLength) { m_nGivenUp += nLength; }
    // More than half of a pool of some size is given up.
    bool WantsMoving() const { return m_nGivenUp > kWorthMoving && m_nGivenUp > m_nUsed / 2; }

    // What the blocks occupy.
    std::size_t Bytes() const { return m_nReserved * sizeof(char16_t); }

private:
    static constexpr std::size_t kFirstBlock = 128;
    static constexpr std::size_t kLargestBlock = std::size_t{1} << 19;
    static constexpr std::size_t kWorthMoving = 4096;

    std::vector<std::unique_ptr<char16_t[]>> m_blocks;
    char16_t* m_pFree = nullptr;
    std::size_t m_nFree = 0;
    std::size_t m_nNextBlock = kFirstBlock;
    std::size_t m_nReserved = 0;
    std::size_t m_nUsed = 0;
    std::size_t m_nGivenUp = 0;
};

} // namespace orvanta
