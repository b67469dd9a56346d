#pragma once

#include "base/Event.h"
#include "controls/contract/Control.h"
#include "controls/text/ActiveHook.h"
#include "controls/text/ListItemLayout.h"
#include "controls/text/ListItemStore.h"
#include "drawing/clsGdiHandle.h"
#include "plumbing/ISubclass.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// The events of a list box beside those of every control; they come from the list window, in its client pixels. The
// wheel's X and Y are pixels of the screen. A key that a handler of KeyDown, KeyPress or KeyUp changes to 0 goes no
// further; KeyAscii is a UTF-16 code unit, and another one that a handler puts there is taken instead.
struct ListBoxEvents {
    Event<std::int16_t&, std::int16_t&> KeyDown;                           // KeyCode, Shift
    Event<std::int16_t&, std::int16_t&> KeyPress;                          // KeyAscii, Shift
    Event<std::int16_t&, std::int16_t&> KeyUp;                             // KeyCode, Shift
    Event<std::int16_t&, std::int16_t&, float&, float&, bool&> MouseWheel; // Button, Shift, X, Y, bDown
    Event<const std::u16string&> IMEComposition;                           // sText
};

// What the two list boxes have in common, and that is nearly all: a LISTBOX window without texts keeps the order, the
// selection and the scroll position; the texts, tags and check flags stand in a store, and every item is drawn here.
//
// Positions count from 0; a wrong one raises Failure::kOwn "Wrong Index" with the member as source. Before the control
// is started (in design mode always) there is no list: members answer with nothing, 0 or -1 and do nothing.
class ListBoxCore : public TableControl<ListBoxCore, FaceControl>, public ListBoxEvents, private ISubclass {
public:
    virtual const PropertyTable<ListBoxCore>& Table() const = 0;

    // The list window; none until started.
    HWND hwnd() const { return m_hList; }
    // Starts a control that does not start by itself, in run mode only.
    void ExternalInitControl();

    // Adds an item and answers with its number. Index -1 appends it, or finds its place when the list is sorted.
    std::int32_t AddItem(std::u16string s, std::int32_t Index = -1, TaggedValue vItemTag = {},
                         bool bItemChecked = false);
    void RemoveItem(std::int32_t Index);
    void Clear();
    std::int32_t ListCount() const;
    // Where the last added item stands; -1 when there is none.
    std::int32_t NewIndex() const { return m_lNewIndex; }

    std::u16string List(std::int32_t Index) const;
    void List(std::int32_t Index, std::u16string NewText);
    TaggedValue ListTag(std::int32_t Index) const;
    void ListTag(std::int32_t Index, TaggedValue NewTag);
    // The tag as a number; 0 when it is none.
    std::int32_t ItemData(std::int32_t Index) const;
    void ItemData(std::int32_t Index, std::int32_t NewValue);

    // The current item, or the one with the caret in a list with several selected ones; -1 for none. Setting it raises
    // Click.
    std::int32_t ListIndex() const;
    void ListIndex(std::int32_t lNewIndex);
    // The text of the current item, "" without one.
    std::u16string Text() const;
    // In a list with check boxes the check flag, never the highlight.
    bool Selected(std::int32_t i) const;
    void Selected(std::int32_t i, bool bSel);
    // Fails in a list without check boxes and without MultiSelect.
    std::int32_t SelCount() const;

    // Nothing is drawn in between. Calls are not counted: the first EndUpdate ends it.
    void BeginUpdate();
    void EndUpdate();
    // The item at a row of pixels of the list window, -1 for none.
    std::int32_t GetListIndexByY(std::int32_t Y) const;
    bool IsInIME() const { return m_bInIME; }

    // The height of the items stays as it is.
    OleFont Font() const { return Control::Font(); }
    void Font(const OleFont& New_Font);
    OleFont ApplyFontChanges();

    OleColor BorderColor() const { return m_borderColor; }
    void BorderColor(OleColor c);
    OleColor BackColor() const { return m_backColor; }
    void BackColor(OleColor c);
    OleColor ForeColor() const { return m_foreColor; }
    void ForeColor(OleColor c);
    OleColor SelBackColor() const { return m_selBackColor; }
    void SelBackColor(OleColor c);
    OleColor SelForeColor() const { return m_selForeColor; }
    void SelForeColor(OleColor c);
    OleColor BackColorOut() const { return m_backColorOut; }
    void BackColorOut(OleColor c);
    // The Tab key comes as KeyDown and KeyUp and does not leave the control.
    bool TrapTabKey() const { return m_bTrapTab; }
    void TrapTabKey(bool b) { m_bTrapTab = b; }
    // 0 none, 1 simple, 2 extended. This and the next two make the window anew when it stands: items come in the order
    // of their addition then, with new numbers.
    std::int32_t MultiSelect() const { return m_lMultiSelect; }
    void MultiSelect(std::int32_t l);
    // By code units.
    bool Sorted() const { return m_bSorted; }
    void Sorted(bool b);
    // 0 plain, 1 check boxes. A change only; flags do not survive a change to 0.
    std::int32_t Style() const { return m_lStyle; }
    void Style(std::int32_t l);
    // The list can be scrolled as far as the longest text that has been added while this was set.
    bool HScroll() const { return m_bHScroll; }
    void HScroll(bool b);
    bool RoundedBorders() const { return m_bRoundedBorders; }
    void RoundedBorders(bool b);
    // Rounds the window itself too. Sets RoundedBorders to the same value.
    bool UseRoundRegions() const { return m_bUseRoundRegions; }
    void UseRoundRegions(bool b);
    // The face of selected items: 0 to 8, or -1 for the style of the process.
    std::int32_t SelectorStyle() const { return m_lSelectorStyle; }
    void SelectorStyle(std::int32_t l);
    bool RoundSelector() const { return m_bRoundSelector; }
    void RoundSelector(bool b);
    bool ManualStart() const { return m_bManualStart; }
    void ManualStart(bool b) { m_bManualStart = b; }
    bool ScrollOnMouseWheel() const { return m_bScrollOnMouseWheel; }
    void ScrollOnMouseWheel(bool b) { m_bScrollOnMouseWheel = b; }

    void OnInitProperties() override { Table().SetDefaults(*this); }
    void OnReadProperties(const PropertyBag& bag) override;
    void OnPaint() override { DrawControl(); }
    void OnResize() override;
    void OnTerminate() override;

    // What the control does with a key before the form looks at it; true when it has taken the key.
    bool TakeKey(UINT uMsg, WPARAM wParam, LPARAM lParam);

protected:
    explicit ListBoxCore(ControlHost& host) : TableControl(host) {}

    // The two kinds of table: with Columns, or with the properties of pictures.
    enum class Kind { Columns, Pictures };
    static PropertyTable<ListBoxCore> MakeTable(Kind kind);

    // How the control names itself in its failures; it ends in a dot.
    virtual std::u16string_view FailureSource() const = 0;
    // LBS_OWNERDRAWFIXED or LBS_OWNERDRAWVARIABLE.
    virtual DWORD OwnerDrawStyle() const = 0;
    virtual void pvMeasureItem(MEASUREITEMSTRUCT& record) = 0;
    virtual void pvDrawItem(const DRAWITEMSTRUCT& record) = 0;

    void pvInvalidate() override;
    void pvRebuildShape() override;

    void SetColumns(std::int16_t i);
    void SetAllowImages(bool b);

    // The height of an item with nothing but text.
    static std::int32_t PlainItemHeight(HDC dc);
    void DrawCheckBox(HDC dc, const PixelRect& box, bool bChecked) const;
    // Answers with the colour of the text on it.
    OleColor DrawItemFace(HDC dc, const PixelRect& item, bool bSelected) const;
    static void DrawItemText(HDC dc, const std::u16string& s, const PixelRect& rect, OleColor c);
    OleColor TextColor() const;
    bool HasChecks() const { return m_lStyle == 1; }
    const ListItemStore& Items() const { return m_items; }

    std::int16_t m_iColumns = 0;
    std::int16_t m_iIconDim = 16;
    bool m_bAllowImages = true;

private:
    void WindowProc(bool bBefore, bool& bStopMsg, LRESULT& lReturn, HWND window, UINT uMsg, WPARAM wParam,
                    LPARAM lParam) override;
    void OnHostMessage(bool& bStopMsg, LRESULT& lReturn, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void OnListMessage(bool& bStopMsg, LRESULT& lReturn, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void OnListMouse(bool& bStopMsg, LRESULT& lReturn, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void OnListWheel(WPARAM wParam, LPARAM lParam);
    void OnListChar(WPARAM wParam);
    void OnComposition();
    void OnCtlColor(LRESULT& lReturn, HDC dc);
    // True when the press was on an item and has been seen to.
    bool pvCheckClick(LRESULT& lReturn, WPARAM wParam, LPARAM lParam);
    void pvInvertCheck(std::int32_t lPosition);
    void pvTypeAhead(std::u16string_view s);
    bool SetListCursor() const;
    bool KeyEndsHere(const Event<std::int16_t&, std::int16_t&>& event, WPARAM wParam) const;
    // Raises the event and answers with the key that is left, 0 when the control has been removed.
    std::int16_t RaiseKey(const Event<std::int16_t&, std::int16_t&>& event, WPARAM wParam) const;

    void pvStartList();
    // Makes the list window, or makes it anew, and moves the items; lCurrent is chosen then, unless it is -1.
    void pvRecreateList(std::int32_t lCurrent);
    void MakeListWindow();
    void MoveItems(std::vector<ListItem> items, std::int32_t lCurrent);
    void EndListWindow();
    // Marks the time in which the list window asks about a new item. It does not survive its own end there: one that
    // comes to its end meanwhile is set aside and destroyed behind the last mark.
    class InsideList {
    public:
        explicit InsideList(ListBoxCore& list) : m_list(list) { ++m_list.m_nInsideList; }
        InsideList(const InsideList&) = delete;
        InsideList& operator=(const InsideList&) = delete;
        ~InsideList();

    private:
        ListBoxCore& m_list;
    };
    void pvAttachListMessages();
    void pvDetachListMessages();
    void pvAttachHostMessages();
    void pvDetachHostMessages();
    void pvSetColumnWidth() const;
    void SendFont();
    RECT InnerPixels() const;
    void DrawControl();
    void RenewBrush();

    LRESULT Send(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) const;
    std::int32_t SendPosition(UINT uMsg, std::int32_t lPosition, LPARAM lParam = 0) const;
    // The number of the item at a position, -1 for none.
    std::int32_t NumberAt(std::int32_t lPosition) const;
    [[noreturn]] void FailIndex(std::u16string_view sMember) const;
    [[noreturn]] void FailChecked() const;
    const ListItem& ItemAt(std::int32_t lPosition, std::u16string_view sMember) const;
    ListItem& ItemAt(std::int32_t lPosition, std::u16string_view sMember);
    const ListItem& CheckedItemAt(std::int32_t lPosition) const;
    std::int32_t ItemAtPoint(std::int32_t Y, const std::int32_t* X) const;
    void WidenExtent(const std::u16string& s) const;
    std::int32_t pvCompareItems(const COMPAREITEMSTRUCT& record) const;

    OleColor m_borderColor = kAutomatic;
    OleColor m_backColor = kSystemWindow;
    OleColor m_foreColor = kSystemWindowText;
    OleColor m_selBackColor = kSystemHighlight;
    OleColor m_selForeColor = kSystemHighlightText;
    OleColor m_backColorOut = kAutomatic;
    bool m_bTrapTab = false;
    std::int32_t m_lMultiSelect = 0;
    bool m_bSorted = false;
    bool m_bHScroll = false;
    bool m_bRoundedBorders = false;
    std::int32_t m_lSelectorStyle = -1;
    bool m_bRoundSelector = false;
    bool m_bUseRoundRegions = false;
    bool m_bManualStart = false;
    std::int32_t m_lStyle = 0;
    bool m_bScrollOnMouseWheel = true;

    ActiveHook<ListBoxCore> m_activeHook;
    HWND m_hList = nullptr;
    int m_nInsideList = 0;
    std::vector<HWND> m_setAside;
    bool m_bStarted = false;
    ListItemStore m_items;
    std::int32_t m_lNewIndex = -1;
    bool m_bInIME = false;
    bool m_bBrushDirty = false;
    clsGdiHandle m_backBrush;
    bool m_bHasRegion = false;
    OleFont m_listFont; // keeps the handle good that the list window has
};

} // namespace orvanta
