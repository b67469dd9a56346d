#include "base/Failure.h"
#include "plumbing/WideText.h"
#include "tests/support/PatchedImport.h"
#include "utilities/clsCommDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <commdlg.h>

#include <cstring>
#include <optional>

namespace orvanta {
namespace {

// The record as the platform is given it, and what the platform answers.
struct SeenRecord {
    int nCalls = 0;
    OPENFILENAMEW record{};
    std::u16string sFileBuffer; // all of nMaxFile
    std::u16string sFilter;     // 24 characters of it
    std::optional<std::u16string> sTitle, sStartDir, sDefExt;

    BOOL bAnswer = FALSE;
    std::u16string sAnswer;
    DWORD lAnswerFlags = 0;
};
SeenRecord g_seen;

std::optional<std::u16string> OptionalText(LPCWSTR s) {
    if (!s) return std::nullopt;
    return TextOfWide(s);
}

BOOL WINAPI KeepRecord(OPENFILENAMEW* record) {
    ++g_seen.nCalls;
    g_seen.record = *record;
    g_seen.sFileBuffer = TextOfWide(record->lpstrFile, record->nMaxFile);
    g_seen.sFilter = record->lpstrFilter ? TextOfWide(record->lpstrFilter, 24) : u"none";
    g_seen.sTitle = OptionalText(record->lpstrTitle);
    g_seen.sStartDir = OptionalText(record->lpstrInitialDir);
    g_seen.sDefExt = OptionalText(record->lpstrDefExt);
    if (!g_seen.bAnswer) return FALSE;
    std::memcpy(record->lpstrFile, g_seen.sAnswer.data(), g_seen.sAnswer.size() * sizeof(char16_t));
    record->Flags = g_seen.lAnswerFlags;
    return TRUE;
}

BOOL WINAPI NeverCalled(OPENFILENAMEW*) {
    ADD_FAILURE() << "the other dialog was opened";
    return FALSE;
}

constexpr std::u16string_view kFilter{u"VB6 Files (*.vbp)\0*.vbp\0", 24};

// Both file dialogs share the rules; bSave says which one is asked.
class FileDialogRecordTest : public ::testing::TestWithParam<bool> {
protected:
    FileDialogRecordTest() { g_seen = SeenRecord(); }

    std::u16string Show(std::int32_t& lFlags, const std::u16string& sDefaultFile = u"") {
        return GetParam() ? dialogs.ShowSave(nullptr, sFilter, sTitle, lFlags, sStartDir, sDefaultFile, 2, sDefExt)
                          : dialogs.ShowOpen(nullptr, sFilter, sTitle, lFlags, sStartDir, sDefExt, sDefaultFile);
    }
    std::u16string Show() {
        std::int32_t lFlags = 6144;
        return Show(lFlags);
    }

    // The failure of a call with these flags; none when the dialog was opened.
    std::optional<Failure> FailureOf(std::uint32_t lFlags) {
        g_seen.nCalls = 0;
        auto lFlagsInOut = static_cast<std::int32_t>(lFlags);
        try {
            Show(lFlagsInOut);
        } catch (const Failure& failure) {
            EXPECT_EQ(g_seen.nCalls, 0);
            EXPECT_EQ(lFlagsInOut, static_cast<std::int32_t>(lFlags));
            return failure;
        }
        EXPECT_EQ(g_seen.nCalls, 1);
        return std::nullopt;
    }

    clsCommDialogs dialogs;
    std::u16string sFilter{kFilter};
    std::u16string sTitle = u"Open \u0416";
    std::u16string sStartDir = u"C:\\Work";
    std::u16string sDefExt = u"vbp";

private:
    using FileCall = BOOL WINAPI(OPENFILENAMEW*);
    const testing::PatchedImport<FileCall> m_open{"GetOpenFileNameW", GetParam() ? &NeverCalled : &KeepRecord};
    const testing::PatchedImport<FileCall> m_save{"GetSaveFileNameW", GetParam() ? &KeepRecord : &NeverCalled};
};

INSTANTIATE_TEST_SUITE_P(OpenAndSave, FileDialogRecordTest, ::testing::Bool(),
                         [](const auto& save) { return save.param ? "Save" : "Open"; });

TEST_P(FileDialogRecordTest, RecordHasTheSizeWithoutTheLaterFields) {
    Show();
    EXPECT_EQ(g_seen.record.lStructSize, offsetof(OPENFILENAMEW, pvReserved));
}

TEST_P(FileDialogRecordTest, ExplorerStyleIsAddedToTheFlags) {
    Show();
    EXPECT_EQ(g_seen.record.Flags, 6144u | 0x80000u);
}

TEST_P(FileDialogRecordTest, BuffersAreOf2048And260Characters) {
    Show();
    EXPECT_EQ(g_seen.record.nMaxFile, 2048u);
    EXPECT_EQ(g_seen.record.nMaxFileTitle, 260u);
    ASSERT_NE(g_seen.record.lpstrFileTitle, nullptr);
}

TEST_P(FileDialogRecordTest, DefaultFileIsFilledWithNuls) {
    std::int32_t lFlags = 0;
    Show(lFlags, u"log.txt");
    EXPECT_EQ(g_seen.sFileBuffer, u"log.txt" + std::u16string(2041, u'\0'));
}

TEST_P(FileDialogRecordTest, DefaultFileIsCutAt2047Characters) {
    std::int32_t lFlags = 0;
    Show(lFlags, std::u16string(2047, u'a') + u"bc");
    EXPECT_EQ(g_seen.sFileBuffer, std::u16string(2047, u'a') + u'\0');
}

TEST_P(FileDialogRecordTest, WordsReachThePlatform) {
    Show();
    EXPECT_EQ(g_seen.sFilter, sFilter);
    EXPECT_EQ(g_seen.sTitle, u"Open \u0416");
    EXPECT_EQ(g_seen.sStartDir, u"C:\\Work");
    EXPECT_EQ(g_seen.sDefExt, u"vbp");
}

TEST_P(FileDialogRecordTest, OnlyTheSaveDialogChoosesTheFilter) {
    Show();
    EXPECT_EQ(g_seen.record.nFilterIndex, GetParam() ? 2u : 0u);
}

TEST_P(FileDialogRecordTest, EmptyWordsAreLeftToThePlatform) {
    sFilter = sTitle = sStartDir = sDefExt = u"";
    Show();
    EXPECT_EQ(g_seen.sFilter, u"none");
    EXPECT_EQ(g_seen.sTitle, std::nullopt);
    EXPECT_EQ(g_seen.sStartDir, std::nullopt);
    EXPECT_EQ(g_seen.sDefExt, std::nullopt);
}

TEST_P(FileDialogRecordTest, FilterWithoutItsLastNulStillEnds) {
    sFilter = std::u16string(u"All Files (*.*)\0*.*", 19);
    Show();
    EXPECT_EQ(g_seen.sFilter.substr(0, 21), sFilter + std::u16string(2, u'\0'));
}

TEST_P(FileDialogRecordTest, OwnerReachesThePlatform) {
    HWND owner = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    std::int32_t lFlags = 0;
    if (GetParam())
        dialogs.ShowSave(owner, sFilter, sTitle, lFlags, u"", u"", 0, u"");
    else
        dialogs.ShowOpen(owner, sFilter, sTitle, lFlags, u"", u"", u"");
    DestroyWindow(owner);
    EXPECT_EQ(g_seen.record.hwndOwner, owner);
}

TEST_P(FileDialogRecordTest, ResultIsTheBufferUpToItsFirstNul) {
    g_seen.bAnswer = TRUE;
    g_seen.sAnswer = std::u16string(u"C:\\\u0416.vbp\0rest", 13);
    EXPECT_EQ(Show(), u"C:\\\u0416.vbp");
}

TEST_P(FileDialogRecordTest, ResultOf2047CharactersIsWhole) {
    g_seen.bAnswer = TRUE;
    g_seen.sAnswer = std::u16string(2047, u'x');
    EXPECT_EQ(Show(), std::u16string(2047, u'x'));
}

TEST_P(FileDialogRecordTest, ResultingFlagsComeBackAfterAChoice) {
    g_seen.bAnswer = TRUE;
    g_seen.sAnswer = u"C:\\a";
    g_seen.lAnswerFlags = 0x88401u;
    std::int32_t lFlags = 0x1000;
    Show(lFlags);
    EXPECT_EQ(lFlags, 0x88401);
}

TEST_P(FileDialogRecordTest, CancelGivesAnEmptyTextAndKeepsTheFlags) {
    std::int32_t lFlags = 0x1000;
    EXPECT_EQ(Show(lFlags, u"proposed.vbp"), u"");
    EXPECT_EQ(lFlags, 0x1000);
}

TEST_P(FileDialogRecordTest, OutputFlagFailsWithNumberSourceAndDescription) {
    const auto failure = FailureOf(0x400);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 0x80040001u);
    EXPECT_EQ(failure->Source(), GetParam() ? u"ShowSave" : u"ShowOpen");
    EXPECT_EQ(failure->Description(), u"Flags OFN_EXTENSIONDIFFERENT and OFN_NOREADONLYRETURN \r\n"
                                      u"are used only in OUTPUT, you can test them after the \r\n"
                                      u"dialog box closes by checking the lFlags value");
}

TEST_P(FileDialogRecordTest, OutputFlagFailsAmongOthersToo) {
    EXPECT_TRUE(FailureOf(0x400 | 0x1800));
    EXPECT_TRUE(FailureOf(0xFFFFFFFF));
}

TEST_P(FileDialogRecordTest, AllBitsFrom15To31Fail) {
    EXPECT_TRUE(FailureOf(0xFFFF8000));
    EXPECT_TRUE(FailureOf(0xFFFF8802));
}

TEST_P(FileDialogRecordTest, NoReadOnlyReturnAlonePasses) {
    EXPECT_FALSE(FailureOf(0x8000));
    EXPECT_FALSE(FailureOf(0x8802));
}

TEST_P(FileDialogRecordTest, OneMissingBitFrom15To31Passes) {
    EXPECT_FALSE(FailureOf(0xFFFF0000));
    EXPECT_FALSE(FailureOf(0x7FFF8000));
    EXPECT_FALSE(FailureOf(0xFFFE8000));
}

TEST_P(FileDialogRecordTest, ResultingFlagsMayBeRefusedByASecondCall) {
    g_seen.bAnswer = TRUE;
    g_seen.sAnswer = u"C:\\a.txt";
    g_seen.lAnswerFlags = OFN_EXPLORER | OFN_EXTENSIONDIFFERENT;
    std::int32_t lFlags = 0;
    Show(lFlags);
    EXPECT_THROW(Show(lFlags), Failure);
}

} // namespace
} // namespace orvanta
