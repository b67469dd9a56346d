#include "drawing/clsPalette.h"

#include "tests/drawing/SurfaceFixture.h"

#include <atomic>
#include <random>
#include <thread>

namespace orvanta {
namespace {

using testing::ExpectFailure;

TEST(PaletteSystem, ComponentsOfAColourAndOfASystemColour) {
    std::uint8_t iRed = 0, iGrn = 0, iBlu = 0;
    clsPalette::pColorToComponents(0x00030201, iRed, iGrn, iBlu);
    EXPECT_EQ(RGB(iRed, iGrn, iBlu), RGB(1, 2, 3));
    // Bits beyond the index do not matter.
    clsPalette::pColorToComponents(static_cast<std::int32_t>(0x8000FF00u | COLOR_HIGHLIGHT), iRed, iGrn, iBlu);
    EXPECT_EQ(RGB(iRed, iGrn, iBlu), GetSysColor(COLOR_HIGHLIGHT));
}

TEST(PaletteSystem, CreateFromDibReadsTheColourTable) {
    clsPalette palette;
    clsDIBSection section;
    section.CreateDC(2, 2, 4);
    palette.CreateFromDib(section);
    ASSERT_EQ(palette.Count(), 16);
    EXPECT_EQ(palette.Red(2), 128);
    section.CreateDC(2, 2, 8);
    palette.CreateFromDib(section);
    ASSERT_EQ(palette.Count(), 256);
    EXPECT_EQ(palette.Red(2), 64);
}

TEST(PaletteSystem, CreateFromDibOfOneBitAsksForOneEntryOnly) {
    clsPalette palette;
    clsDIBSection section;
    section.CreateDC(2, 2, 1);
    palette.CreateFromDib(section);
    EXPECT_EQ(palette.Count(), 1);
}

TEST(PaletteSystem, CreateFromDibOfAnyOtherDepthFailsWithAnEmptyPalette) {
    clsDIBSection section;
    for (const std::int32_t bpp : {16, 24, 32}) {
        clsPalette palette;
        palette.Create16();
        section.CreateDC(2, 2, bpp);
        ExpectFailure(u"clsPalette.CreateFromDib", u"Cannot create palette!", [&] { palette.CreateFromDib(section); });
        EXPECT_EQ(palette.Count(), 0);
    }
}

TEST(PaletteSystem, CreateOptimalOfAnyDepthBut24FailsAtOnceAndTheOldEntriesSurvive) {
    clsDIBSection section;
    for (const std::int32_t bpp : {8, 32}) {
        clsPalette palette;
        palette.Create16();
        section.CreateDC(2, 2, bpp);
        ExpectFailure(u"clsPalette.ApplyPalette", u"clsPalette.ApplyPalette.DIB Must be 24 bpp",
                      [&] { palette.CreateOptimal(section, 16, 6); });
        EXPECT_EQ(palette.Count(), 16);
    }
}

TEST(PaletteSystem, CreateOptimalReadsTheBottomRowFirstAndWithoutThePaddingOfTheRows) {
    clsDIBSection section;
    section.CreateDC(1, 2, 24);
    std::memset(section.BitsPtr(), 0xEE, 8);
    SetPixelV(section.Hdc(), 0, 0, RGB(255, 0, 0));
    SetPixelV(section.Hdc(), 0, 1, RGB(0, 0, 255));
    clsPalette palette;
    palette.Create16();
    palette.CreateOptimal(section, 16, 6);
    ASSERT_EQ(palette.Count(), 2);
    EXPECT_EQ(palette.Blue(1), 255);
    EXPECT_EQ(palette.Red(2), 255);
}

TEST(PaletteSystem, AReservedColourComesFirstAndBesideThePaletteSize) {
    clsDIBSection section;
    section.CreateDC(4, 1, 24);
    for (int x = 0; x < 4; ++x)
        SetPixelV(section.Hdc(), x, 0, RGB(x * 80, 255 - x * 80, 0));
    clsPalette palette;
    palette.CreateOptimal(section, 4, 8, RGB(7, 8, 9));
    EXPECT_EQ(palette.Count(), 5);
    EXPECT_EQ(palette.Red(1), 7);
    EXPECT_EQ(palette.Blue(1), 9);
    palette.CreateOptimal(section, 4, 8, static_cast<std::int32_t>(0x80000000u | COLOR_HIGHLIGHT));
    EXPECT_EQ(palette.Red(1), GetRValue(GetSysColor(COLOR_HIGHLIGHT)));
}

TEST(PaletteSystem, CreateOptimalOfASectionThatIsDestroyedIsAnEmptyPalette) {
    clsDIBSection section;
    section.CreateDC(4, 4, 24);
    section.Destroy();
    clsPalette palette;
    palette.Create16();
    palette.CreateOptimal(section, 16, 6);
    EXPECT_EQ(palette.Count(), 0);
}

// Answers the message boxes of one thread by a button until it ends.
class BoxAnswerer {
public:
    explicit BoxAnswerer(WORD button) {
        const DWORD lThread = GetCurrentThreadId();
        HDESK desktop = GetThreadDesktop(lThread);
        m_thread = std::thread([this, lThread, desktop, button] {
            SetThreadDesktop(desktop);
            while (!m_bEnd) {
                HWND box = nullptr;
                EnumThreadWindows(
                    lThread,
                    [](HWND window, LPARAM result) -> BOOL {
                        wchar_t name[16];
                        GetClassNameW(window, name, 16);
                        if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window)) return TRUE;
                        *reinterpret_cast<HWND*>(result) = window;
                        return FALSE;
                    },
                    reinterpret_cast<LPARAM>(&box));
                if (box) {
                    wchar_t text[100]{};
                    GetDlgItemTextW(box, 0xFFFF, text, 100);
                    m_bRightText = lstrcmpW(text, L"Error in reducing nodes") == 0;
                    const auto shows = [box](int id) { return IsWindowVisible(GetDlgItem(box, id)) != FALSE; };
                    m_bYesAndNo = shows(IDYES) && shows(IDNO) && !shows(IDCANCEL) && !shows(IDOK);
                    PostMessageW(box, WM_COMMAND, button, 0);
                    while (IsWindow(box) && !m_bEnd)
                        Sleep(1);
                    ++m_nAnswered;
                }
                Sleep(1);
            }
        });
    }
    BoxAnswerer(const BoxAnswerer&) = delete;
    BoxAnswerer& operator=(const BoxAnswerer&) = delete;
    ~BoxAnswerer() { Finish(); }

    void Finish() {
        m_bEnd = true;
        if (m_thread.joinable()) m_thread.join();
    }
    int Answered() const { return m_nAnswered; }
    bool SaidTheRightThing() const { return m_bRightText && m_bYesAndNo; }

private:
    std::atomic<bool> m_bEnd = false, m_bRightText = false, m_bYesAndNo = false;
    std::atomic<int> m_nAnswered = 0;
    std::thread m_thread;
};

// Black, red and green cannot become one colour: they are first branches.
void FillWithThreeBranches(clsDIBSection& section) {
    section.CreateDC(3, 1, 24);
    SetPixelV(section.Hdc(), 0, 0, RGB(0, 0, 0));
    SetPixelV(section.Hdc(), 1, 0, RGB(255, 0, 0));
    SetPixelV(section.Hdc(), 2, 0, RGB(0, 255, 0));
}

TEST(PaletteSystem, AfterYesToTheBoxTheSurplusLeafStays) {
    clsDIBSection section;
    FillWithThreeBranches(section);
    clsPalette palette;
    BoxAnswerer answerer(IDYES);
    palette.CreateOptimal(section, 2, 4);
    answerer.Finish();
    EXPECT_EQ(answerer.Answered(), 1);
    EXPECT_TRUE(answerer.SaidTheRightThing());
    EXPECT_EQ(palette.Count(), 3);
}

void AnswerNo() {
    clsDIBSection section;
    FillWithThreeBranches(section);
    clsPalette palette;
    BoxAnswerer answerer(IDNO);
    palette.CreateOptimal(section, 2, 4);
}

TEST(PaletteSystemDeathTest, NoToTheBoxEndsTheProcessAtOnce) {
    EXPECT_EXIT(AnswerNo(), ::testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace orvanta
