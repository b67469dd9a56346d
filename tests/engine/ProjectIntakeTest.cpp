#include "engine/ProjectIntake.h"

#include "engine/cVbpMigrator.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Intake {
    std::vector<std::string> members;
    bool bLibraryReferenced = false;
};

Intake IntakeIn(testing::FakeWorld& world, const std::u16string& sPath) {
    Collection<std::u16string> oCollRelFiles;
    Intake intake;
    cVbpMigrator(world).GetProjectCollFiles(sPath, oCollRelFiles, intake.bLibraryReferenced);
    for (std::size_t n = 1; n <= oCollRelFiles.Count(); ++n)
        intake.members.push_back(testing::ToUtf8(oCollRelFiles.Item(n)));
    return intake;
}

Intake IntakeOf(const std::string& sProject, const std::u16string& sPath = u"C:\\Work\\App.vbp") {
    testing::FakeWorld world;
    world.Put(sPath, sProject);
    return IntakeIn(world, sPath);
}

TEST(ProjectIntake, AMemberBelowTheProjectsFolderGetsItsFullPath) {
    EXPECT_THAT(IntakeOf("Form=Forms\\Main.frm").members, ElementsAre("C:\\Work\\Forms\\Main.frm"));
}

TEST(ProjectIntake, AStepUpInAMembersPathIsTaken) {
    EXPECT_THAT(IntakeOf("UserControl=..\\Shared\\Box.ctl", u"C:\\Work\\App\\App.vbp").members,
                ElementsAre("C:\\Work\\Shared\\Box.ctl"));
}

TEST(ProjectIntake, APathWithADriveStaysAsItStandsDotsIncluded) {
    EXPECT_THAT(IntakeOf("Form=C:\\Other\\..\\Main.frm").members, ElementsAre("C:\\Other\\..\\Main.frm"));
}

TEST(ProjectIntake, ADotSegmentJoinsItsNeighbours) {
    EXPECT_THAT(IntakeOf("Form=.\\Main.frm").members, ElementsAre("C:\\WorkMain.frm"));
}

TEST(ProjectIntake, ALowerCaseKeyIsNoMemberAndItsLineIsSearchedForTheLibrary) {
    const Intake intake = IntakeOf("form=Orvanta.frm");
    EXPECT_THAT(intake.members, IsEmpty());
    EXPECT_TRUE(intake.bLibraryReferenced);
}

TEST(ProjectIntake, AnIndentedKeyIsNoMember) {
    EXPECT_THAT(IntakeOf(" Form=a.frm\r\n\tUserControl=b.ctl").members, IsEmpty());
}

TEST(ProjectIntake, AMemberLineNeverCountsAsAMentionOfTheLibrary) {
    const Intake intake = IntakeOf("Form=Orvanta.frm\r\nUserControl=Orvanta.ctl");
    EXPECT_EQ(intake.members.size(), 2u);
    EXPECT_FALSE(intake.bLibraryReferenced);
}

TEST(ProjectIntake, AnyOtherLineMentionsTheLibraryInAnyCaseAtAnyPosition) {
    EXPECT_TRUE(IntakeOf("Title=\"Orvanta demo\"").bLibraryReferenced);
    EXPECT_TRUE(IntakeOf("Object={1}#1.0#0; oRVANTA28.ocx").bLibraryReferenced);
    EXPECT_TRUE(IntakeOf("orvanta").bLibraryReferenced);
    EXPECT_FALSE(IntakeOf("Title=\"Orvant a\"").bLibraryReferenced);
}

TEST(ProjectIntake, AMentionIsNotTakenBackByLaterLines) {
    EXPECT_TRUE(IntakeOf("Name=\"Orvanta\"\r\nForm=a.frm\r\nStartup=\"Sub Main\"\r\n").bLibraryReferenced);
}

TEST(ProjectIntake, ALoneLineFeedOrCarriageReturnSeparatesNothing) {
    const Intake lf = IntakeOf("Type=Exe\nForm=a.frm\nObject=Orvanta\n");
    EXPECT_THAT(lf.members, IsEmpty());
    EXPECT_TRUE(lf.bLibraryReferenced);
    EXPECT_THAT(IntakeOf("Type=Exe\rForm=a.frm").members, IsEmpty());
    EXPECT_THAT(IntakeOf("Form=a.frm\nForm=b.frm").members, ElementsAre("C:\\Work\\a.frm\nForm=b.frm"));
}

TEST(ProjectIntake, AProjectWithoutMembersMayStillNameTheLibrary) {
    const Intake intake = IntakeOf("Module=m; m.bas\r\nObject={1}#1.0#0; Orvanta31.ocx\r\n");
    EXPECT_THAT(intake.members, IsEmpty());
    EXPECT_TRUE(intake.bLibraryReferenced);
}

TEST(ProjectIntake, ModulesClassesPagesAndDesignersAreNoMembers) {
    EXPECT_THAT(
        IntakeOf("Module=m; m.bas\r\nClass=c; c.cls\r\nPropertyPage=p.pag\r\nDesigner=d.dsr\r\nUserDocument=u.dob")
            .members,
        IsEmpty());
}

TEST(ProjectIntake, MembersStandInTheOrderOfTheLinesAndTwiceWhenNamedTwice) {
    EXPECT_THAT(IntakeOf("Form=b.frm\r\nUserControl=c.ctl\r\nForm=a.frm\r\nForm=b.frm\r\n").members,
                ElementsAre("C:\\Work\\b.frm", "C:\\Work\\c.ctl", "C:\\Work\\a.frm", "C:\\Work\\b.frm"));
}

TEST(ProjectIntake, TheRestBehindTheFirstEqualsSignIsNotTrimmed) {
    EXPECT_THAT(IntakeOf("Form= a=b.frm ").members, ElementsAre("C:\\Work\\ a=b.frm "));
}

TEST(ProjectIntake, AnEmptyMemberIsTheProjectsFolderWithoutBackslash) {
    EXPECT_THAT(IntakeOf("Form=").members, ElementsAre("C:\\Work"));
}

TEST(ProjectIntake, AMissingOrUnreadableOrEmptyProjectGivesNothing) {
    testing::FakeWorld world;
    EXPECT_THAT(IntakeIn(world, u"C:\\Work\\App.vbp").members, IsEmpty());
    world.Put(u"C:\\Work\\App.vbp", "Form=a.frm\r\nObject=Orvanta");
    world.RefuseReading(u"C:\\Work\\App.vbp");
    const Intake unreadable = IntakeIn(world, u"C:\\Work\\App.vbp");
    EXPECT_THAT(unreadable.members, IsEmpty());
    EXPECT_FALSE(unreadable.bLibraryReferenced);
    EXPECT_THAT(IntakeOf("").members, IsEmpty());
    EXPECT_THAT(world.boxes, IsEmpty());
}

TEST(ProjectIntake, WhatTheCallerHadInTheListAndTheFlagIsGone) {
    testing::FakeWorld world;
    Collection<std::u16string> oCollRelFiles;
    oCollRelFiles.Add(u"old");
    bool bLibraryReferenced = true;
    cVbpMigrator(world).GetProjectCollFiles(u"C:\\none.vbp", oCollRelFiles, bLibraryReferenced);
    EXPECT_TRUE(oCollRelFiles.Empty());
    EXPECT_FALSE(bLibraryReferenced);
}

TEST(ProjectIntake, TheEngineNeverAsksTheFileLayerToRaise) {
    testing::FakeWorld world;
    world.Put(u"C:\\App.vbp", "Form=a.frm");
    IntakeIn(world, u"C:\\App.vbp");
    EXPECT_THAT(world.readRaises, ElementsAre(false));
}

TEST(ProjectIntake, AUtf8ProjectIsReadByItsMark) {
    EXPECT_THAT(IntakeOf("\xEF\xBB\xBF"
                         "Form=\xC3\xA9.frm")
                    .members,
                ElementsAre("C:\\Work\\\xC3\xA9.frm"));
}

struct PathCase {
    const char16_t* sGiven;
    const char16_t* sWanted;
};

TEST(ProjectPaths, NormalizePathPutsUrlsAndSlashesInBackslashForm) {
    const PathCase cases[] = {
        {u"a/b/c.frm", u"a\\b\\c.frm"},
        {u"file:///C|/My%20Forms/a.frm", u"C:\\My Forms\\a.frm"},
        {u"FILE://server/a.frm", u"server\\a.frm"},
        {u"xyz file://a.frm", u"a.frm"},           // wherever it stands, all in front of the first "://" goes
        {u"http://file://a.frm", u"file:\\a.frm"}, // the first "://" is not that of the file URL
        {u"http://h/a.frm", u"http:\\h\\a.frm"},   // other URLs are only turned round
        {u"\\\\server\\share\\a.frm", u"server\\share\\a.frm"},
        {u"\\a.frm", u"a.frm"},
        {u"\\", u"\\"},           // one character is too short to lose it
        {u"a\\\\\\b", u"a\\\\b"}, // pairs are replaced once, from the left
        {u"a%2520b", u"a%2520b"},
        {u"", u""},
    };
    for (const PathCase& c : cases)
        EXPECT_EQ(NormalizePath(c.sGiven), c.sWanted) << testing::ToUtf8(c.sGiven);
}

TEST(ProjectPaths, ANetworkPathBecomesRelativeToTheProjectsFolder) {
    EXPECT_EQ(ResolveProjectPath(u"C:\\Work\\App.vbp", u"\\\\server\\share\\a.frm"), u"C:\\Work\\server\\share\\a.frm");
    EXPECT_EQ(ResolveProjectPath(u"C:\\Work\\App.vbp", u"\\a.frm"), u"C:\\Work\\a.frm");
}

TEST(ProjectPaths, ADriveInAnyOfItsFormsStandsAlone) {
    EXPECT_EQ(ResolveProjectPath(u"C:\\Work\\App.vbp", u"D|/x/../a.frm"), u"D:\\x\\..\\a.frm");
    EXPECT_EQ(ResolveProjectPath(u"C:\\Work\\App.vbp", u":a"), u"C:\\Work\\:a");
}

TEST(ProjectPaths, CollapseDotsTakesEachStepUp) {
    const PathCase cases[] = {
        {u"C:\\a\\b\\..\\c.frm", u"C:\\a\\c.frm"},
        {u"C:\\a\\b\\..\\..\\c.frm", u"C:\\c.frm"},
        {u"C:\\..\\a.frm", u"C:\\a.frm"},
        {u"C:\\..\\..\\a.frm", u"C:\\a.frm"},
        {u"a\\.\\b", u"ab"},
        {u"C:\\a\\.\\.\\b", u"C:\\a.\\b"}, // the two matches overlap: only the first goes
        {u"..", u".."},
        {u"..\\a", u"..\\a"}, // nothing to step out of, and no "\.." to drop
        {u"C:\\a\\b", u"C:\\a\\b"},
        {u"", u""},
    };
    for (const PathCase& c : cases)
        EXPECT_EQ(CollapseDots(c.sGiven), c.sWanted) << testing::ToUtf8(c.sGiven);
}

TEST(ProjectPaths, TwoDotsInsideANameAreAStepUpThatTakesTheNamesFolderToo) {
    EXPECT_EQ(CollapseDots(u"C:\\p\\a..b.frm"), u"C:b.frm");
    EXPECT_EQ(CollapseDots(u"C:\\p\\ab..c"), u"C:\\pc"); // the last backslash before position p - 2
}

TEST(ProjectPaths, AMemberLineOfAMillionStepsIsDoneInOnePass) {
    std::u16string sSteps;
    for (int n = 0; n < 1'000'000; ++n)
        sSteps += u"a\\..\\";
    EXPECT_EQ(ResolveProjectPath(u"C:\\Work\\App.vbp", sSteps + u"a.frm"), u"C:\\Work\\a.frm");
}

} // namespace
} // namespace orvanta
