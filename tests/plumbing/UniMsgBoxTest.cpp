#include "plumbing/modUniMsgBox.h"

#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <thread>

namespace orvanta {
namespace {

// What stood on the screen while a box was open.
struct SeenBox {
    std::u16string sText;
    std::u16string sTitle;
    bool bHasOwner = true;
    bool bOtherWindowEnabled = true;
    HICON icon = nullptr;
    bool bYes = false, bNo = false, bOk = false, bCancel = false;
};

std::u16string TextOfWindow(HWND window) {
    std::u16string s(512, u'\0');
    s.resize(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, s.size(), reinterpret_cast<LPARAM>(s.data()))));
    return s;
}

HWND BoxOfThread(DWORD lThread) {
    HWND found = nullptr;
    EnumThreadWindows(
        lThread,
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[16];
            GetClassNameW(window, name, 16);
            if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window)) return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

HICON IconOfBox(HWND box) {
    HICON icon = nullptr;
    EnumChildWindows(
        box,
        [](HWND child, LPARAM result) -> BOOL {
            if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) != SS_ICON) return TRUE;
            *reinterpret_cast<HICON*>(result) = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
            return *reinterpret_cast<HICON*>(result) == nullptr;
        },
        reinterpret_cast<LPARAM>(&icon));
    return icon;
}

// The style of the last box as the platform was given it: not every system shows that a box is topmost.
UINT g_lStyle = 0;
int(WINAPI* g_messageBox)(HWND, LPCWSTR, LPCWSTR, UINT) = nullptr;

int WINAPI NoteStyle(HWND owner, LPCWSTR text, LPCWSTR title, UINT style) {
    g_lStyle = style;
    return g_messageBox(owner, text, title, style);
}

// Opens a box in this thread and answers it by a button from a second one.
class UniMsgBoxTest : public ::testing::Test {
protected:
    template<typename Result>
    Result Answer(int iButton, const std::function<Result()>& show) {
        const DWORD lThread = GetCurrentThreadId();
        HDESK desktop = GetThreadDesktop(lThread);
        std::thread user([this, iButton, lThread, desktop] {
            SetThreadDesktop(desktop);
            HWND box = nullptr;
            while ((box = BoxOfThread(lThread)) == nullptr)
                Sleep(5);
            Look(box);
            PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(iButton), 0);
        });
        m_other = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
        const testing::PatchedImport<int WINAPI(HWND, LPCWSTR, LPCWSTR, UINT)> import("MessageBoxW", &NoteStyle);
        g_messageBox = import.Original();
        const Result result = show();
        user.join();
        DestroyWindow(m_other);
        return result;
    }

    void Look(HWND box) {
        seen.sText = TextOfWindow(GetDlgItem(box, 0xFFFF));
        seen.sTitle = TextOfWindow(box);
        seen.bHasOwner = GetWindow(box, GW_OWNER) != nullptr;
        seen.bOtherWindowEnabled = IsWindowEnabled(m_other);
        seen.icon = IconOfBox(box);
        const auto shows = [box](int id) { return GetDlgItem(box, id) && IsWindowVisible(GetDlgItem(box, id)); };
        seen.bYes = shows(IDYES);
        seen.bNo = shows(IDNO);
        seen.bOk = shows(IDOK);
        seen.bCancel = shows(IDCANCEL);
    }

    static HICON SystemIcon(LPCWSTR name) { return LoadIconW(nullptr, name); }

    SeenBox seen;
    HWND m_other = nullptr;
};

TEST_F(UniMsgBoxTest, ShowsUnicodeTextAndTitleAboveAllAndModalForTheTask) {
    const auto iAnswer =
        Answer<std::int32_t>(IDOK, [] { return UniMsgBox(u"caf\u00E9 \u65E5\u672C", MB_OKCANCEL, u"\u0416 title"); });
    EXPECT_EQ(iAnswer, IDOK);
    EXPECT_EQ(seen.sText, u"caf\u00E9 \u65E5\u672C");
    EXPECT_EQ(seen.sTitle, u"\u0416 title");
    EXPECT_EQ(g_lStyle, MB_OKCANCEL | MB_TASKMODAL | MB_TOPMOST);
    EXPECT_FALSE(seen.bHasOwner);
    EXPECT_FALSE(seen.bOtherWindowEnabled);
    EXPECT_TRUE(seen.bOk && seen.bCancel);
    EXPECT_FALSE(seen.bYes || seen.bNo);
}

TEST_F(UniMsgBoxTest, AnswersWithTheCodeOfTheButton) {
    EXPECT_EQ(Answer<std::int32_t>(IDCANCEL, [] { return UniMsgBox(u"x", MB_OKCANCEL, u"y"); }), IDCANCEL);
    EXPECT_EQ(Answer<std::int32_t>(IDNO, [] { return UniMsgBox(u"x", MB_YESNOCANCEL, u"y"); }), IDNO);
}

TEST_F(UniMsgBoxTest, ErrorHasTheStopIconAndTheTitleAttention) {
    EXPECT_EQ(Answer<std::int32_t>(IDOK, [] { return UniMsgError(u"went wrong"); }), IDOK);
    EXPECT_EQ(seen.sText, u"went wrong");
    EXPECT_EQ(seen.sTitle, u"Attention");
    EXPECT_EQ(seen.icon, SystemIcon(MAKEINTRESOURCEW(32513)));
    EXPECT_EQ(g_lStyle, 16u | 0x42000u);
    EXPECT_TRUE(seen.bOk);
    EXPECT_FALSE(seen.bYes || seen.bNo);
}

TEST_F(UniMsgBoxTest, InfoHasTheInformationIconAndTheTitleAttention) {
    EXPECT_EQ(Answer<std::int32_t>(IDOK, [] { return UniMsgInfo(u"done"); }), IDOK);
    EXPECT_EQ(seen.sText, u"done");
    EXPECT_EQ(seen.sTitle, u"Attention");
    EXPECT_EQ(seen.icon, SystemIcon(MAKEINTRESOURCEW(32516)));
    EXPECT_EQ(g_lStyle, 64u | 0x42000u);
    EXPECT_TRUE(seen.bOk);
}

TEST_F(UniMsgBoxTest, AskIsTrueForYesAndFalseForNo) {
    EXPECT_TRUE(Answer<bool>(IDYES, [] { return UniMsgAsk(u"really?", u"My title"); }));
    EXPECT_EQ(seen.sText, u"really?");
    EXPECT_EQ(seen.sTitle, u"My title");
    EXPECT_EQ(seen.icon, SystemIcon(MAKEINTRESOURCEW(32514)));
    EXPECT_EQ(g_lStyle, 36u | 0x42000u);
    EXPECT_TRUE(seen.bYes && seen.bNo);
    EXPECT_FALSE(seen.bOk || seen.bCancel);
    EXPECT_FALSE(Answer<bool>(IDNO, [] { return UniMsgAsk(u"really?", u"My title"); }));
}

TEST_F(UniMsgBoxTest, BlankTitleOfAQuestionBecomesAttentionAndOthersAreNotTrimmed) {
    Answer<bool>(IDNO, [] { return UniMsgAsk(u"q", u""); });
    EXPECT_EQ(seen.sTitle, u"Attention");
    Answer<bool>(IDNO, [] { return UniMsgAsk(u"q", u"   "); });
    EXPECT_EQ(seen.sTitle, u"Attention");
    Answer<bool>(IDNO, [] { return UniMsgAsk(u"q", u" t "); });
    EXPECT_EQ(seen.sTitle, u" t ");
}

} // namespace
} // namespace orvanta
