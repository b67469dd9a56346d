// Input that no editor writes: the rows and boxes that the rules give, nothing else touched, no crash.
#include "engine/cVbpMigrator.h"

#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace orvanta {
namespace {

using ::testing::Contains;
using testing::ConvertForm;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kFormPath;
using testing::Lines;
using testing::Outcome;

constexpr std::size_t kTenMillion = 10'000'000;

TEST(BadInput, AFolderInTheProjectsPlaceIsAProjectWithoutMembers) {
    testing::FakeWorld world;
    world.PutFolder(testing::kProjectPath);
    testing::RecordedLog log;
    EXPECT_FALSE(cVbpMigrator(world).Upgrade(testing::kProjectPath, log));
    EXPECT_THAT(world.boxes, ElementsAre(u"An error occured while reading the project files, no files found."));
    EXPECT_THAT(world.writes, IsEmpty());
}

TEST(BadInput, AProjectOfOneByteIsAProjectWithoutMembers) {
    testing::FakeWorld world;
    world.Put(testing::kProjectPath, "F");
    testing::RecordedLog log;
    EXPECT_FALSE(cVbpMigrator(world).Convert(testing::kProjectPath, {}, log, false, false));
    EXPECT_EQ(world.boxes.size(), 1u);
}

TEST(BadInput, NoOtherFileIsTouched) {
    testing::FakeWorld world;
    world.Put(u"C:\\Work\\b.frm", "Begin VB.Label L");
    world.Put(u"C:\\Work\\a.frx", "frx");
    world.Put(kFormPath, "Begin \r\nEnd");
    testing::ConvertIn(world);
    testing::UpgradeIn(world);
    EXPECT_EQ(world.Bytes(u"C:\\Work\\b.frm"), "Begin VB.Label L");
    EXPECT_EQ(world.Bytes(u"C:\\Work\\a.frx"), "frx");
    EXPECT_EQ(world.Files().size(), 4u);
}

TEST(BadInput, ARunOverAReadOnlyFileLeavesItAsItWas) {
    testing::FakeWorld world;
    world.Put(kFormPath, "Begin Orvanta.ctlUniButtonXP b\r\nEnd");
    world.RefuseSaving(kFormPath);
    EXPECT_THAT(testing::ConvertIn(world).rows,
                ElementsAre("a.frm||Reading...", "||Converted 1 controls [fore 16711680]",
                            "||Error saving this file... [fore 255]", "||"));
    EXPECT_EQ(testing::UpgradeIn(world).rows.front(), "a.frm|Error saving this file... [fore 255]");
    EXPECT_EQ(world.Bytes(kFormPath), "Begin Orvanta.ctlUniButtonXP b\r\nEnd");
}

TEST(BadInput, NulBytesAreCharactersLikeAnyOther) {
    using namespace std::string_literals;
    const std::string sForm = "\0Begin VB.Label L\r\nBegin VB.Label \0x\0\r\nCap\0tion = \0\r\nEnd\0\r\nx as label\0"s;
    const Outcome outcome = ConvertForm(sForm);
    EXPECT_EQ(outcome.sBytes,
              "\0Begin VB.Label L\r\nBegin Orvanta.ctlUniLabel \0x\0\r\nCap\0tion = \0\r\nEnd\0\r\nx as label\0\r\n"s);
    EXPECT_THAT(outcome.rows, Contains("|4|Check this line, control reference found >> x as label\0 [back 65280]"s));
}

TEST(BadInput, AFileOfNulBytesOnlyIsOneLine) {
    EXPECT_EQ(ConvertForm(std::string(1000, '\0')).sBytes, std::string(1000, '\0') + "\r\n");
}

TEST(BadInput, MoreEndsThanBlocksConvertWhatIsOpen) {
    const Outcome outcome =
        ConvertForm(Lines({"End", "End", "End", "Begin VB.Label L", "End", "Begin VB.Label M", "End"}));
    EXPECT_EQ(outcome.sBytes, Lines({"End", "End", "End", "Begin Orvanta.ctlUniLabel L", "End",
                                     "Begin Orvanta.ctlUniLabel M", "End", ""}));
}

TEST(BadInput, AFormOfTenMegabytesOnOneLine) {
    EXPECT_EQ(ConvertForm(std::string(kTenMillion, 'x')).sBytes, std::string(kTenMillion, 'x') + "\r\n");
    const std::string sBlanks(kTenMillion, ' ');
    EXPECT_EQ(ConvertForm(sBlanks + "Begin VB.Label " + sBlanks).sBytes, "Begin Orvanta.ctlUniLabel \r\n");
}

TEST(BadInput, KeywordsByTheMillionOnALineBehindMillionsOfBlanks) {
    std::string sLine(kTenMillion / 2, ' ');
    for (std::size_t n = 0; n < kTenMillion / 4; ++n)
        sLine += "En";
    const std::string sForm = "Begin VB.Form F\r\n" + sLine + "\r\nEnd\r\nas label";
    const Outcome outcome = ConvertForm(sForm);
    EXPECT_EQ(outcome.sBytes, sForm + "\r\n");
    EXPECT_EQ(outcome.rows.size(), 5u);
}

TEST(BadInput, ATenMegabyteLineOfCodeIsFlaggedAndItsCallIsServed) {
    const std::string sLong(kTenMillion, '(');
    const Outcome outcome =
        ConvertForm(Lines({"Begin VB.TextBox T", "End", "Sub T_Click()", "x as label " + sLong, "T_Click '" + sLong}));
    EXPECT_EQ(outcome.sBytes, Lines({"Begin Orvanta.ctlUniTextBoxXP T", "End", "Sub T_Click(Button As Integer)",
                                     "x as label " + sLong, "T_Click  0'" + sLong, ""}));
    EXPECT_EQ(outcome.rows[1].size(),
              ("|3|Check this line, control reference found >> x as label  [back 65280]" + sLong).size());
}

TEST(BadInput, AnUpgradeOfALineOfTenMegabytes) {
    const std::string sLong(kTenMillion, 'O');
    EXPECT_EQ(testing::UpgradeForm("Object = \"" + sLong + "Orvanta\"\r\n").sBytes,
              "Object = \"{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0\"; \"Orvanta31.ocx\"\r\n\r\n");
}

std::string FormOfLines(std::size_t nLines, const std::string& sControl) {
    std::string sForm =
        Lines({"Begin VB.Form F", sControl, "End", "End", "Sub T_Click()", "T_Click", "Dim a As Label"});
    for (std::size_t n = 8; n < nLines; ++n)
        sForm += "a = 1\r\n";
    return sForm + "End Sub";
}

TEST(BadInput, AFormOfFortyThousandLinesWithATextBoxGivesTheOverflowBoxAndIsSaved) {
    const std::string sForm = FormOfLines(40'000, "Begin VB.TextBox T");
    const Outcome outcome = ConvertForm(sForm);
    EXPECT_THAT(outcome.boxes, ElementsAre("Overflow"));
    EXPECT_THAT(outcome.rows, ElementsAre("a.frm||Reading...",
                                          "|6|Check this line, control reference found >> Dim a As Label [back 65280]",
                                          "||Converted 1 controls [fore 16711680]", "||Saved...", "||"));
    std::string sExpected = sForm + "\r\n";
    sExpected.replace(sExpected.find("Begin VB.TextBox T"), 18, "Begin Orvanta.ctlUniTextBoxXP T");
    EXPECT_EQ(outcome.sBytes, sExpected); // the handler stays as it was
}

TEST(BadInput, TheLimitOfTheCodePassIsThirtyTwoThousandSevenHundredAndSixtyEightElements) {
    const Outcome most = ConvertForm(FormOfLines(32'768, "Begin VB.TextBox T"));
    EXPECT_THAT(most.boxes, IsEmpty());
    EXPECT_NE(most.sBytes.find("Sub T_Click(Button As Integer)\r\nT_Click 0\r\n"), std::string::npos);
    EXPECT_THAT(ConvertForm(FormOfLines(32'769, "Begin VB.TextBox T")).boxes, ElementsAre("Overflow"));
}

TEST(BadInput, WithoutATextBoxALongFormKnowsNoLimit) {
    EXPECT_THAT(ConvertForm(FormOfLines(40'000, "Begin VB.Label T")).boxes, IsEmpty());
}

TEST(BadInput, EveryShortBeginLineGivesItsBoxes) {
    std::string sForm;
    for (int n = 0; n < 1000; ++n)
        sForm += "Begin \r\nBegin x\r\n";
    EXPECT_EQ(ConvertForm(sForm).boxes.size(), 3000u);
}

} // namespace
} // namespace orvanta
