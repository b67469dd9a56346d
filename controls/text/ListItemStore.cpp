#include "controls/text/ListItemStore.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace orvanta {

std::int32_t ListItemStore::Add(ListItem item) {
    if (m_lNextItemId == std::numeric_limits<std::int32_t>::max()) throw Overflow();
    if (!m_bChecks) item.bChecked = false;
    m_items.emplace(m_lNextItemId, std::move(item));
    return m_lNextItemId++;
}

ListItem* ListItemStore::Find(std::int32_t lNumber) {
    const auto found = m_items.find(lNumber);
    return found == m_items.end() ? nullptr : &found->second;
}

const ListItem* ListItemStore::Find(std::int32_t lNumber) const {
    const auto found = m_items.find(lNumber);
    return found == m_items.end() ? nullptr : &found->second;
}

const std::u16string& ListItemStore::TextOf(std::int32_t lNumber) const {
    static const std::u16string sNone;
    const ListItem* item = Find(lNumber);
    return item ? item->sText : sNone;
}

void ListItemStore::InvertCheck(std::int32_t lNumber) {
    if (!m_bChecks) return;
    if (ListItem* item = Find(lNumber)) item->bChecked = !item->bChecked;
}

std::vector<ListItem> ListItemStore::TakeAll() {
    std::vector<std::int32_t> numbers;
    numbers.reserve(m_items.size());
    for (const auto& entry : m_items)
        numbers.push_back(entry.first);
    std::sort(numbers.begin(), numbers.end());
    std::vector<ListItem> all;
    all.reserve(numbers.size());
    for (const std::int32_t lNumber : numbers)
        all.push_back(std::move(m_items[lNumber]));
    m_items.clear();
    return all;
}

std::int32_t CompareItemTexts(std::u16string_view a, std::u16string_view b) {
    const int iOrder = a.compare(b);
    return iOrder < 0 ? -1 : iOrder > 0 ? 1 : 0;
}

std::int32_t FindTypeAhead(std::u16string_view s, std::int32_t lCurrent, std::int32_t lCount,
                           const std::function<std::u16string_view(std::int32_t)>& textAt) {
    const std::u16string sWanted = FoldCase(s);
    for (std::int32_t n = 1; n <= lCount; ++n) {
        const std::int32_t lPosition = (lCurrent + n) % lCount;
        if (FoldCase(textAt(lPosition).substr(0, s.size())) == sWanted) return lPosition;
    }
    return -1;
}

} // namespace orvanta
