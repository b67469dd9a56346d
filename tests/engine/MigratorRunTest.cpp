#include "engine/cVbpMigrator.h"

#include "tests/engine/EngineRun.h"
#include "tests/support/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kFormPath;
using testing::kProjectPath;

const std::u16string kNoFiles = u"An error occured while reading the project files, no files found.";
const std::u16string kNoLibrary = u"Library \"Orvanta\" not referenced, please add the reference to the project first.";
const std::string kPlainForm = "Begin VB.Form F\r\nEnd\r\n";

struct MigratorRun : ::testing::Test {
    bool Convert(const std::vector<std::u16string>& files) {
        Collection<std::u16string> oCollFilesToConvert;
        for (const std::u16string& sFile : files)
            oCollFilesToConvert.Add(sFile);
        return cVbpMigrator(world).Convert(kProjectPath, oCollFilesToConvert, log, false, false);
    }
    bool Upgrade() { return cVbpMigrator(world).Upgrade(kProjectPath, log); }
    std::vector<std::string> Rows() const { return testing::RowTexts(log); }

    testing::FakeWorld world;
    testing::RecordedLog log;
};

testing::RecordedLog::Column TextColumn(const char16_t* sText, const char16_t* sKey) {
    return {sText, -1, 0, sKey, true, 2, false, false, false, 0, true};
}

TEST_F(MigratorRun, ConvertMakesThreeColumns) {
    world.Put(kProjectPath, testing::kProject);
    EXPECT_TRUE(Convert({}));
    EXPECT_THAT(log.Columns(), ElementsAre(TextColumn(u"Source", u"src"), TextColumn(u"Line", u"line"),
                                           TextColumn(u"Description", u"descr")));
}

TEST_F(MigratorRun, UpgradeMakesTwoColumnsWithoutALine) {
    world.Put(kProjectPath, testing::kProject);
    EXPECT_TRUE(Upgrade());
    EXPECT_THAT(log.Columns(), ElementsAre(TextColumn(u"Source", u"src"), TextColumn(u"Description", u"descr")));
}

TEST_F(MigratorRun, AProjectWithoutMembersStopsBothRunsWithItsBox) {
    world.Put(kProjectPath, "Object=Orvanta\r\n");
    world.Put(kFormPath, kPlainForm);
    EXPECT_FALSE(Convert({kFormPath}));
    EXPECT_FALSE(Upgrade());
    EXPECT_THAT(world.boxes, ElementsAre(kNoFiles, kNoFiles));
    EXPECT_THAT(world.writes, IsEmpty());
    EXPECT_THAT(log.Columns(), IsEmpty());
}

TEST_F(MigratorRun, AMissingProjectStopsBothRunsWithTheBoxAboutItsMembers) {
    EXPECT_FALSE(Convert({}));
    EXPECT_FALSE(Upgrade());
    EXPECT_THAT(world.boxes, ElementsAre(kNoFiles, kNoFiles));
}

TEST_F(MigratorRun, AProjectWithoutTheLibraryStopsBothRunsAndLeavesTheGridUntouched) {
    world.Put(kProjectPath, testing::kProject);
    world.Put(kFormPath, kPlainForm);
    EXPECT_TRUE(Convert({kFormPath}));
    const std::vector<std::string> earlier = Rows();
    ASSERT_FALSE(earlier.empty());

    world.Put(kProjectPath, "Form=a.frm\r\n");
    EXPECT_FALSE(Convert({kFormPath}));
    EXPECT_FALSE(Upgrade());
    EXPECT_EQ(Rows(), earlier);
    EXPECT_EQ(log.Columns().size(), 3u);
    EXPECT_THAT(world.boxes, ElementsAre(kNoLibrary, kNoLibrary));
}

TEST_F(MigratorRun, TheMembersAreLookedAtBeforeTheLibrary) {
    world.Put(kProjectPath, "Title=none of both\r\n");
    EXPECT_FALSE(Convert({}));
    EXPECT_THAT(world.boxes, ElementsAre(kNoFiles));
}

TEST_F(MigratorRun, AnEmptyChoiceIsNoFailureAndLeavesOnlyTheHeader) {
    world.Put(kProjectPath, testing::kProject);
    EXPECT_TRUE(Convert({}));
    EXPECT_EQ(log.Columns().size(), 3u);
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_THAT(world.boxes, IsEmpty());
    EXPECT_THAT(world.writes, IsEmpty());
}

TEST_F(MigratorRun, ARunClearsTheRowsAndColumnsOfTheEarlierOne) {
    world.Put(kProjectPath, testing::kProject);
    world.Put(kFormPath, kPlainForm);
    EXPECT_TRUE(Upgrade());
    EXPECT_TRUE(Convert({}));
    EXPECT_EQ(log.Columns().size(), 3u);
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_TRUE(Upgrade());
    EXPECT_EQ(log.Columns().size(), 2u);
    EXPECT_EQ(Rows().size(), 2u);
}

TEST_F(MigratorRun, UpgradeOfTwoFormsGivesThreeRowsTheLastForTheProject) {
    world.Put(kProjectPath, "Form=a.frm\r\nForm=b.frm\r\nObject={0}#1.0#0; Orvanta28.ocx\r\n");
    world.Put(kFormPath, kPlainForm);
    world.Put(u"C:\\Work\\b.frm", "Begin VB.Form F\r\nBegin Orvanta.ctlUniButtonXP B\r\nEnd\r\nEnd\r\n");
    EXPECT_TRUE(Upgrade());
    EXPECT_THAT(Rows(), ElementsAre("a.frm|Skipped...", "b.frm|Upgraded...", "App.vbp|Upgraded..."));
}

TEST_F(MigratorRun, AMemberNamedTwiceIsUpgradedTwice) {
    world.Put(kProjectPath, "Form=a.frm\r\nForm=a.frm\r\nTitle=Orvanta\r\n");
    world.Put(kFormPath, "Object = \"Orvanta\"\r\n");
    EXPECT_TRUE(Upgrade());
    EXPECT_THAT(Rows(), ElementsAre("a.frm|Upgraded...", "a.frm|Upgraded...", "App.vbp|Skipped..."));
    EXPECT_TRUE(world.Bytes(kFormPath).ends_with("\"\r\n\r\n\r\n"));
}

TEST_F(MigratorRun, AFileNamedTwiceIsConvertedTwiceAndLoggedTwice) {
    world.Put(kProjectPath, testing::kProject);
    world.Put(kFormPath, kPlainForm);
    EXPECT_TRUE(Convert({kFormPath, kFormPath}));
    EXPECT_THAT(Rows(), ElementsAre("a.frm||Reading...", "||Converted 0 controls", "||Saved...", "||",
                                    "a.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
    EXPECT_EQ(world.Bytes(kFormPath), kPlainForm + "\r\n\r\n");
}

TEST_F(MigratorRun, ConvertTakesTheChosenFilesInTheirOrderAndNoOthers) {
    world.Put(kProjectPath, "Form=a.frm\r\nForm=b.frm\r\nTitle=Orvanta\r\n");
    world.Put(kFormPath, kPlainForm);
    world.Put(u"C:\\Work\\b.frm", kPlainForm);
    world.Put(u"D:\\no member.ctl", kPlainForm);
    EXPECT_TRUE(Convert({u"D:\\no member.ctl", kFormPath}));
    ASSERT_EQ(world.writes.size(), 2u);
    EXPECT_EQ(world.writes[0].sPath, u"D:\\no member.ctl");
    EXPECT_EQ(world.writes[1].sPath, kFormPath);
    EXPECT_EQ(Rows()[0], "no member.ctl||Reading...");
    EXPECT_EQ(world.Bytes(u"C:\\Work\\b.frm"), kPlainForm);
}

TEST_F(MigratorRun, ConvertNeverRewritesTheProjectFile) {
    world.Put(kProjectPath, testing::kProject);
    world.Put(kFormPath, kPlainForm);
    EXPECT_TRUE(Convert({kFormPath}));
    EXPECT_EQ(world.Bytes(kProjectPath), testing::kProject);
}

TEST_F(MigratorRun, FilesAreSavedInTheAnsiCodePageWithoutARaise) {
    world.Put(kProjectPath, testing::kProject);
    world.Put(kFormPath, "Object = \"Orvanta\"\r\n");
    EXPECT_TRUE(Convert({kFormPath}));
    EXPECT_TRUE(Upgrade());
    ASSERT_EQ(world.writes.size(), 3u);
    for (const testing::FakeWorld::Write& write : world.writes) {
        EXPECT_EQ(write.iEncoding, feAnsi);
        EXPECT_FALSE(write.bRaiseError);
    }
    for (const bool bRaises : world.readRaises)
        EXPECT_FALSE(bRaises);
}

TEST_F(MigratorRun, AFailedSaveIsARedRowAndTheRunGoesOn) {
    world.Put(kProjectPath, "Form=a.frm\r\nForm=b.frm\r\nObject=Orvanta\r\n");
    world.Put(kFormPath, kPlainForm);
    world.Put(u"C:\\Work\\b.frm", kPlainForm);
    world.RefuseSaving(kFormPath);
    EXPECT_TRUE(Convert({kFormPath, u"C:\\Work\\b.frm"}));
    EXPECT_THAT(Rows(),
                ElementsAre("a.frm||Reading...", "||Converted 0 controls", "||Error saving this file... [fore 255]",
                            "||", "b.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
    EXPECT_EQ(world.Bytes(kFormPath), kPlainForm);
    EXPECT_EQ(world.writes.size(), 2u); // no second attempt
    EXPECT_THAT(world.boxes, IsEmpty());
}

TEST_F(MigratorRun, AFailedSaveOfAnUpgradeIsItsRedRow) {
    world.Put(kProjectPath, "Form=a.frm\r\nObject={Orvanta}\r\n");
    world.Put(kFormPath, "Object = \"Orvanta\"\r\n");
    world.RefuseSaving(kFormPath);
    world.RefuseSaving(kProjectPath);
    EXPECT_TRUE(Upgrade());
    EXPECT_THAT(Rows(), ElementsAre("a.frm|Error saving this file... [fore 255]",
                                    "App.vbp|Error saving this file... [fore 255]"));
}

TEST_F(MigratorRun, ASaveThatRaisesIsABoxAndTheRedRowAndTheRunGoesOn) {
    world.Put(kProjectPath, "Form=a.frm\r\nForm=b.frm\r\nObject=Orvanta\r\n");
    world.Put(kFormPath, kPlainForm);
    world.Put(u"C:\\Work\\b.frm", kPlainForm);
    world.RaiseOnSaving(kFormPath);
    EXPECT_TRUE(Convert({kFormPath, u"C:\\Work\\b.frm"}));
    EXPECT_THAT(Rows(),
                ElementsAre("a.frm||Reading...", "||Converted 0 controls", "||Error saving this file... [fore 255]",
                            "||", "b.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
    EXPECT_THAT(world.boxes, ElementsAre(u"The device is gone"));
}

TEST_F(MigratorRun, ASaveOfAnUpgradeThatRaisesIsABoxAndTheRedRowAndTheRunGoesOn) {
    world.Put(kProjectPath, "Form=a.frm\r\nObject={Orvanta}\r\n");
    world.Put(kFormPath, "Object = \"Orvanta\"\r\n");
    world.RaiseOnSaving(kFormPath);
    EXPECT_TRUE(Upgrade());
    EXPECT_THAT(Rows(), ElementsAre("a.frm|Error saving this file... [fore 255]", "App.vbp|Upgraded..."));
    EXPECT_THAT(world.boxes, ElementsAre(u"The device is gone"));
}

TEST_F(MigratorRun, AProjectOfThreeHundredFormsConverts) {
    std::string sProject = "Object=Orvanta\r\n";
    std::vector<std::u16string> files;
    for (int n = 0; n < 300; ++n) {
        const std::string sName = "Form" + std::to_string(n) + ".frm";
        sProject += "Form=" + sName + "\r\n";
        files.push_back(u"C:\\Work\\" + testing::FromUtf8(sName));
        world.Put(files.back(), testing::InForm({"Begin VB.Label L", "End"}));
    }
    world.Put(kProjectPath, sProject);
    EXPECT_TRUE(Convert(files));
    EXPECT_EQ(log.Rows().size(), 300u * 4);
    for (const std::u16string& sFile : files)
        EXPECT_EQ(world.Bytes(sFile), testing::InConvertedForm({"Begin Orvanta.ctlUniLabel L", "End"}));
}

} // namespace
} // namespace orvanta
