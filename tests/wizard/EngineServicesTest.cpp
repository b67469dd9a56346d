// The conversion engine over real files.
#include "wizard/EngineServices.h"

#include "files/clsUniFile.h"
#include "tests/wizard/EngineOnDiskFixture.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <map>

namespace orvanta {
namespace {

namespace fs = std::filesystem;

class EngineServicesTest : public testing::EngineOnDiskFixture {
protected:
    bool HasRow(std::u16string_view sDescription) const {
        return std::any_of(
            log.Rows().begin(), log.Rows().end(),
            [sDescription](const testing::RecordedLog::LogRow& row) { return row.cells.back() == sDescription; });
    }
};

const char* const kForm =
    "VERSION 5.00\r\nBegin VB.Form a \r\n   Begin VB.CommandButton Command1 \r\n      Caption         =   "
    "\"Go\"\r\n   End\r\nEnd\r\nAttribute VB_Name = \"a\"\r\n";

TEST_F(EngineServicesTest, PassesFilesOnToTheFileLayer) {
    const std::u16string sPath = folder / u"text.txt";
    EXPECT_FALSE(world.st_FileExist(sPath));
    EXPECT_FALSE(world.st_FileExist(u""));
    EXPECT_TRUE(world.st_StringToTextFile(sPath, u"caf\u00E9", feUtf8, false));
    EXPECT_TRUE(world.st_FileExist(sPath));
    EXPECT_EQ(folder.Read(sPath), "\xEF\xBB\xBF"
                                  "caf\xC3\xA9");
    std::u16string s;
    EXPECT_TRUE(world.st_TextFileToString(sPath, s, false));
    EXPECT_EQ(s, u"caf\u00E9");
    EXPECT_FALSE(world.st_TextFileToString(folder / u"missing.txt", s, false));
    EXPECT_THROW(world.st_TextFileToString(folder / u"missing.txt", s, true), Failure);
    EXPECT_THROW(world.st_StringToTextFile(folder.Path(), u"x", feAnsi, true), Failure);
}

TEST_F(EngineServicesTest, BoxesAreRealOnesWithTheTitleAttention) {
    world.UniMsgError(u"went \u65E5 wrong");
    EXPECT_EQ(Boxes(), std::vector<std::u16string>{u"Attention: went \u65E5 wrong"});
}

TEST_F(EngineServicesTest, SelectionIsAskedOfTheCaller) {
    EXPECT_TRUE(world.Selected(3));
    EXPECT_FALSE(world.Selected(11));
    EXPECT_EQ(asked, (std::vector<int>{3, 11}));
}

TEST_F(EngineServicesTest, FormIsConvertedOnTheDisk) {
    EXPECT_TRUE(Convert(Project(kForm)));
    EXPECT_NE(folder.Read(folder / u"a.frm").find("Orvanta"), std::string::npos);
    EXPECT_TRUE(HasRow(u"Saved..."));
    EXPECT_TRUE(Boxes().empty());
    EXPECT_FALSE(asked.empty());
}

TEST_F(EngineServicesTest, FileLockedByAnotherProgramIsReportedAndKept) {
    const std::u16string sProject = Project(kForm);
    clsUniFile other;
    ASSERT_TRUE(other.OpenFileRead(folder / u"a.frm", true)); // readable, but not to be replaced
    EXPECT_TRUE(Convert(sProject));
    other.CloseFile();
    EXPECT_EQ(folder.Read(folder / u"a.frm"), kForm);
    EXPECT_TRUE(HasRow(u"Error saving this file..."));
    EXPECT_FALSE(HasRow(u"Saved..."));
}

TEST_F(EngineServicesTest, ProjectWithoutTheLibraryIsRefusedWithABox) {
    folder.Write(u"a.frm", kForm);
    EXPECT_FALSE(Convert(folder.Write(u"App.vbp", "Type=Exe\r\nForm=a.frm\r\n")));
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_NE(Boxes()[0].find(u"not referenced"), std::u16string::npos);
    EXPECT_EQ(folder.Read(folder / u"a.frm"), kForm);
}

// The files below a folder, by their relative names.
std::map<std::string, std::string> FilesBelow(const fs::path& root) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file()) continue;
        files[fs::relative(entry.path(), root).generic_string()] = testing::TempFolder::Read(entry.path().u16string());
    }
    return files;
}

class SampleProject : public EngineServicesTest {
protected:
    void SetUp() override {
        if (GetACP() != 1252) GTEST_SKIP() << "the sample is in code page 1252";
        fs::copy("samples/Bookshop", copy, fs::copy_options::recursive);
        expected = FilesBelow("samples/Bookshop");
    }

    // Every file that the result folder holds is as there, every other one as it was.
    void ExpectLike(const fs::path& result) {
        for (const auto& [sName, sBytes] : FilesBelow(result))
            expected[sName] = sBytes;
        const auto now = FilesBelow(copy);
        ASSERT_EQ(now.size(), expected.size());
        for (const auto& [sName, sBytes] : expected)
            EXPECT_TRUE(now.at(sName) == sBytes) << sName;
        EXPECT_TRUE(Boxes().empty());
    }

    const fs::path copy{folder / u"Bookshop"};
    const std::u16string sProject = folder / u"Bookshop\\Bookshop.vbp";
    std::map<std::string, std::string> expected;
    EngineServices all{[](int) { return true; }};
};

TEST_F(SampleProject, UpgradesInPlaceToTheSameBytesAsEverywhere) {
    EXPECT_TRUE(cVbpMigrator(all).Upgrade(sProject, log));
    ExpectLike("samples/Bookshop.upgraded");
}

TEST_F(SampleProject, ConvertsInPlaceToTheSameBytesAsEverywhere) {
    const cVbpMigrator migrator(all);
    ASSERT_TRUE(migrator.Upgrade(sProject, log));
    Collection<std::u16string> files;
    bool bLibraryReferenced = false;
    migrator.GetProjectCollFiles(sProject, files, bLibraryReferenced);
    EXPECT_TRUE(bLibraryReferenced);
    EXPECT_EQ(files.Count(), 9u);
    EXPECT_TRUE(migrator.Convert(sProject, files, log, false, false));
    ExpectLike("samples/Bookshop.converted");
}

} // namespace
} // namespace orvanta
