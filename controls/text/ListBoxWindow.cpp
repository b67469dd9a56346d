// The life of the list window: start, styles, messages asked for, size, end.
#include "controls/text/ListBoxCore.h"
#include "plumbing/MSubclass.h"
#include "plumbing/SharedShapes.h"

#include <algorithm>
#include <utility>

namespace orvanta {

namespace {

constexpr DWORD kListStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
static_assert((kListStyle | LBS_OWNERDRAWFIXED) == 0x50310111);

constexpr std::int32_t kInset = 2;
constexpr int kRegionCorner = 2;

struct WantedMessage {
    UINT uMsg;
    std::int32_t lResponse;
};

constexpr WantedMessage kHostMessages[] = {
    {WM_SETFOCUS, mrAfterPrevious},       {WM_MOUSEACTIVATE, mrAfterPrevious}, {WM_CTLCOLORLISTBOX, mrAfterPrevious},
    {WM_SYSCOLORCHANGE, mrAfterPrevious}, {WM_DRAWITEM, mrBeforePrevious},     {WM_MEASUREITEM, mrBeforePrevious},
    {WM_COMPAREITEM, mrBeforePrevious},   {WM_COMMAND, mrBeforePrevious},
};

constexpr WantedMessage kListMessages[] = {
    {WM_SETFOCUS, mrBeforePrevious},
    {WM_SETCURSOR, mrBeforePrevious},
    {WM_KEYDOWN, mrBeforePrevious},
    {WM_KEYUP, mrBeforePrevious},
    {WM_CHAR, mrBeforePrevious},
    {WM_IME_STARTCOMPOSITION, mrBeforePrevious},
    {WM_IME_ENDCOMPOSITION, mrBeforePrevious},
    {WM_IME_COMPOSITION, mrBeforePrevious},
    {WM_HSCROLL, mrAfterPrevious},
    {WM_MOUSEMOVE, mrBeforePrevious},
    {WM_LBUTTONDOWN, mrBeforePrevious},
    {WM_LBUTTONUP, mrBeforePrevious},
    {WM_RBUTTONDOWN, mrBeforePrevious},
    {WM_RBUTTONUP, mrBeforePrevious},
    {WM_MBUTTONDOWN, mrBeforePrevious},
    {WM_MBUTTONUP, mrBeforePrevious},
    {WM_MOUSEWHEEL, mrBeforePrevious},
};

} // namespace

void ListBoxCore::OnReadProperties(const PropertyBag& bag) {
    TableControl::OnReadProperties(bag);
    if (!m_bManualStart) IgnoreFailure([this] { pvStartList(); });
}

void ListBoxCore::ExternalInitControl() {
    const HostCall call;
    pvStartList();
    OnResize();
}

void ListBoxCore::pvStartList() {
    if (m_bStarted || !UserMode() || !Host().hWnd()) return;
    m_bStarted = true;
    m_items = ListItemStore(HasChecks());
    m_activeHook.InstallActiveHook(*this);
    pvAttachHostMessages();
    pvRecreateList(-1);
}

void ListBoxCore::OnTerminate() {
    pvDetachHostMessages();
    m_activeHook.RemoveActiveHook();
    EndListWindow();
    m_bStarted = false;
    m_backBrush.Destroy();
    m_listFont = {};
}

void ListBoxCore::pvAttachHostMessages() {
    for (const WantedMessage& wanted : kHostMessages)
        HookMessage(*this, Host().hWnd(), wanted.uMsg, wanted.lResponse);
}

void ListBoxCore::pvDetachHostMessages() {
    for (const WantedMessage& wanted : kHostMessages)
        UnhookMessage(*this, Host().hWnd(), wanted.uMsg);
}

void ListBoxCore::pvAttachListMessages() {
    for (const WantedMessage& wanted : kListMessages)
        HookMessage(*this, m_hList, wanted.uMsg, wanted.lResponse);
}

void ListBoxCore::pvDetachListMessages() {
    for (const WantedMessage& wanted : kListMessages)
        UnhookMessage(*this, m_hList, wanted.uMsg);
}

void ListBoxCore::pvRecreateList(std::int32_t lCurrent) {
    if (!m_bStarted) return;
    const HostCall call; // adding items and choosing one raise events
    const bool bHadFocus = m_hList && GetFocus() == m_hList;
    EndListWindow();
    MakeListWindow();
    if (!m_hList) return;
    if (bHadFocus) SetFocus(m_hList);
    if (m_items.Empty()) {
        m_items.KeepChecks(HasChecks());
    } else {
        std::vector<ListItem> items = m_items.TakeAll();
        m_items = ListItemStore(HasChecks());
        MoveItems(std::move(items), lCurrent);
    }
    pvInvalidate();
}

void ListBoxCore::MakeListWindow() {
    DWORD style = kListStyle | OwnerDrawStyle();
    if (m_lMultiSelect == 1) style |= LBS_MULTIPLESEL;
    if (m_lMultiSelect == 2) style |= LBS_EXTENDEDSEL;
    if (m_bSorted) style |= LBS_SORT;
    if (m_iColumns > 0) style |= LBS_MULTICOLUMN;
    m_bBrushDirty = true;
    m_backBrush.Destroy();
    const RECT inner = InnerPixels();
    m_hList = CreateWindowExW(0, L"LISTBOX", nullptr, style, inner.left, inner.top, inner.right - inner.left,
                              inner.bottom - inner.top, Host().hWnd(), nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!m_hList) return;
    pvSetColumnWidth();
    SendFont();
    pvAttachListMessages();
}

void ListBoxCore::MoveItems(std::vector<ListItem> items, std::int32_t lCurrent) {
    struct Update {
        ListBoxCore& list;
        explicit Update(ListBoxCore& l) : list(l) { list.BeginUpdate(); }
        Update(const Update&) = delete;
        Update& operator=(const Update&) = delete;
        ~Update() { list.EndUpdate(); }
    };
    const Update update(*this);
    for (ListItem& item : items) {
        if (!m_hList) return;
        AddItem(std::move(item.sText), -1, std::move(item.vTag), item.bChecked);
    }
    if (lCurrent != -1) ListIndex(lCurrent);
}

void ListBoxCore::EndListWindow() {
    if (!m_hList) return;
    pvDetachListMessages();
    HWND list = std::exchange(m_hList, nullptr);
    if (m_nInsideList == 0) {
        DestroyWindow(list);
    } else {
        ShowWindow(list, SW_HIDE);
        SetParent(list, HWND_MESSAGE);
        m_setAside.push_back(list);
    }
}

ListBoxCore::InsideList::~InsideList() {
    if (--m_list.m_nInsideList > 0) return;
    for (HWND list : std::exchange(m_list.m_setAside, {}))
        DestroyWindow(list);
}

RECT ListBoxCore::InnerPixels() const {
    return {kInset, kInset, std::max(kInset, ClientPixelWidth() - kInset),
            std::max(kInset, ClientPixelHeight() - kInset)};
}

void ListBoxCore::pvSetColumnWidth() const {
    if (m_iColumns <= 0) return;
    const RECT inner = InnerPixels();
    Send(LB_SETCOLUMNWIDTH, static_cast<WPARAM>((inner.right - inner.left) / m_iColumns));
}

void ListBoxCore::SendFont() {
    m_listFont = Font();
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(m_listFont.hFont()), TRUE);
}

void ListBoxCore::OnResize() {
    pvRebuildShape();
    if (m_hList) {
        const RECT inner = InnerPixels();
        SetWindowPos(m_hList, nullptr, 0, 0, inner.right - inner.left, inner.bottom - inner.top,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        pvSetColumnWidth();
        // A form that comes to a screen of another resolution changes the font object itself.
        if (Send(WM_GETFONT) != reinterpret_cast<LRESULT>(Font().hFont())) SendFont();
    }
    pvInvalidate();
}

void ListBoxCore::pvRebuildShape() {
    HWND host = Host().hWnd();
    if (!host) return;
    if (m_bUseRoundRegions && m_bRoundedBorders) {
        OwnedRegion region = MakeRoundRegion(ClientPixelWidth(), ClientPixelHeight(), kRegionCorner);
        m_bHasRegion = SetWindowRgn(host, region.Get(), TRUE) != 0;
        if (m_bHasRegion) region.Release(); // the window has taken it over
    } else if (std::exchange(m_bHasRegion, false)) {
        SetWindowRgn(host, nullptr, TRUE);
    }
}

} // namespace orvanta
