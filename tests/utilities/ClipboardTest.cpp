#include "utilities/clsClipboard.h"

#include "tests/support/WindowCensus.h"
#include "tests/utilities/ClipboardFixture.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <atomic>
#include <thread>

namespace orvanta {
namespace {

using testing::PatchedImport;

HGLOBAL g_block = nullptr;
HANDLE WINAPI GiveBlock(UINT) {
    return g_block;
}

class ClipboardTest : public testing::ClipboardFixture {
protected:
    // What is read when the platform hands out exactly these bytes. The real clipboard ends every text with a NUL.
    std::u16string TextOfBlock(const char* bytes, std::size_t nBytes) {
        clipboard.Text(u"some text");
        g_block = GlobalAlloc(GMEM_MOVEABLE, nBytes);
        EXPECT_EQ(GlobalSize(g_block), nBytes);
        std::memcpy(GlobalLock(g_block), bytes, nBytes);
        GlobalUnlock(g_block);
        std::u16string sText;
        {
            const PatchedImport<decltype(GetClipboardData)> import("GetClipboardData", &GiveBlock);
            sText = clipboard.Text();
        }
        GlobalFree(g_block);
        return sText;
    }

    clsClipboard clipboard;
};

// Holds the clipboard open for its lifetime, as another program would.
class ForeignHold {
public:
    ForeignHold()
        : m_thread([this, desktop = GetThreadDesktop(GetCurrentThreadId())] {
              SetThreadDesktop(desktop);
              HWND owner =
                  CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
              OpenClipboard(owner);
              m_bHeld = true;
              while (!m_bEnd)
                  Sleep(1);
              CloseClipboard();
              DestroyWindow(owner);
          }) {
        while (!m_bHeld)
            Sleep(1);
    }
    ~ForeignHold() {
        m_bEnd = true;
        m_thread.join();
    }
    ForeignHold(const ForeignHold&) = delete;
    ForeignHold& operator=(const ForeignHold&) = delete;

private:
    std::atomic<bool> m_bHeld = false, m_bEnd = false;
    std::thread m_thread;
};

HGLOBAL WINAPI NoMemory(UINT, SIZE_T) {
    return nullptr;
}
LPVOID WINAPI NoLock(HGLOBAL) {
    return nullptr;
}
HANDLE WINAPI NoData(UINT) {
    return nullptr;
}
HANDLE WINAPI RefuseData(UINT, HANDLE) {
    return nullptr;
}
int g_nFreed = 0;
HGLOBAL WINAPI CountGlobalFree(HGLOBAL memory) {
    ++g_nFreed;
    return LocalFree(memory);
}
BOOL WINAPI NoUnicode(UINT format) {
    return format == CF_TEXT;
}

TEST_F(ClipboardTest, TextComesBackAsItWasSet) {
    const std::u16string sText = u"caf\u00E9 \u0416 \u65E5\u672C \xD83D\xDE00\r\nline";
    EXPECT_TRUE(clipboard.Text(sText));
    EXPECT_EQ(clipboard.Text(), sText);
}

TEST_F(ClipboardTest, LongTextComesBackWhole) {
    std::u16string sText;
    for (int n = 0; n < 100000; ++n)
        sText += static_cast<char16_t>(u'a' + n % 26);
    EXPECT_TRUE(clipboard.Text(sText));
    EXPECT_EQ(clipboard.Text(), sText);
}

TEST_F(ClipboardTest, SetStoresTheCodeUnitsAndOneNul) {
    clipboard.Text(u"a\u0416");
    const auto bytes = Bytes(CF_UNICODETEXT);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->substr(0, 6), std::string("a\0\x16\x04\0\0", 6));
}

TEST_F(ClipboardTest, EmptyTextIsText) {
    EXPECT_TRUE(clipboard.Text(u""));
    ASSERT_TRUE(Bytes(CF_UNICODETEXT));
    EXPECT_EQ(clipboard.Text(), u"");
}

TEST_F(ClipboardTest, SetEmptiesTheClipboardOfAllOtherFormats) {
    const UINT own = RegisterClipboardFormatW(L"OrvantaClipboardTest");
    Put(own, "data", 4);
    clipboard.Text(u"x");
    EXPECT_FALSE(IsClipboardFormatAvailable(own));
}

TEST_F(ClipboardTest, GetEndsAtTheFirstNul) {
    clipboard.Text(std::u16string(u"ab\0cd", 5));
    EXPECT_EQ(clipboard.Text(), u"ab");
}

TEST_F(ClipboardTest, GetTakesABlockWithoutAnyNulWhole) {
    EXPECT_EQ(TextOfBlock("a\0b\0c\0d\0", 8), u"abcd");
}

TEST_F(ClipboardTest, HalfACodeUnitAtTheEndIsDropped) {
    EXPECT_EQ(TextOfBlock("a\0b\0c", 5), u"ab");
}

TEST_F(ClipboardTest, BlockOfASingleByteIsEmptyText) {
    EXPECT_EQ(TextOfBlock("a", 1), u"");
}

TEST_F(ClipboardTest, WithoutTextGetIsEmpty) {
    EXPECT_EQ(clipboard.Text(), u"");
    Put(RegisterClipboardFormatW(L"OrvantaClipboardTest"), "data", 4);
    EXPECT_EQ(clipboard.Text(), u"");
}

TEST_F(ClipboardTest, WithoutUnicodeTextGetTakesPlainText) {
    Put(CF_TEXT, "plain text", 11);
    const PatchedImport<decltype(IsClipboardFormatAvailable)> import("IsClipboardFormatAvailable", &NoUnicode);
    EXPECT_EQ(clipboard.Text(), u"plain text");
    EXPECT_EQ(Opened(), Closed());
}

TEST_F(ClipboardTest, PlainTextOfAnotherProgramIsReadThroughTheCodePage) {
    Put(CF_TEXT, "caf\xE9", 5);
    EXPECT_EQ(clipboard.Text(), u"caf\u00E9");
}

TEST_F(ClipboardTest, ClipboardHeldByAnotherProgramAnswersFalseAndEmpty) {
    Put(CF_UNICODETEXT, u"theirs", 14);
    {
        const ForeignHold hold;
        EXPECT_FALSE(clipboard.Text(u"mine"));
        EXPECT_EQ(clipboard.Text(), u"");
    }
    EXPECT_EQ(clipboard.Text(), u"theirs");
}

TEST_F(ClipboardTest, SetWithoutMemoryAnswersFalseAndClosesTheClipboard) {
    {
        const PatchedImport<decltype(GlobalAlloc)> import("GlobalAlloc", &NoMemory);
        EXPECT_FALSE(clipboard.Text(u"x"));
    }
    EXPECT_GT(Opened(), 0);
    EXPECT_EQ(Opened(), Closed());
}

TEST_F(ClipboardTest, RefusedBlockIsFreedAndTheClipboardClosed) {
    const PatchedImport<decltype(GlobalFree)> free("GlobalFree", &CountGlobalFree);
    g_nFreed = 0;
    {
        const PatchedImport<decltype(SetClipboardData)> import("SetClipboardData", &RefuseData);
        EXPECT_FALSE(clipboard.Text(u"x"));
    }
    EXPECT_EQ(g_nFreed, 1);
    EXPECT_EQ(Opened(), Closed());
}

TEST_F(ClipboardTest, BlockThatCannotBeLockedIsFreedAndTheClipboardClosed) {
    const PatchedImport<decltype(GlobalFree)> free("GlobalFree", &CountGlobalFree);
    g_nFreed = 0;
    {
        const PatchedImport<decltype(GlobalLock)> import("GlobalLock", &NoLock);
        EXPECT_FALSE(clipboard.Text(u"x"));
    }
    EXPECT_EQ(g_nFreed, 1);
    EXPECT_EQ(Opened(), Closed());
}

TEST_F(ClipboardTest, BlockGivenToTheClipboardIsNotFreed) {
    const PatchedImport<decltype(GlobalFree)> free("GlobalFree", &CountGlobalFree);
    g_nFreed = 0;
    EXPECT_TRUE(clipboard.Text(u"x"));
    EXPECT_EQ(g_nFreed, 0);
}

TEST_F(ClipboardTest, FailedReadGivesAnEmptyTextAndClosesTheClipboard) {
    clipboard.Text(u"x");
    {
        const PatchedImport<decltype(GetClipboardData)> import("GetClipboardData", &NoData);
        EXPECT_EQ(clipboard.Text(), u"");
    }
    {
        const PatchedImport<decltype(GlobalLock)> import("GlobalLock", &NoLock);
        EXPECT_EQ(clipboard.Text(), u"");
    }
    EXPECT_EQ(Opened(), Closed());
    EXPECT_EQ(clipboard.Text(), u"x");
}

TEST_F(ClipboardTest, LeavesNoWindowAndNoOpenClipboardBehind) {
    const int nWindows = testing::CountOwnWindows();
    for (int n = 0; n < 20; ++n) {
        clipboard.Text(u"round");
        EXPECT_EQ(clipboard.Text(), u"round");
    }
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
    EXPECT_EQ(Opened(), Closed());
}

} // namespace
} // namespace orvanta
