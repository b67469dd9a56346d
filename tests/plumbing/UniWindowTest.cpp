#include "plumbing/cUniWindow.h"

#include "plumbing/MSubclass.h"
#include "plumbing/modcUniWindow.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

int g_nRegistered;
WNDCLASSEXW g_class;
decltype(&RegisterClassExW) g_registerClass;
ATOM WINAPI CountRegister(const WNDCLASSEXW* windowClass) {
    ++g_nRegistered;
    g_class = *windowClass;
    return g_registerClass(windowClass);
}

class UniWindow : public ::testing::Test {
protected:
    UniWindow() : m_patch("RegisterClassExW", CountRegister) {
        g_nRegistered = 0;
        g_registerClass = m_patch.Original();
    }
    ~UniWindow() override {
        window.WindowDestroy();
        window.WindowClassUnregister();
    }
    bool Register(cUniWindow& which) {
        return which.WindowClassRegister(u"OrvantaUniWindow", CS_DBLCLKS, LoadCursorW(nullptr, IDC_CROSS),
                                         LoadIconW(nullptr, IDI_APPLICATION), LoadIconW(nullptr, IDI_WARNING), 4, 8);
    }
    static HWND CreateOf(cUniWindow& which, std::int32_t iClass) {
        return which.WindowCreate(0, WS_POPUP, iClass, 10, 20, 30, 40, u"\u0416 caption", nullptr, nullptr, nullptr);
    }
    static std::wstring ClassOf(HWND hwnd) {
        wchar_t name[64]{};
        GetClassNameW(hwnd, name, 64);
        return name;
    }

    testing::PatchedImport<decltype(RegisterClassExW)> m_patch;
    cUniWindow window;
};

TEST_F(UniWindow, HasNeitherClassNorWindowAtFirst) {
    EXPECT_EQ(window.Class(), u"");
    EXPECT_EQ(window.hWnd(), nullptr);
}

TEST_F(UniWindow, RegistersTheClassAsGivenWithTheButtonFaceAndNoMenu) {
    EXPECT_TRUE(Register(window));
    EXPECT_EQ(window.Class(), u"OrvantaUniWindow");
    EXPECT_EQ(g_class.cbSize, sizeof(WNDCLASSEXW));
    EXPECT_EQ(g_class.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(g_class.cbClsExtra, 4);
    EXPECT_EQ(g_class.cbWndExtra, 8);
    EXPECT_EQ(g_class.hInstance, GetModuleHandleW(nullptr));
    EXPECT_EQ(g_class.hCursor, LoadCursorW(nullptr, IDC_CROSS));
    EXPECT_EQ(g_class.hIcon, LoadIconW(nullptr, IDI_APPLICATION));
    EXPECT_EQ(g_class.hIconSm, LoadIconW(nullptr, IDI_WARNING));
    EXPECT_EQ(g_class.hbrBackground, GetSysColorBrush(15));
    EXPECT_EQ(g_class.lpszMenuName, nullptr);
}

TEST_F(UniWindow, TheSameNameTwiceMakesOneRegistrationAndServesBothObjects) {
    cUniWindow second;
    EXPECT_TRUE(Register(window));
    EXPECT_TRUE(Register(second));
    EXPECT_EQ(g_nRegistered, 1);
    EXPECT_EQ(second.Class(), u"OrvantaUniWindow");
    EXPECT_NE(CreateOf(second, 0), nullptr);
}

TEST_F(UniWindow, ANameThatTheSystemRefusesIsNotRemembered) {
    EXPECT_FALSE(window.WindowClassRegister(u"", 0, nullptr, nullptr, nullptr, 0, 0));
    EXPECT_FALSE(IsClassRegistered(u""));
    EXPECT_EQ(window.Class(), u"");
}

TEST_F(UniWindow, AfterUnregisteringTheNameCanBeRegisteredAgain) {
    Register(window);
    window.WindowClassUnregister();
    EXPECT_FALSE(IsClassRegistered(u"OrvantaUniWindow"));
    WNDCLASSEXW found{};
    found.cbSize = sizeof found;
    EXPECT_FALSE(GetClassInfoExW(GetModuleHandleW(nullptr), L"OrvantaUniWindow", &found));
    EXPECT_TRUE(Register(window));
    EXPECT_EQ(g_nRegistered, 2);
}

TEST_F(UniWindow, ClassZeroIsTheRegisteredOne) {
    Register(window);
    HWND hwnd = CreateOf(window, 0);
    EXPECT_EQ(window.hWnd(), hwnd);
    EXPECT_EQ(ClassOf(hwnd), L"OrvantaUniWindow");
    EXPECT_TRUE(IsWindowUnicode(hwnd));
    wchar_t caption[32]{};
    GetWindowTextW(hwnd, caption, 32);
    EXPECT_STREQ(caption, L"\u0416 caption");
    RECT place{};
    GetWindowRect(hwnd, &place);
    EXPECT_EQ(place.left, 10);
    EXPECT_EQ(place.top, 20);
    EXPECT_EQ(place.right - place.left, 30);
    EXPECT_EQ(place.bottom - place.top, 40);
}

struct Creation {
    DWORD dwExStyle, dwStyle;
    std::wstring sClass, sCaption;
    int x, y, width, height;
    HWND parent;
    HMENU menu;
    HINSTANCE instance;
    void* parameter;
};
Creation g_creation;
HWND WINAPI RecordCreate(DWORD dwExStyle, LPCWSTR sClass, LPCWSTR sCaption, DWORD dwStyle, int x, int y, int width,
                         int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    g_creation = {dwExStyle, dwStyle, sClass, sCaption, x, y, width, height, parent, menu, instance, parameter};
    return nullptr;
}

TEST_F(UniWindow, EachNumberNamesItsClassAndOthersNone) {
    const testing::PatchedImport<decltype(CreateWindowExW)> patch("CreateWindowExW", RecordCreate);
    const wchar_t* names[] = {L"BUTTON",   L"COMBOBOX",       L"EDIT",      L"LISTBOX", L"MDICLIENT",
                              L"RichEdit", L"RICHEDIT_CLASS", L"SCROLLBAR", L"STATIC"};
    for (std::int32_t n = 1; n <= 9; ++n) {
        EXPECT_EQ(CreateOf(window, n), nullptr);
        EXPECT_EQ(g_creation.sClass, names[n - 1]);
    }
    CreateOf(window, 10);
    EXPECT_EQ(g_creation.sClass, L"");
    CreateOf(window, -1);
    EXPECT_EQ(g_creation.sClass, L"");
}

TEST_F(UniWindow, TheArgumentsReachTheSystemAsGiven) {
    const testing::PatchedImport<decltype(CreateWindowExW)> patch("CreateWindowExW", RecordCreate);
    HWND parent = GetDesktopWindow();
    HMENU menu = reinterpret_cast<HMENU>(77);
    int parameter = 0;
    window.WindowCreate(WS_EX_TOPMOST, WS_CHILD, 9, 1, 2, 3, 4, u"text", parent, menu, &parameter);
    EXPECT_EQ(g_creation.dwExStyle, static_cast<DWORD>(WS_EX_TOPMOST));
    EXPECT_EQ(g_creation.dwStyle, static_cast<DWORD>(WS_CHILD));
    EXPECT_EQ(g_creation.sCaption, L"text");
    EXPECT_EQ(g_creation.x, 1);
    EXPECT_EQ(g_creation.y, 2);
    EXPECT_EQ(g_creation.width, 3);
    EXPECT_EQ(g_creation.height, 4);
    EXPECT_EQ(g_creation.parent, parent);
    EXPECT_EQ(g_creation.menu, menu);
    EXPECT_EQ(g_creation.instance, GetModuleHandleW(nullptr));
    EXPECT_EQ(g_creation.parameter, &parameter);
}

TEST_F(UniWindow, ASecondWindowReplacesTheFirst) {
    HWND first = CreateOf(window, 9);
    HWND second = CreateOf(window, 9);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_TRUE(IsWindow(second));
    EXPECT_EQ(window.hWnd(), second);
}

TEST_F(UniWindow, DestroyingTwiceIsHarmless) {
    HWND hwnd = CreateOf(window, 9);
    window.WindowDestroy();
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_EQ(window.hWnd(), nullptr);
    window.WindowDestroy();
    EXPECT_EQ(window.hWnd(), nullptr);
}

TEST_F(UniWindow, AWindowDestroyedFromOutsideLeavesAStaleHandleWhichIsOnlyCleared) {
    HWND hwnd = CreateOf(window, 9);
    DestroyWindow(hwnd);
    EXPECT_EQ(window.hWnd(), hwnd);
    window.WindowDestroy();
    EXPECT_EQ(window.hWnd(), nullptr);
}

TEST_F(UniWindow, TheObjectTakesItsWindowWithIt) {
    HWND hwnd = nullptr;
    {
        cUniWindow inner;
        hwnd = CreateOf(inner, 9);
        ASSERT_TRUE(IsWindow(hwnd));
    }
    EXPECT_FALSE(IsWindow(hwnd));
}

struct Answer final : ISubclass {
    void WindowProc(bool, bool& bStopMsg, LRESULT& lReturn, HWND, UINT, WPARAM, LPARAM) override {
        bStopMsg = true;
        lReturn = 42;
    }
};

TEST_F(UniWindow, GetsItsBehaviourByMessageHooks) {
    Register(window);
    HWND hwnd = CreateOf(window, 0);
    EXPECT_EQ(SendMessageW(hwnd, WM_USER, 0, 0), 0);
    Answer answer;
    HookMessage(answer, hwnd, WM_USER, mrBeforePrevious);
    EXPECT_EQ(SendMessageW(hwnd, WM_USER, 0, 0), 42);
    UnhookMessage(answer, hwnd, WM_USER);
}

} // namespace
} // namespace orvanta
