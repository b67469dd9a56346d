// The sample project through both jobs, byte for byte against the results that stand beside it.
#include "engine/cVbpMigrator.h"

#include "tests/engine/EngineRun.h"
#include "tests/support/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace orvanta {
namespace {

namespace fs = std::filesystem;

// Windows paths below C:\ to bytes. The tests run in the source folder.
std::map<std::u16string, std::string> FilesBelow(const std::string& sFolder) {
    std::map<std::u16string, std::string> files;
    const fs::path root = fs::path("samples") / sFolder;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file()) continue;
        std::u16string sName = fs::relative(entry.path(), root).generic_u16string();
        std::replace(sName.begin(), sName.end(), u'/', u'\\');
        std::ifstream in(entry.path(), std::ios::binary);
        files[u"C:\\Bookshop\\" + sName] = {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    return files;
}

struct SampleProject : ::testing::Test {
    SampleProject() {
        for (const auto& [sPath, sBytes] : original)
            world.Put(sPath, sBytes);
    }

    bool Upgrade() { return cVbpMigrator(world).Upgrade(sProject, log); }
    bool ConvertAllMembers() {
        const cVbpMigrator migrator(world);
        Collection<std::u16string> members;
        bool bLibraryReferenced = false;
        migrator.GetProjectCollFiles(sProject, members, bLibraryReferenced);
        return migrator.Convert(sProject, members, log, false, false);
    }

    // The files of the result stand there as they are, all others are those of the original.
    void ExpectFiles(const std::string& sFolder) {
        std::map<std::u16string, std::string> expected = FilesBelow(sFolder);
        EXPECT_GE(expected.size(), 10u);
        expected.insert(original.begin(), original.end());
        EXPECT_EQ(world.Files().size(), expected.size());
        for (const auto& [sPath, sBytes] : expected)
            EXPECT_TRUE(world.Has(sPath) && world.Bytes(sPath) == sBytes) << testing::ToUtf8(sPath);
    }

    const std::u16string sProject = u"C:\\Bookshop\\Bookshop.vbp";
    const std::map<std::u16string, std::string> original = FilesBelow("Bookshop");
    testing::FakeWorld world;
    testing::RecordedLog log;
};

TEST_F(SampleProject, UpgradeGivesTheUpgradedFilesByteForByteAndTouchesNoOther) {
    EXPECT_TRUE(Upgrade());
    ExpectFiles("Bookshop.upgraded");
    EXPECT_TRUE(world.boxes.empty());
    EXPECT_THAT(testing::RowTexts(log), ::testing::IsSupersetOf({"frmAbout.frm|Skipped...", "frmMain.frm|Upgraded...",
                                                                 "Bookshop.vbp|Upgraded..."}));
    EXPECT_EQ(log.Rows().size(), 10u); // nine members and the project
}

TEST_F(SampleProject, ConvertBehindTheUpgradeGivesTheConvertedFilesByteForByteAndTouchesNoOther) {
    EXPECT_TRUE(Upgrade());
    EXPECT_TRUE(ConvertAllMembers());
    ExpectFiles("Bookshop.converted");
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(SampleProject, ASecondConvertOnlyAddsALineToEachMember) {
    EXPECT_TRUE(Upgrade());
    EXPECT_TRUE(ConvertAllMembers());
    const std::map<std::u16string, std::string> first = world.Files();
    EXPECT_TRUE(ConvertAllMembers());
    for (const auto& [sPath, sBytes] : first) {
        const bool bMember = sPath.ends_with(u".frm") || sPath.ends_with(u".ctl");
        EXPECT_EQ(world.Bytes(sPath), bMember ? sBytes + "\r\n" : sBytes) << testing::ToUtf8(sPath);
    }
}

} // namespace
} // namespace orvanta
