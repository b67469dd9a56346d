#pragma once

#include "base/TaggedValue.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvanta {

// What a list box keeps of one item. The list window itself has no texts, only the item's number.
struct ListItem {
    std::u16string sText;
    TaggedValue vTag;
    bool bChecked = false;
};

// The items of a list box by their numbers. Numbers run from 0 and are never used twice. The order on the screen is the
// list window's matter.
class ListItemStore {
public:
    // Without checks every item is unchecked, whatever it is added with.
    explicit ListItemStore(bool bChecks = false) : m_bChecks(bChecks) {}

    std::size_t Count() const { return m_items.size(); }
    bool Empty() const { return m_items.empty(); }
    bool KeepsChecks() const { return m_bChecks; }
    // For an empty store: its numbers run on.
    void KeepChecks(bool b) { m_bChecks = b; }

    // Answers with the item's number. Raises Overflow when there is none left.
    std::int32_t Add(ListItem item);
    void Remove(std::int32_t lNumber) { m_items.erase(lNumber); }

    // nullptr for a number that is not in use.
    ListItem* Find(std::int32_t lNumber);
    const ListItem* Find(std::int32_t lNumber) const;
    // "" for a number that is not in use.
    const std::u16string& TextOf(std::int32_t lNumber) const;
    // Turns the flag of an item round, if flags are kept.
    void InvertCheck(std::int32_t lNumber);

    // All items in the order of their addition; the store is of no use behind this.
    std::vector<ListItem> TakeAll();

private:
    std::unordered_map<std::int32_t, ListItem> m_items;
    std::int32_t m_lNextItemId = 0;
    bool m_bChecks;
};

// The order of sorted items: -1, 0 or 1, by code unit, so that "Z" stands before "a".
std::int32_t CompareItemTexts(std::u16string_view a, std::u16string_view b);

// The position of the next item behind the current one (-1 for none) whose text starts with s, upper and lower case
// alike; the search goes on at the first item. -1 when there is none.
std::int32_t FindTypeAhead(std::u16string_view s, std::int32_t lCurrent, std::int32_t lCount,
                           const std::function<std::u16string_view(std::int32_t)>& textAt);

} // namespace orvanta
