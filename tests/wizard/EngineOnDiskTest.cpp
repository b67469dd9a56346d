// The engine over real files that are odd, damaged, locked or in other encodings. Run with several system code pages.
#include "files/clsUniFile.h"
#include "plumbing/WideText.h"
#include "tests/engine/EngineRun.h"
#include "tests/wizard/EngineOnDiskFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RowTexts;

constexpr const char* kRedRow = "a.frm||Error while reading file... [fore 255]";
constexpr const char16_t* kOutOfRange = u"Attention: Subscript out of range";
constexpr const char* kLabel = "Begin VB.Label L\r\nEnd";
constexpr const char* kLabelAfter = "Begin Orvanta.ctlUniLabel L\r\nEnd\r\n";

// The bytes of a text of ASCII characters in UTF-16.
std::string Units(std::string_view s) {
    std::string sOut;
    for (const char c : s)
        sOut.append({c, '\0'});
    return sOut;
}

class EngineOnDisk : public testing::EngineOnDiskFixture {
protected:
    void ExpectUnreadable() {
        const std::u16string sProject = Project();
        EXPECT_TRUE(Convert(sProject));
        EXPECT_THAT(RowTexts(log), ElementsAre(kRedRow));
        EXPECT_THAT(Boxes(), ElementsAre(kOutOfRange));
        Boxes().clear();
        EXPECT_TRUE(Upgrade(sProject));
        EXPECT_THAT(RowTexts(log), ElementsAre("a.frm|Error while reading file... [fore 255]", "App.vbp|Upgraded..."));
        EXPECT_THAT(Boxes(), IsEmpty());
    }
};

TEST_F(EngineOnDisk, MissingMemberCannotBeReadAndIsNotMade) {
    ExpectUnreadable();
    EXPECT_FALSE(testing::TempFolder::Exists(folder / u"a.frm"));
}

TEST_F(EngineOnDisk, FolderInTheMembersPlaceCannotBeRead) {
    ASSERT_TRUE(clsUniFile::st_MkDir(folder / u"a.frm"));
    ExpectUnreadable();
    EXPECT_TRUE(clsUniFile::st_DirExist(folder / u"a.frm"));
}

TEST_F(EngineOnDisk, MemberThatAnotherProgramKeepsToItselfCannotBeRead) {
    folder.Write(u"a.frm", kLabel);
    clsUniFile other;
    ASSERT_TRUE(other.OpenFileRead(folder / u"a.frm", false));
    ExpectUnreadable();
    other.CloseFile();
    EXPECT_EQ(FormBytes(), kLabel);
}

class EngineOnDiskLengths : public EngineOnDisk, public ::testing::WithParamInterface<std::string> {};

TEST_P(EngineOnDiskLengths, LeaveOneByteForTheCacheAndCannotBeRead) {
    folder.Write(u"a.frm", GetParam());
    ExpectUnreadable();
    EXPECT_TRUE(FormBytes() == GetParam());
}

INSTANTIATE_TEST_SUITE_P(Members, EngineOnDiskLengths,
                         ::testing::Values("x", "\xFF", "\xEF", "\xEF\xBB", "\xFF\xFE" + std::string(16383, ' '),
                                           "\xEF\xBB\xBF" + std::string(16382, ' ')));

TEST_F(EngineOnDisk, NeighboursOfTheLengthsThatCannotBeReadAreConverted) {
    for (const std::size_t nBlanks : {16381u, 16383u}) {
        EXPECT_TRUE(Convert(Project("\xEF\xBB\xBF" + std::string(nBlanks, ' '))));
        EXPECT_TRUE(FormBytes() == std::string(nBlanks, ' ') + "\r\n") << nBlanks;
    }
    EXPECT_TRUE(Convert(Project(std::string(16385, ' '))));
    EXPECT_TRUE(FormBytes() == std::string(16385, ' ') + "\r\n");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(EngineOnDisk, MembersInUtf16AndUtf8ComeBackInTheAnsiCodePage) {
    EXPECT_TRUE(Convert(Project("\xFF\xFE" + Units(kLabel))));
    EXPECT_EQ(FormBytes(), kLabelAfter);
    EXPECT_TRUE(Convert(Project(std::string("\xEF\xBB\xBF").append(kLabel))));
    EXPECT_EQ(FormBytes(), kLabelAfter);
    EXPECT_THAT(Boxes(), IsEmpty());
}

// The Cyrillic letter Zhe, which some code pages have, and a Thai one, which none of them has but UTF-8.
TEST_F(EngineOnDisk, CharactersWithoutAPlaceBecomeWhatTheCodePagePutsForThem) {
    const std::string sZhe = GetACP() == 1251    ? "\xC6"
                             : GetACP() == 932   ? "\x84\x47"
                             : GetACP() == 65001 ? "\xD0\x96"
                                                 : "?";
    const std::string sThai = GetACP() == 65001 ? "\xE0\xB8\x81" : "?";
    EXPECT_TRUE(Convert(Project("\xEF\xBB\xBF'\xD0\x96' \xE0\xB8\x81.")));
    EXPECT_EQ(FormBytes(), "'" + sZhe + "' " + sThai + ".\r\n");
    EXPECT_TRUE(Convert(Project("\xFF\xFE" + Units("'") + "\x16\x04" + Units("' ") + "\x01\x0E" + Units("."))));
    EXPECT_EQ(FormBytes(), "'" + sZhe + "' " + sThai + ".\r\n");
    EXPECT_TRUE(Convert(Project("'" + sZhe + "'.")));
    EXPECT_EQ(FormBytes(), "'" + sZhe + "'.\r\n") << "the code page's own characters stay";
}

TEST_F(EngineOnDisk, MemberThatCannotBeReplacedIsReportedAndKept) {
    const char* const sForm = "Begin Orvanta.ctlUniButtonXP b\r\nEnd";
    const std::u16string sProject = Project(sForm);
    clsUniFile other;
    ASSERT_TRUE(other.OpenFileRead(folder / u"a.frm", true));
    EXPECT_TRUE(Convert(sProject));
    EXPECT_THAT(RowTexts(log), ElementsAre("a.frm||Reading...", "||Converted 1 controls [fore 16711680]",
                                           "||Error saving this file... [fore 255]", "||"));
    EXPECT_TRUE(Upgrade(sProject));
    EXPECT_EQ(RowTexts(log).front(), "a.frm|Error saving this file... [fore 255]");
    other.CloseFile();
    EXPECT_EQ(FormBytes(), sForm);
    EXPECT_THAT(Boxes(), IsEmpty());
}

// A pattern is no name: the one file that it matches is neither read nor written.
TEST_F(EngineOnDisk, MemberNamedByAPatternCannotBeRead) {
    folder.Write(u"a.frm", kLabel);
    EXPECT_TRUE(Convert(folder.Write(u"App.vbp", "Form=*.frm\r\nObject=Orvanta\r\n")));
    EXPECT_THAT(RowTexts(log), ElementsAre("*.frm||Error while reading file... [fore 255]"));
    EXPECT_THAT(Boxes(), ElementsAre(kOutOfRange));
    EXPECT_EQ(FormBytes(), kLabel);
}

TEST_F(EngineOnDisk, WhatIsNoReadableProjectHasNoMembers) {
    const std::u16string sNoFiles = u"Attention: An error occured while reading the project files, no files found.";
    ASSERT_TRUE(clsUniFile::st_MkDir(folder / u"Folder.vbp"));
    Project(kLabel);
    const std::u16string sByte = folder.Write(u"Byte.vbp", "F");
    for (const std::u16string& sProject :
         {folder / u"Folder.vbp", sByte, folder / u"A*.vbp", folder / u"Missing.vbp"}) {
        Boxes().clear();
        EXPECT_FALSE(Convert(sProject));
        EXPECT_FALSE(Upgrade(sProject));
        EXPECT_THAT(Boxes(), ElementsAre(sNoFiles, sNoFiles));
    }
    EXPECT_EQ(testing::TempFolder::Read(sByte), "F");
    EXPECT_EQ(FormBytes(), kLabel);
}

} // namespace
} // namespace orvanta
