// Windows paths over a folder of this machine.
#include "bench/driver/DriverWorld.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

namespace orvanta::driver {
namespace {

namespace fs = std::filesystem;

struct FolderWorldTest : ::testing::Test {
    FolderWorldTest() {
        fs::create_directories(root / "Work" / "Sub");
        Write("Work/Main.frm", "text");
        world = MakeDriverWorld(root.string(), u"C:");
    }
    ~FolderWorldTest() override { fs::remove_all(root); }

    void Write(const std::string& sName, const std::string& sBytes) const {
        std::ofstream(root / sName, std::ios::binary) << sBytes;
    }
    std::string Bytes(const std::string& sName) const {
        std::ifstream in(root / sName, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    bool Reads(std::u16string_view sPath) const {
        std::u16string sText = u"old";
        const bool bRead = world->st_TextFileToString(sPath, sText, false);
        EXPECT_EQ(sText, bRead ? u"text" : u"");
        return bRead;
    }
    bool Saves(std::u16string_view sPath) const { return world->st_StringToTextFile(sPath, u"\u20AC", feAnsi, false); }

    const fs::path root = fs::temp_directory_path() / ("orvanta_world_" + std::to_string(::getpid()));
    std::unique_ptr<DriverWorld> world;
};

TEST_F(FolderWorldTest, NamesAndTheDriveCompareWithoutCase) {
    EXPECT_TRUE(Reads(u"C:\\Work\\Main.frm"));
    EXPECT_TRUE(Reads(u"c:\\WORK\\mAIN.FRM"));
    EXPECT_TRUE(world->st_FileExist(u"c:\\work\\main.frm"));
    Write("Work/\xC3\x9C.frm", "text");
    EXPECT_TRUE(Reads(u"C:\\Work\\\u00FC.frm"));
}

TEST_F(FolderWorldTest, TheExactNameGoesBeforeOthers) {
    Write("Work/main.frm", "xx");
    std::u16string sText;
    EXPECT_TRUE(world->st_TextFileToString(u"C:\\Work\\main.frm", sText, false));
    EXPECT_EQ(sText, u"xx");
    EXPECT_TRUE(Reads(u"C:\\Work\\Main.frm"));
}

TEST_F(FolderWorldTest, PathsThatAreNotCleanDoNotOpen) {
    for (const char16_t* sPath :
         {u"C:\\Work\\.\\Main.frm", u"C:\\Work\\Sub\\..\\Main.frm", u"C:\\Work\\\\Main.frm", u"C:\\\\Work\\Main.frm",
          u"C:\\Work/Main.frm", u"C:/Work/Main.frm", u"C:Work\\Main.frm", u"Work\\Main.frm", u"D:\\Work\\Main.frm",
          u"C:\\Work\\Main.frm\\", u"C:", u"C:\\", u"", u"\\Work\\Main.frm"}) {
        EXPECT_FALSE(Reads(sPath));
        EXPECT_FALSE(world->st_FileExist(sPath));
        EXPECT_FALSE(Saves(sPath));
    }
    EXPECT_EQ(Bytes("Work/Main.frm"), "text");
}

TEST_F(FolderWorldTest, AFolderIsNoFileAndCannotBeReadOrSaved) {
    EXPECT_FALSE(world->st_FileExist(u"C:\\Work"));
    EXPECT_FALSE(Reads(u"C:\\Work"));
    EXPECT_FALSE(Saves(u"C:\\Work"));
    EXPECT_FALSE(world->st_FileExist(u"C:\\Work\\none.frm"));
    EXPECT_FALSE(Reads(u"C:\\Work\\none.frm"));
    EXPECT_FALSE(Saves(u"C:\\none\\a.frm"));
}

TEST_F(FolderWorldTest, ASaveReplacesTheFileUnderItsOwnNameInTheCodePageWithoutAMark) {
    EXPECT_TRUE(Saves(u"C:\\work\\MAIN.frm"));
    EXPECT_EQ(Bytes("Work/Main.frm"), "\x80");
    EXPECT_FALSE(fs::exists(root / "work"));
    EXPECT_TRUE(Saves(u"C:\\Work\\new.frm"));
    EXPECT_EQ(Bytes("Work/new.frm"), "\x80");
}

// For root too: the mode bits stand for what a read-only file means to a Windows program.
TEST_F(FolderWorldTest, AFileWithoutPermissionDoesNotSaveOrRead) {
    fs::permissions(root / "Work" / "Main.frm", fs::perms::owner_read);
    EXPECT_TRUE(Reads(u"C:\\Work\\Main.frm"));
    EXPECT_FALSE(Saves(u"C:\\Work\\Main.frm"));
    EXPECT_EQ(Bytes("Work/Main.frm"), "text");
    fs::permissions(root / "Work" / "Main.frm", fs::perms::owner_write);
    EXPECT_FALSE(Reads(u"C:\\Work\\Main.frm"));
}

TEST_F(FolderWorldTest, ALastByteThatStandsAloneCannotBeRead) {
    Write("Work/Main.frm", "t");
    EXPECT_FALSE(Reads(u"C:\\Work\\Main.frm"));
}

} // namespace
} // namespace orvanta::driver
