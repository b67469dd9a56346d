// Files that cannot be read: what the log and the boxes say, and that nothing is saved.
#include "engine/cVbpMigrator.h"

#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kFormPath;
using testing::Outcome;

constexpr const char* kRedRow = "a.frm||Error while reading file... [fore 255]";
constexpr const char* kSubscript = "Subscript out of range";

TEST(ReadFailure, ConvertGivesTheRedRowAndOneBoxNoOtherRowAndSavesNothing) {
    testing::FakeWorld world;
    world.Put(kFormPath, "Begin VB.Form F\r\nEnd\r\n");
    world.RefuseReading(kFormPath);
    const Outcome outcome = testing::ConvertIn(world);
    EXPECT_TRUE(outcome.bResult);
    EXPECT_THAT(outcome.rows, ElementsAre(kRedRow));
    EXPECT_THAT(outcome.boxes, ElementsAre(kSubscript));
    EXPECT_THAT(world.writes, IsEmpty());
}

TEST(ReadFailure, ConvertGoesOnWithTheNextFile) {
    testing::FakeWorld world;
    world.Put(testing::kProjectPath, testing::kProject);
    world.Put(kFormPath, "");
    Collection<std::u16string> files;
    files.Add(u"C:\\Work\\none.frm");
    files.Add(kFormPath);
    testing::RecordedLog log;
    EXPECT_TRUE(cVbpMigrator(world).Convert(testing::kProjectPath, files, log, false, false));
    EXPECT_THAT(testing::RowTexts(log), ElementsAre("none.frm||Error while reading file... [fore 255]",
                                                    "a.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
    EXPECT_EQ(world.boxes.size(), 1u);
    EXPECT_FALSE(world.Has(u"C:\\Work\\none.frm"));
}

TEST(ReadFailure, UpgradeGivesTheRedRowWithoutABoxAndGoesOn) {
    testing::FakeWorld world;
    const Outcome outcome = testing::UpgradeIn(world); // the member does not exist
    EXPECT_TRUE(outcome.bResult);
    EXPECT_THAT(outcome.rows, ElementsAre("a.frm|Error while reading file... [fore 255]", "App.vbp|Upgraded..."));
    EXPECT_THAT(outcome.boxes, IsEmpty());
    EXPECT_FALSE(world.Has(kFormPath));
}

TEST(ReadFailure, AFolderInTheFilesPlaceCannotBeRead) {
    testing::FakeWorld world;
    world.PutFolder(kFormPath);
    EXPECT_THAT(testing::ConvertIn(world).rows, ElementsAre(kRedRow));
    EXPECT_THAT(world.writes, IsEmpty());
}

TEST(ReadFailure, AReadThatRaisesInConvertGivesItsBoxBesideThatOfTheMissingLinesAndTheNextFileFollows) {
    testing::FakeWorld world;
    world.Put(testing::kProjectPath, testing::kProject);
    world.Put(kFormPath, "Begin VB.Form F\r\nEnd\r\n");
    world.Put(u"C:\\Work\\b.frm", "");
    world.RaiseOnReading(kFormPath);
    Collection<std::u16string> files;
    files.Add(kFormPath);
    files.Add(u"C:\\Work\\b.frm");
    testing::RecordedLog log;
    EXPECT_TRUE(cVbpMigrator(world).Convert(testing::kProjectPath, files, log, false, false));
    EXPECT_THAT(testing::RowTexts(log),
                ElementsAre(kRedRow, "b.frm||Reading...", "||Converted 0 controls", "||Saved...", "||"));
    EXPECT_THAT(world.boxes, ElementsAre(u"The device is gone", u"Subscript out of range"));
    ASSERT_EQ(world.writes.size(), 1u);
    EXPECT_EQ(world.writes[0].sPath, u"C:\\Work\\b.frm");
}

TEST(ReadFailure, AReadThatRaisesInUpgradeGivesItsBoxAndTheRedRowAndTheProjectFollows) {
    testing::FakeWorld world;
    world.Put(kFormPath, "Begin VB.Form F\r\nEnd\r\n");
    world.RaiseOnReading(kFormPath);
    const Outcome outcome = testing::UpgradeIn(world);
    EXPECT_TRUE(outcome.bResult);
    EXPECT_THAT(outcome.rows, ElementsAre("a.frm|Error while reading file... [fore 255]", "App.vbp|Upgraded..."));
    EXPECT_THAT(outcome.boxes, ElementsAre("The device is gone"));
}

// A path of more than 32,767 characters has no name that can be told: the trap says so, and the run goes on.
TEST(ReadFailure, AMemberWithAPathOfFortyThousandCharactersGivesBoxesAndNoRow) {
    testing::FakeWorld world;
    const std::u16string sLong = u"C:\\" + std::u16string(40'000, u'x') + u"\\a.frm";
    world.Put(testing::kProjectPath, "Form=C:\\" + std::string(40'000, 'x') + "\\a.frm\r\nObject=Orvanta\r\n");
    testing::RecordedLog log;
    Collection<std::u16string> files;
    files.Add(sLong);
    EXPECT_TRUE(cVbpMigrator(world).Convert(testing::kProjectPath, files, log, false, false));
    EXPECT_THAT(testing::RowTexts(log), IsEmpty());
    EXPECT_THAT(world.boxes, ElementsAre(u"Overflow", u"Subscript out of range"));
    world.boxes.clear();
    EXPECT_TRUE(cVbpMigrator(world).Upgrade(testing::kProjectPath, log));
    EXPECT_THAT(testing::RowTexts(log), ElementsAre("App.vbp|Upgraded..."));
    EXPECT_THAT(world.boxes, ElementsAre(u"Overflow"));
}

struct LengthCase {
    const char* sMark;
    std::size_t nLength;
    bool bReads;
};

// The file object fetches 16,384 bytes at a time and cannot fetch a last byte that stands alone.
TEST(ReadFailure, OnlyTheLengthsThatLeaveOneByteForTheCacheFail) {
    const LengthCase cases[] = {
        {"", 0, true},
        {"", 1, false},
        {"", 2, true},
        {"", 16384, true},
        {"", 16385, true},
        {"\xFF", 1, false},
        {"\xFF\xFE", 2, true},
        {"\xFF\xFE", 3, true},
        {"\xFF\xFE", 16384, true},
        {"\xFF\xFE", 16385, false},
        {"\xFF\xFE", 16386, true},
        {"\xFF\xFE", 32769, true},
        {"\xEF", 1, false},
        {"\xEF\xBB", 2, false},
        {"\xEF\xBB\xBF", 3, true},
        {"\xEF\xBB\xBF", 4, true},
        {"\xEF\xBB\xBF", 16384, true},
        {"\xEF\xBB\xBF", 16385, false},
        {"\xEF\xBB\xBF", 16386, true},
        {"\xEF\xBB\xBF", 32769, true},
    };
    for (const LengthCase& c : cases) {
        std::string sBytes = c.sMark;
        sBytes.resize(c.nLength, 'x');
        const Outcome outcome = testing::ConvertForm(sBytes);
        EXPECT_EQ(outcome.boxes.empty(), c.bReads) << c.nLength << " bytes, mark of " << std::string(c.sMark).size();
        EXPECT_EQ(outcome.rows.front(), c.bReads ? "a.frm||Reading..." : kRedRow);
        EXPECT_EQ(outcome.sBytes == sBytes, !c.bReads || sBytes.empty());
    }
}

} // namespace
} // namespace orvanta
