// The items of the list boxes. The list window is the authority on order and on what is a position; it is asked for the
// number of an item, and the number leads to the text.
#include "base/Text.h"
#include "controls/text/ListBoxCore.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/MSubclass.h"
#include "plumbing/SharedText.h"

#include <utility>

namespace orvanta {

LRESULT ListBoxCore::Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
    return m_hList ? SendMessageW(m_hList, uMsg, wParam, lParam) : 0;
}

// Straight to the list window's own procedure: no such message is hooked, and bulk additions are twice as many steps
// otherwise.
std::int32_t ListBoxCore::SendPosition(UINT uMsg, std::int32_t lPosition, LPARAM lParam) const {
    if (!m_hList) return 0;
    return static_cast<std::int32_t>(
        CallPreviousProc(m_hList, uMsg, static_cast<WPARAM>(static_cast<INT_PTR>(lPosition)), lParam));
}

std::int32_t ListBoxCore::NumberAt(std::int32_t lPosition) const {
    return SendPosition(LB_GETITEMDATA, lPosition);
}

void ListBoxCore::FailIndex(std::u16string_view sMember) const {
    throw OwnFailure(Concat({FailureSource(), sMember}), u"Wrong Index");
}

// The source names the list with pictures in both controls.
void ListBoxCore::FailChecked() const {
    throw OwnFailure(u"ctlUniListboxExXP.Selected", u"Wrong Index");
}

const ListItem& ListBoxCore::ItemAt(std::int32_t lPosition, std::u16string_view sMember) const {
    const ListItem* item = m_items.Find(NumberAt(lPosition));
    if (!item) FailIndex(sMember);
    return *item;
}

ListItem& ListBoxCore::ItemAt(std::int32_t lPosition, std::u16string_view sMember) {
    return const_cast<ListItem&>(std::as_const(*this).ItemAt(lPosition, sMember));
}

const ListItem& ListBoxCore::CheckedItemAt(std::int32_t lPosition) const {
    const ListItem* item = m_items.Find(NumberAt(lPosition));
    if (!item) FailChecked();
    return *item;
}

std::int32_t ListBoxCore::AddItem(std::u16string s, std::int32_t Index, TaggedValue vItemTag, bool bItemChecked) {
    if (!m_hList) return 0;
    const HostCall call; // measuring may raise an event
    if (m_bHScroll) WidenExtent(s);
    const std::int32_t lNumber = m_items.Add({std::move(s), std::move(vItemTag), bItemChecked});
    HWND list = m_hList;
    std::int32_t lPosition = -1;
    {
        const InsideList inside(*this);
        lPosition =
            Index == -1 ? SendPosition(LB_ADDSTRING, 0, lNumber) : SendPosition(LB_INSERTSTRING, Index, lNumber);
    }
    // A handler that has made the list anew has moved the item already.
    if (m_hList != list) return lNumber;
    if (lPosition < 0) m_items.Remove(lNumber);
    m_lNewIndex = lPosition < 0 ? -1 : lPosition;
    return lNumber;
}

void ListBoxCore::WidenExtent(const std::u16string& s) const {
    const WindowDc dc(m_hList);
    const Selection font(dc.Get(), Font().hFont());
    std::int32_t w = 0;
    std::int32_t h = 0;
    MeasureTextLine(dc.Get(), s, DT_NOPREFIX, w, h);
    if (w > Send(LB_GETHORIZONTALEXTENT)) Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(w));
}

void ListBoxCore::RemoveItem(std::int32_t Index) {
    if (!m_hList) return;
    const std::int32_t lNumber = NumberAt(Index);
    if (lNumber == LB_ERR || SendPosition(LB_DELETESTRING, Index) == LB_ERR) FailIndex(u"RemoveItem");
    m_items.Remove(lNumber);
}

void ListBoxCore::Clear() {
    if (!m_hList) return;
    Send(LB_RESETCONTENT);
    m_items = ListItemStore(HasChecks());
    m_lNewIndex = -1;
}

std::int32_t ListBoxCore::ListCount() const {
    return static_cast<std::int32_t>(Send(LB_GETCOUNT));
}

std::u16string ListBoxCore::List(std::int32_t Index) const {
    return m_hList ? ItemAt(Index, u"List").sText : std::u16string();
}

void ListBoxCore::List(std::int32_t Index, std::u16string NewText) {
    if (!m_hList) return;
    ItemAt(Index, u"List").sText = std::move(NewText);
    pvInvalidate();
}

TaggedValue ListBoxCore::ListTag(std::int32_t Index) const {
    return m_hList ? ItemAt(Index, u"ListTag").vTag : TaggedValue();
}

void ListBoxCore::ListTag(std::int32_t Index, TaggedValue NewTag) {
    if (m_hList) ItemAt(Index, u"ListTag").vTag = std::move(NewTag);
}

std::int32_t ListBoxCore::ItemData(std::int32_t Index) const {
    const TaggedValue tag = ListTag(Index);
    try {
        return tag.ToInteger();
    } catch (const Failure& failure) {
        // A number that is too large stays a failure.
        if (failure.Number() != TypeMismatch().Number()) throw;
        return 0;
    }
}

void ListBoxCore::ItemData(std::int32_t Index, std::int32_t NewValue) {
    ListTag(Index, TaggedValue(NewValue));
}

std::int32_t ListBoxCore::ListIndex() const {
    if (!m_hList) return -1;
    return static_cast<std::int32_t>(Send(m_lMultiSelect != 0 ? LB_GETCARETINDEX : LB_GETCURSEL));
}

void ListBoxCore::ListIndex(std::int32_t lNewIndex) {
    if (!m_hList) return;
    const std::int32_t lAnswer = SendPosition(m_lMultiSelect != 0 ? LB_SETCARETINDEX : LB_SETCURSEL, lNewIndex);
    if (lAnswer == LB_ERR && lNewIndex != -1) FailIndex(u"ListIndex");
    Raise(Click);
}

std::u16string ListBoxCore::Text() const {
    const std::int32_t lCurrent = ListIndex();
    // The caret of an empty list may stand on its first line.
    return lCurrent < 0 || lCurrent >= ListCount() ? std::u16string() : List(lCurrent);
}

bool ListBoxCore::Selected(std::int32_t i) const {
    if (!m_hList) return false;
    if (HasChecks()) return CheckedItemAt(i).bChecked;
    const std::int32_t lAnswer = SendPosition(LB_GETSEL, i);
    if (lAnswer == LB_ERR) FailIndex(u"Selected");
    return lAnswer > 0;
}

void ListBoxCore::Selected(std::int32_t i, bool bSel) {
    if (!m_hList) return;
    if (HasChecks()) {
        const_cast<ListItem&>(CheckedItemAt(i)).bChecked = bSel;
        pvInvalidate();
    } else if (Send(LB_SETSEL, bSel ? TRUE : FALSE, i) == LB_ERR) {
        FailIndex(u"Selected");
    }
}

std::int32_t ListBoxCore::SelCount() const {
    if (!m_hList) return 0;
    if (!HasChecks()) {
        const auto lCount = static_cast<std::int32_t>(Send(LB_GETSELCOUNT));
        if (lCount == LB_ERR) FailIndex(u"Selected");
        return lCount;
    }
    std::int32_t lChecked = 0;
    const std::int32_t lCount = ListCount();
    for (std::int32_t l = 0; l < lCount; ++l)
        lChecked += CheckedItemAt(l).bChecked ? 1 : 0;
    return lChecked;
}

void ListBoxCore::BeginUpdate() {
    Send(WM_SETREDRAW, FALSE);
}

void ListBoxCore::EndUpdate() {
    Send(WM_SETREDRAW, TRUE);
    pvInvalidate();
}

std::int32_t ListBoxCore::GetListIndexByY(std::int32_t Y) const {
    return ItemAtPoint(Y, nullptr);
}

// The platform's own search knows no more than 65,536 items, and answers with the nearest one.
std::int32_t ListBoxCore::ItemAtPoint(std::int32_t Y, const std::int32_t* X) const {
    RECT client{};
    if (m_hList) GetClientRect(m_hList, &client);
    const std::int32_t lCount = ListCount();
    for (auto l = static_cast<std::int32_t>(Send(LB_GETTOPINDEX)); l < lCount; ++l) {
        RECT rect{};
        if (SendPosition(LB_GETITEMRECT, l, reinterpret_cast<LPARAM>(&rect)) == LB_ERR) return -1;
        if (Y >= rect.top && Y < rect.bottom && (!X || (*X >= rect.left && *X < rect.right))) return l;
        if (m_iColumns > 0 ? rect.left >= client.right : rect.top >= client.bottom) return -1;
    }
    return -1;
}

std::int32_t ListBoxCore::pvCompareItems(const COMPAREITEMSTRUCT& record) const {
    return CompareItemTexts(m_items.TextOf(static_cast<std::int32_t>(record.itemData1)),
                            m_items.TextOf(static_cast<std::int32_t>(record.itemData2)));
}

} // namespace orvanta
