#include "gallery/Inspector.h"

#include "base/ResumeNext.h"
#include "gallery/ValueText.h"
#include "plumbing/WideText.h"

#include <utility>

namespace orvanta::gallery {

namespace {

constexpr int kMargin = 8;
enum ChildId : int { kPages = 1, kControls, kNames, kValue, kSet, kAnswer };

std::u16string TextOfWindow(HWND window) {
    std::u16string s(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
    s.resize(static_cast<std::size_t>(GetWindowTextW(window, WideBuffer(s), static_cast<int>(s.size()))));
    return s;
}

void SetText(HWND window, const std::u16string& s) {
    SetWindowTextW(window, WideOf(s));
}

} // namespace

Inspector::Inspector(HWND parent, int height, const std::vector<std::u16string>& pageNames) {
    MakeWindow(WindowClass::Control, {}, WS_EX_CONTROLPARENT, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
               {0, 0, kWidth, height}, parent);
    const DWORD list = WS_VSCROLL | WS_BORDER | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    MakeChild(L"STATIC", L"Pages", 0, 8, 16, 0);
    m_pages = MakeChild(L"LISTBOX", L"", list, 24, 136, kPages);
    MakeChild(L"STATIC", L"Controls of the page", 0, 168, 16, 0);
    m_controls = MakeChild(L"LISTBOX", L"", list, 184, 216, kControls);
    MakeChild(L"STATIC", L"Property", 0, 408, 16, 0);
    m_names = MakeChild(L"COMBOBOX", L"", CBS_DROPDOWN | WS_VSCROLL | WS_TABSTOP, 424, 240, kNames);
    MakeChild(L"STATIC", L"Value", 0, 454, 16, 0);
    m_value = MakeChild(L"EDIT", L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 470, 22, kValue);
    MakeChild(L"BUTTON", L"Set", WS_TABSTOP | BS_DEFPUSHBUTTON, 500, 24, kSet);
    m_answer = MakeChild(L"STATIC", L"", 0, 532, 34, kAnswer);
    for (const std::u16string& sName : pageNames)
        SendMessageW(m_pages, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(WideOf(sName)));
    SendMessageW(m_pages, LB_SETCURSEL, 0, 0);
}

HWND Inspector::MakeChild(const wchar_t* sClass, const wchar_t* sText, DWORD style, int top, int height, int id) {
    HWND child = CreateWindowExW(0, sClass, sText, WS_CHILD | WS_VISIBLE | style, kMargin, top, kWidth - 2 * kMargin,
                                 height, Window(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                 GetModuleHandleW(nullptr), nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    return child;
}

void Inspector::Specimens(std::vector<Specimen> specimens) {
    m_specimens = std::move(specimens);
    SendMessageW(m_controls, LB_RESETCONTENT, 0, 0);
    for (const Specimen& specimen : m_specimens)
        SendMessageW(m_controls, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(WideOf(specimen.sCaption)));
    ChooseSpecimen(0);
}

void Inspector::ChooseSpecimen(std::size_t n) {
    SendMessageW(m_controls, LB_SETCURSEL, n, 0);
    ShowNames();
}

bool Inspector::SetProperty(const std::u16string& sName, const std::u16string& sValue) {
    SetText(m_names, sName);
    SetText(m_value, sValue);
    SetValue();
    return GetWindowTextLengthW(m_answer) == 0;
}

bool Inspector::TakeKey(MSG& message) {
    const bool bKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    return bKey && IsChild(Window(), message.hwnd) && IsDialogMessageW(Window(), &message);
}

LRESULT Inspector::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == DM_GETDEFID) return MAKELRESULT(kSet, DC_HASDEFID);
    if (message == WM_COMMAND) {
        const int id = LOWORD(wParam), code = HIWORD(wParam);
        if (id == kPages && code == LBN_SELCHANGE) {
            PageChosen.Raise(static_cast<std::size_t>(SendMessageW(m_pages, LB_GETCURSEL, 0, 0)));
        } else if (id == kControls && code == LBN_SELCHANGE) {
            ShowNames();
        } else if (id == kNames && code == CBN_SELCHANGE) {
            // The edit field of the box follows only after this message.
            const LRESULT n = SendMessageW(m_names, CB_GETCURSEL, 0, 0);
            std::u16string sName(
                static_cast<std::size_t>(SendMessageW(m_names, CB_GETLBTEXTLEN, static_cast<WPARAM>(n), 0)), u'\0');
            SendMessageW(m_names, CB_GETLBTEXT, static_cast<WPARAM>(n), reinterpret_cast<LPARAM>(WideBuffer(sName)));
            SetText(m_names, sName);
            ShowValue();
        } else if (id == kSet && code == BN_CLICKED) {
            SetValue();
        }
        return 0;
    }
    if (message == WM_ERASEBKGND) {
        RECT client{};
        GetClientRect(Window(), &client);
        FillRect(reinterpret_cast<HDC>(wParam), &client, GetSysColorBrush(COLOR_BTNFACE));
        return 1;
    }
    return SystemAnswer(message, wParam, lParam);
}

Control* Inspector::Chosen() const {
    const auto n = SendMessageW(m_controls, LB_GETCURSEL, 0, 0);
    if (n < 0 || static_cast<std::size_t>(n) >= m_specimens.size()) return nullptr;
    return m_specimens[static_cast<std::size_t>(n)].control;
}

void Inspector::ShowNames() {
    const std::u16string sName = TextOfWindow(m_names);
    SendMessageW(m_names, CB_RESETCONTENT, 0, 0);
    const Control* control = Chosen();
    if (!control) return;
    for (const std::u16string& s : control->PropertyNames())
        SendMessageW(m_names, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(WideOf(s)));
    if (sName.empty()) {
        SendMessageW(m_names, CB_SETCURSEL, 0, 0);
    } else {
        SetText(m_names, sName);
    }
    ShowValue();
}

void Inspector::ShowValue() {
    PropertyValue value;
    const Control* control = Chosen();
    const bool bKnown = control && control->GetProperty(TextOfWindow(m_names), value);
    SetText(m_value, bKnown ? TextOfValue(value) : u"");
    SetText(m_answer, {});
}

void Inspector::SetValue() {
    Control* control = Chosen();
    if (!control) return;
    const std::u16string sName = TextOfWindow(m_names), sValue = TextOfWindow(m_value);
    const auto report = [this](const Failure& failure) { SetText(m_answer, failure.Description()); };
    const bool bDone = ResumeNext(report, [&] {
        PropertyValue present;
        if (!control->GetProperty(sName, present)) {
            SetText(m_answer, u"There is no such property.");
            return;
        }
        control->PutProperty(sName, ValueOfText(sValue, present));
        SetText(m_answer, {});
    });
    if (bDone && GetWindowTextLengthW(m_answer) == 0) ShowValue();
}

} // namespace orvanta::gallery
