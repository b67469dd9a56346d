// What comes to the list boxes as messages: of the host's window, which gets the notices of the list, and of the list.
#include "base/Text.h"
#include "controls/text/ListBoxCore.h"
#include "plumbing/MSubclass.h"
#include "plumbing/SharedInput.h"
#include "plumbing/SharedNumbers.h"
#include "plumbing/WideText.h"
#include "plumbing/WindowsVersion.h"

#include <imm.h>

namespace orvanta {

namespace {

constexpr std::int32_t kCustomPointer = 99;

std::int16_t ShiftState() {
    return static_cast<std::int16_t>(KeyShiftState());
}

std::int16_t XOf(LPARAM lParam) {
    return LoWordOf(static_cast<std::int32_t>(lParam));
}
std::int16_t YOf(LPARAM lParam) {
    return HiWordOf(static_cast<std::int32_t>(lParam));
}

std::int16_t ButtonOf(UINT uMsg) {
    switch (uMsg) {
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP: return 2;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP: return 4;
    default: return 1;
    }
}

std::int16_t ButtonsOf(WPARAM wParam) {
    return static_cast<std::int16_t>((wParam & MK_LBUTTON ? 1 : 0) | (wParam & MK_RBUTTON ? 2 : 0) |
                                     (wParam & MK_MBUTTON ? 4 : 0));
}

// The text that an input method has finished; false without an input method.
bool ResultOfComposition(HWND window, std::u16string& s) {
    HIMC context = ImmGetContext(window);
    if (!context) return false;
    const LONG lBytes = ImmGetCompositionStringW(context, GCS_RESULTSTR, nullptr, 0);
    s.assign(lBytes > 0 ? static_cast<std::size_t>(lBytes) / sizeof(char16_t) : 0, u'\0');
    if (!s.empty()) ImmGetCompositionStringW(context, GCS_RESULTSTR, WideBuffer(s), static_cast<DWORD>(lBytes));
    ImmReleaseContext(window, context);
    return true;
}

} // namespace

void ListBoxCore::WindowProc(bool, bool& bStopMsg, LRESULT& lReturn, HWND window, UINT uMsg, WPARAM wParam,
                             LPARAM lParam) {
    const HostCall call;
    if (m_hList && window == m_hList) {
        OnListMessage(bStopMsg, lReturn, uMsg, wParam, lParam);
    } else if (!Host().IsGone() && window == Host().hWnd()) {
        OnHostMessage(bStopMsg, lReturn, uMsg, wParam, lParam);
    }
}

void ListBoxCore::OnHostMessage(bool& bStopMsg, LRESULT& lReturn, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    switch (uMsg) {
    case WM_MEASUREITEM:
        bStopMsg = true;
        lReturn = TRUE;
        pvMeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        break;
    case WM_DRAWITEM:
        bStopMsg = true;
        lReturn = TRUE;
        SetBkMode(reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->hDC, TRANSPARENT);
        pvDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        break;
    case WM_COMPAREITEM:
        bStopMsg = true;
        lReturn = pvCompareItems(*reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam));
        break;
    case WM_COMMAND:
        if (HIWORD(wParam) == LBN_SELCHANGE) Raise(Click);
        if (HIWORD(wParam) == LBN_DBLCLK) Raise(DblClick);
        break;
    case WM_SETFOCUS:
        if (m_hList) SetFocus(m_hList);
        break;
    case WM_SYSCOLORCHANGE:
        m_bBrushDirty = true;
        pvInvalidate();
        break;
    case WM_MOUSEACTIVATE: {
        HWND focus = GetFocus();
        if (focus && focus != m_hList && IsChild(Host().hWnd(), focus)) SetFocus(Host().hWnd());
        break;
    }
    case WM_CTLCOLORLISTBOX:
        if (m_hList && reinterpret_cast<HWND>(lParam) == m_hList) OnCtlColor(lReturn, reinterpret_cast<HDC>(wParam));
        break;
    default: break;
    }
}

void ListBoxCore::OnListMessage(bool& bStopMsg, LRESULT& lReturn, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    switch (uMsg) {
    case WM_MOUSEWHEEL:
        bStopMsg = !m_bScrollOnMouseWheel;
        OnListWheel(wParam, lParam);
        break;
    case WM_SETFOCUS: m_activeHook.Activate(); break;
    case WM_KEYDOWN: bStopMsg = KeyEndsHere(KeyDown, wParam); break;
    case WM_KEYUP: bStopMsg = KeyEndsHere(KeyUp, wParam); break;
    case WM_CHAR:
        // The list has no texts to look for: typing ahead is the control's own.
        bStopMsg = true;
        OnListChar(wParam);
        break;
    case WM_IME_STARTCOMPOSITION: m_bInIME = true; break;
    case WM_IME_ENDCOMPOSITION: m_bInIME = false; break;
    case WM_IME_COMPOSITION:
        if ((lParam & GCS_RESULTSTR) != 0 && IsWin2000OrLater()) {
            bStopMsg = true;
            OnComposition();
        }
        break;
    case WM_SETCURSOR:
        bStopMsg = SetListCursor();
        lReturn = bStopMsg ? TRUE : FALSE;
        break;
    case WM_HSCROLL: pvInvalidate(); break;
    default:
        if (uMsg >= WM_MOUSEFIRST && uMsg <= WM_MOUSELAST) OnListMouse(bStopMsg, lReturn, uMsg, wParam, lParam);
        break;
    }
}

void ListBoxCore::OnListMouse(bool& bStopMsg, LRESULT& lReturn, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    auto X = static_cast<float>(XOf(lParam));
    auto Y = static_cast<float>(YOf(lParam));
    std::int16_t Shift = ShiftState();
    if (uMsg == WM_MOUSEMOVE) {
        std::int16_t Button = ButtonsOf(wParam);
        ShowTip();
        Raise(MouseMove, Button, Shift, X, Y);
        return;
    }
    std::int16_t Button = ButtonOf(uMsg);
    if (uMsg == WM_LBUTTONUP || uMsg == WM_RBUTTONUP || uMsg == WM_MBUTTONUP) {
        Raise(MouseUp, Button, Shift, X, Y);
        return;
    }
    if (!Raise(MouseDown, Button, Shift, X, Y) || !m_hList) return;
    if (uMsg == WM_LBUTTONDOWN && HasChecks()) bStopMsg = pvCheckClick(lReturn, wParam, lParam);
}

// A press on the box turns the flag at once. On the text the first press chooses the item, the next one turns its flag.
bool ListBoxCore::pvCheckClick(LRESULT& lReturn, WPARAM wParam, LPARAM lParam) {
    const std::int32_t X = XOf(lParam);
    if (ItemAtPoint(YOf(lParam), m_iColumns > 0 ? &X : nullptr) == -1) return false;
    const std::int32_t lBefore = ListIndex();
    lReturn = CallPreviousProc(m_hList, WM_LBUTTONDOWN, wParam, lParam);
    const std::int32_t lNow = ListIndex();
    if (X < kCheckAreaWidth || lNow == lBefore) pvInvertCheck(lNow);
    return true;
}

void ListBoxCore::pvInvertCheck(std::int32_t lPosition) {
    if (!m_hList) return;
    m_items.InvertCheck(NumberAt(lPosition));
    pvInvalidate();
}

void ListBoxCore::OnListWheel(WPARAM wParam, LPARAM lParam) {
    std::int16_t Button = ButtonsOf(LOWORD(wParam));
    std::int16_t Shift = ShiftState();
    auto X = static_cast<float>(XOf(lParam));
    auto Y = static_cast<float>(YOf(lParam));
    bool bDown = static_cast<std::int16_t>(HIWORD(wParam)) < 0;
    Raise(MouseWheel, Button, Shift, X, Y, bDown);
}

std::int16_t ListBoxCore::RaiseKey(const Event<std::int16_t&, std::int16_t&>& event, WPARAM wParam) const {
    auto Key = static_cast<std::int16_t>(wParam);
    std::int16_t Shift = ShiftState();
    return Raise(event, Key, Shift) ? Key : std::int16_t{0};
}

bool ListBoxCore::KeyEndsHere(const Event<std::int16_t&, std::int16_t&>& event, WPARAM wParam) const {
    return !m_bInIME && RaiseKey(event, wParam) == 0;
}

void ListBoxCore::OnListChar(WPARAM wParam) {
    if (wParam == VK_TAB) return;
    const std::int16_t Key = m_bInIME ? static_cast<std::int16_t>(wParam) : RaiseKey(KeyPress, wParam);
    if (Key == 0) return;
    if (HasChecks() && Key == VK_SPACE && ListIndex() >= 0) pvInvertCheck(ListIndex());
    pvTypeAhead(ChrWide(Key));
}

void ListBoxCore::OnComposition() {
    std::u16string s;
    if (!ResultOfComposition(m_hList, s)) return;
    if (!Raise(IMEComposition, s)) return;
    std::u16string sLeft;
    for (const char16_t c : s) {
        const std::int16_t Key = RaiseKey(KeyPress, c);
        if (!m_hList) return;
        if (Key != 0) sLeft.push_back(static_cast<char16_t>(Key));
    }
    if (!sLeft.empty()) pvTypeAhead(sLeft);
}

// Only the last character typed counts.
void ListBoxCore::pvTypeAhead(std::u16string_view s) {
    const auto textAt = [this](std::int32_t l) -> std::u16string_view { return m_items.TextOf(NumberAt(l)); };
    const std::int32_t lFound = FindTypeAhead(s, ListIndex(), ListCount(), textAt);
    if (lFound != -1) ListIndex(lFound);
}

bool ListBoxCore::SetListCursor() const {
    if (MousePointer() != kCustomPointer) {
        SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(MousePointerToCursorId(MousePointer()))));
        return true;
    }
    const OlePicture icon = MouseIcon();
    if (icon.Type() != OlePicture::kTypeIcon) return false;
    SetCursor(static_cast<HCURSOR>(icon.Handle()));
    return true;
}

bool ListBoxCore::TakeKey(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (!m_hList || (uMsg != WM_KEYDOWN && uMsg != WM_KEYUP)) return false;
    const HostCall call;
    if (wParam == VK_TAB && m_bTrapTab) {
        const bool bDown = uMsg == WM_KEYDOWN;
        const std::int16_t Key = RaiseKey(bDown ? KeyDown : KeyUp, wParam);
        if (bDown && Key == 0 && Host().hWnd()) SetFocus(Host().hWnd());
        return true;
    }
    if (wParam < VK_PRIOR || wParam > VK_DOWN) return false;
    SendMessageW(m_hList, uMsg, wParam, lParam);
    return true;
}

} // namespace orvanta
