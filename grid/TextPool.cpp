#include "grid/TextPool.h"

#include <algorithm>

namespace orvanta {

std::u16string_view TextPool::Keep(std::u16string_view s) {
    if (s.empty()) return {};
    if (s.size() > m_nFree) {
        const std::size_t nBlock = std::max(m_nNextBlock, s.size());
        m_blocks.push_back(std::make_unique_for_overwrite<char16_t[]>(nBlock));
        m_pFree = m_blocks.back().get();
        m_nFree = nBlock;
        m_nReserved += nBlock;
        m_nNextBlock = std::min(m_nNextBlock * 2, kLargestBlock);
    }
    const std::u16string_view sKept(m_pFree, s.size());
    std::copy(s.begin(), s.end(), m_pFree);
    m_pFree += s.size();
    m_nFree -= s.size();
    m_nUsed += s.size();
    return sKept;
}

} // namespace orvanta
