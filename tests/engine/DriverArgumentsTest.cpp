#include "bench/driver/DriverArguments.h"

#include "tests/support/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace orvanta::driver {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::optional<DriverArguments> Parse(std::vector<std::string> arguments) {
    std::string sProblem;
    return ParseArguments(arguments, sProblem);
}

std::optional<DriverArguments> ParseWith(const std::vector<std::string>& more) {
    std::vector<std::string> arguments = {"convert", "--project", "C:\\a.vbp", "--json", "out"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Parse(arguments);
}

std::string ProblemOf(const std::vector<std::string>& arguments) {
    std::string sProblem;
    EXPECT_FALSE(ParseArguments(arguments, sProblem));
    return sProblem;
}

TEST(DriverArguments, WithoutMoreAllKindsAreOnAllMembersAreMeantAndTheOptionsAreOff) {
    const auto parsed = ParseWith({});
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(parsed->bConvert);
    EXPECT_EQ(parsed->sProject, u"C:\\a.vbp");
    EXPECT_EQ(parsed->sJson, "out");
    EXPECT_EQ(parsed->sRoot, ".");
    EXPECT_EQ(parsed->sDrive, u"C:");
    EXPECT_FALSE(parsed->files);
    EXPECT_THAT(parsed->kinds, Each(true));
    EXPECT_FALSE(parsed->bTextCombos);
    EXPECT_FALSE(parsed->bComboImages);
}

TEST(DriverArguments, EachOptionIsTaken) {
    const auto parsed = ParseWith({"--root", "/tmp/x", "--drive", "D:", "--text-combos", "--combo-images"});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->sRoot, "/tmp/x");
    EXPECT_EQ(parsed->sDrive, u"D:");
    EXPECT_TRUE(parsed->bTextCombos);
    EXPECT_TRUE(parsed->bComboImages);
    const auto upgrade = Parse({"upgrade", "--json", "o", "--project", "p"});
    ASSERT_TRUE(upgrade);
    EXPECT_FALSE(upgrade->bConvert);
}

TEST(DriverArguments, KindsAreTheListedOnesAndAnEmptyListIsNone) {
    const auto some = ParseWith({"--kinds", "0,11,3"});
    ASSERT_TRUE(some);
    EXPECT_THAT(some->kinds,
                ElementsAre(true, false, false, true, false, false, false, false, false, false, false, true));
    const auto none = ParseWith({"--kinds", ""});
    ASSERT_TRUE(none);
    EXPECT_THAT(none->kinds, Each(false));
    for (const char* sKinds : {"12", "-1", "x", "1,,2", "1 2", "0x1", "99999999999999999999"})
        EXPECT_FALSE(ParseWith({"--kinds", sKinds})) << sKinds;
}

TEST(DriverArguments, FilesAreAListOrTheLinesOfAFile) {
    const auto list = ParseWith({"--files", "C:\\a.frm;;C:\\\xC3\xBC.frm"});
    ASSERT_TRUE(list && list->files);
    EXPECT_THAT(*list->files, ElementsAre(u"C:\\a.frm", u"C:\\\u00FC.frm"));
    const auto none = ParseWith({"--files", ""});
    ASSERT_TRUE(none && none->files);
    EXPECT_THAT(*none->files, IsEmpty());

    const std::string sList = (std::filesystem::temp_directory_path() / "orvanta_driver_list.txt").string();
    std::ofstream(sList, std::ios::binary) << "C:\\a.frm\r\n\nC:\\\xC3\xBC;b.frm\nC:\\last";
    const auto lines = ParseWith({"--files", "@" + sList});
    std::filesystem::remove(sList);
    ASSERT_TRUE(lines && lines->files);
    EXPECT_THAT(*lines->files, ElementsAre(u"C:\\a.frm", u"C:\\\u00FC;b.frm", u"C:\\last"));
}

TEST(DriverArguments, WhatMakesNoRunIsNamed) {
    EXPECT_EQ(ProblemOf({}), "the first argument is convert or upgrade");
    EXPECT_EQ(ProblemOf({"other", "--project", "p", "--json", "j"}), "the first argument is convert or upgrade");
    EXPECT_EQ(ProblemOf({"convert", "--json", "j"}), "--project is missing");
    EXPECT_EQ(ProblemOf({"convert", "--project", "p"}), "--json is missing");
    EXPECT_EQ(ProblemOf({"convert", "--project"}), "--project needs a value");
    EXPECT_EQ(ProblemOf({"convert", "--project", "p", "--other", "x"}), "unknown argument --other");
    EXPECT_EQ(ProblemOf({"convert", "--kinds", "12"}), "--kinds takes numbers from 0 to 11");
    EXPECT_EQ(ProblemOf({"convert", "--files", "@/none/there"}), "cannot read the list /none/there");
}

} // namespace
} // namespace orvanta::driver
