// What a search finds: levels, kinds, patterns, the entries "." and "..", limits, and what cannot be searched.
#include "files/clsSearchFiles.h"

#include "base/Failure.h"
#include "files/PathRules.h"
#include "tests/files/FolderFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::FolderFixture;
using Names = std::vector<std::u16string>;

// a.txt, b.bin, sub (c.txt, deep (d.txt)), zero (empty)
class SearchFiles : public FolderFixture {
protected:
    SearchFiles() {
        File(u"a.txt", "12345");
        File(u"b.bin");
        Folder(u"sub");
        File(u"sub\\c.txt");
        Folder(u"sub\\deep");
        File(u"sub\\deep\\d.txt");
        Folder(u"zero");
    }

    // The paths below the folder of the test, in the order of the result.
    Names Found(const SearchResults& results) const {
        Names names;
        for (std::size_t n = 1; n <= results.Count(); ++n)
            names.push_back(results.Item(n)->sPathFileName().substr(Path().size() + 1));
        return names;
    }

    Names InPath(std::int32_t iWhat, bool bRecurse, bool bThisAndBase, std::int32_t lMax) {
        return Found(search.SearchInPath(Path(), iWhat, bRecurse, false, bThisAndBase, lMax, false));
    }

    Names Pattern(std::u16string_view sPattern, std::int32_t iWhat, bool bRecurse, std::int32_t lMax = -1) {
        return Found(search.SearchPathPattern(Path(sPattern), iWhat, bRecurse, false, false, lMax, false));
    }

    Names OnEveryLevel(std::u16string_view sPattern, std::int32_t iWhat, bool bRecurse, std::int32_t lMax = -1) {
        return Found(search.SearchFilePatternPathNoPattern(Path(sPattern), iWhat, bRecurse, false, false, lMax));
    }

    clsSearchFiles search;
};

TEST_F(SearchFiles, OneLevelListsFilesAndFoldersOfTheFolder) {
    EXPECT_EQ(InPath(kSearchFilesAndFolders, false, false, -1), (Names{u"a.txt", u"b.bin", u"sub", u"zero"}));
    EXPECT_EQ(InPath(kSearchFiles, false, false, -1), (Names{u"a.txt", u"b.bin"}));
    EXPECT_EQ(InPath(kSearchFolders, false, false, -1), (Names{u"sub", u"zero"}));
    EXPECT_EQ(InPath(3, false, false, -1).size(), 4u) << "any other kind lists both";
}

TEST_F(SearchFiles, AllLevelsComeDepthFirst) {
    EXPECT_EQ(InPath(kSearchFilesAndFolders, true, false, -1),
              (Names{u"a.txt", u"b.bin", u"sub", u"sub\\c.txt", u"sub\\deep", u"sub\\deep\\d.txt", u"zero"}));
    EXPECT_EQ(InPath(kSearchFiles, true, false, -1), (Names{u"a.txt", u"b.bin", u"sub\\c.txt", u"sub\\deep\\d.txt"}));
    EXPECT_EQ(InPath(kSearchFolders, true, false, -1), (Names{u"sub", u"sub\\deep", u"zero"}));
}

TEST_F(SearchFiles, ThisAndBaseAreListedOnlyWhenAskedForAndAreFolders) {
    EXPECT_EQ(InPath(kSearchFilesAndFolders, false, true, -1),
              (Names{u".", u"..", u"a.txt", u"b.bin", u"sub", u"zero"}));
    EXPECT_EQ(InPath(kSearchFiles, false, true, -1), (Names{u"a.txt", u"b.bin"}));
    EXPECT_EQ(InPath(kSearchFolders, true, true, -1),
              (Names{u".", u"..", u"sub", u"sub\\.", u"sub\\..", u"sub\\deep", u"sub\\deep\\.", u"sub\\deep\\..",
                     u"zero", u"zero\\.", u"zero\\.."}))
        << "and are never searched themselves";
}

TEST_F(SearchFiles, TrailingBackslashesOfThePathDoNotMatter) {
    for (const char16_t* sEnd : {u"", u"\\", u"\\\\"}) {
        const SearchResults results = search.SearchInPath(Path() + sEnd, kSearchFiles, false, false, false, -1, false);
        EXPECT_EQ(Found(results), (Names{u"a.txt", u"b.bin"}));
    }
}

TEST_F(SearchFiles, PatternDecidesAlsoWhichFoldersAreSearched) {
    EXPECT_EQ(Pattern(u"*.txt", kSearchFilesAndFolders, true), (Names{u"a.txt"}));
    Folder(u"sub.txt");
    File(u"sub.txt\\e.txt");
    File(u"sub.txt\\e.bin");
    EXPECT_EQ(Pattern(u"*.txt", kSearchFiles, true), (Names{u"a.txt", u"sub.txt\\e.txt"}));
    EXPECT_EQ(Pattern(u"?.bin", kSearchFiles, false), (Names{u"b.bin"}));
    EXPECT_EQ(Pattern(u"a.txt", kSearchFiles, false), (Names{u"a.txt"}));
}

TEST_F(SearchFiles, FilePatternHoldsOnEveryLevelWhenThePathHasNone) {
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true), (Names{u"a.txt", u"sub\\c.txt", u"sub\\deep\\d.txt"}));
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, false), (Names{u"a.txt"}));
    EXPECT_EQ(OnEveryLevel(u"d*", kSearchFilesAndFolders, true), (Names{u"sub\\deep", u"sub\\deep\\d.txt"}));
}

// The folders that are visited use up the limit: here sub, sub\deep and zero.
TEST_F(SearchFiles, LimitOfAFilePatternIsUsedUpByTheFolders) {
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true, 2), Names{});
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true, 3), Names{}) << "reached by the last folder";
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true, 4), (Names{u"a.txt"}));
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true, 5), (Names{u"a.txt", u"sub\\c.txt"}));
}

TEST_F(SearchFiles, FilePatternWithAnyLimitLooksIntoTheFirstFolderOnly) {
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true, 100), (Names{u"a.txt", u"sub\\c.txt"}));
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, true, 0), (Names{u"a.txt", u"sub\\c.txt", u"sub\\deep\\d.txt"}))
        << "0 is no limit";
}

TEST_F(SearchFiles, LimitOfAFilePatternWithoutSubfoldersIsPlain) {
    File(u"a2.txt");
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, false, 1), (Names{u"a.txt"}));
    EXPECT_EQ(OnEveryLevel(u"*.txt", kSearchFiles, false, 2).size(), 2u);
}

TEST_F(SearchFiles, LimitStopsOnWhicheverLevelItIsReached) {
    EXPECT_EQ(InPath(kSearchFilesAndFolders, true, false, 1), (Names{u"a.txt"}));
    EXPECT_EQ(InPath(kSearchFilesAndFolders, true, false, 3), (Names{u"a.txt", u"b.bin", u"sub"}));
    EXPECT_EQ(InPath(kSearchFilesAndFolders, true, false, 4), (Names{u"a.txt", u"b.bin", u"sub", u"sub\\c.txt"}));
    EXPECT_EQ(InPath(kSearchFiles, true, false, 4).size(), 4u);
    EXPECT_EQ(InPath(kSearchFiles, true, false, 0).size(), 4u) << "0 is no limit";
}

TEST_F(SearchFiles, HierarchyPutsTheContentOfAFolderIntoItsEntry) {
    const SearchResults top = search.SearchInPath(Path(), kSearchFilesAndFolders, true, false, false, -1, true);
    ASSERT_EQ(Found(top), (Names{u"a.txt", u"b.bin", u"sub", u"zero"}));
    EXPECT_EQ(top.Item(1)->colSub, nullptr);
    ASSERT_NE(top.Item(3)->colSub, nullptr);
    ASSERT_EQ(Found(*top.Item(3)->colSub), (Names{u"sub\\c.txt", u"sub\\deep"}));
    EXPECT_EQ(Found(*top.Item(3)->colSub->Item(2)->colSub), (Names{u"sub\\deep\\d.txt"}));
    ASSERT_NE(top.Item(4)->colSub, nullptr);
    EXPECT_TRUE(top.Item(4)->colSub->Empty());
}

TEST_F(SearchFiles, HierarchyOfFilesAloneIsFlat) {
    const SearchResults top = search.SearchInPath(Path(), kSearchFiles, true, false, false, -1, true);
    EXPECT_EQ(Found(top), (Names{u"a.txt", u"b.bin", u"sub\\c.txt", u"sub\\deep\\d.txt"}));
}

TEST_F(SearchFiles, LimitOfAHierarchyCountsAllLevels) {
    const SearchResults top = search.SearchInPath(Path(), kSearchFilesAndFolders, true, false, false, 4, true);
    ASSERT_EQ(Found(top), (Names{u"a.txt", u"b.bin", u"sub"}));
    EXPECT_EQ(Found(*top.Item(3)->colSub), (Names{u"sub\\c.txt"}));
}

TEST_F(SearchFiles, WhatCannotBeSearchedGivesNothingAndNoFailure) {
    EXPECT_EQ(Pattern(u"missing\\*.*", kSearchFiles, true), Names{});
    EXPECT_EQ(Pattern(u"*.none", kSearchFiles, true), Names{});
    EXPECT_EQ(Pattern(u"a.txt\\*.*", kSearchFiles, true), Names{});
    EXPECT_TRUE(search.SearchPathPattern(u"", kSearchFiles, false, false, false, -1, false).Empty());
    EXPECT_TRUE(search.SearchPathPattern(u"C:/windows/*.*", kSearchFiles, true, false, false, -1, false).Empty());
    EXPECT_TRUE(
        search.SearchPathPattern(std::u16string(40000, u'a') + u"\\*", kSearchFiles, true, false, false, -1, false)
            .Empty());
}

TEST_F(SearchFiles, WebPathIsRefusedWhereAPathIsPutTogether) {
    const auto expectRefused = [this](auto call, std::u16string_view sSource) {
        try {
            call();
            ADD_FAILURE() << "nothing was raised";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Source(), sSource);
            EXPECT_EQ(failure.Description(), u"Not a local path");
        }
        EXPECT_FALSE(search.IsSearching());
    };
    expectRefused([this] { search.SearchInPath(u"C:/windows", kSearchFiles, false, false, false, -1, false); },
                  u"ufu_OneBackSlash");
    expectRefused(
        [this] { search.SearchFilePatternPathNoPattern(u"C:/windows/*", kSearchFiles, true, false, false, -1); },
        u"ufu_FilePath");
    EXPECT_EQ(Pattern(u"a.txt", kSearchFiles, false), (Names{u"a.txt"})) << "the object still searches";
}

// The pattern for the next level passes the rule that turns links into names.
TEST_F(SearchFiles, PatternWithQuestionAndHashLosesItsTailBelowTheFirstLevel) {
    Folder(u"s#b.d");
    File(u"s#b.d\\s#b.d");
    EXPECT_EQ(Pattern(u"s#?.d", kSearchFilesAndFolders, true), (Names{u"s#b.d"}));
    EXPECT_EQ(Pattern(u"s#b.d", kSearchFilesAndFolders, true), (Names{u"s#b.d", u"s#b.d\\s#b.d"}));
}

TEST_F(SearchFiles, NamesOfAllScriptsAreFound) {
    const Names names = {u"\u0436\u0443\u043A.txt", u"\u65E5\u672C\u8A9E.txt", u"\u03B1\u03B2.txt",
                         u"\u0939\u093F.txt",       u"\U0001F600.txt",         u"e\u0301.txt"};
    Folder(u"scripts");
    for (const std::u16string& sName : names)
        File(u"scripts\\" + sName);
    for (const std::u16string& sName : names)
        EXPECT_EQ(Pattern(u"scripts\\" + sName, kSearchFiles, false), (Names{u"scripts\\" + sName}));
    EXPECT_EQ(Pattern(u"scripts\\*.*", kSearchFiles, false).size(), names.size());
}

TEST_F(SearchFiles, TreeOfSixtyLevelsBeyondTheOldLimitIsSearched) {
    const std::u16string sDeep = DeepFolder(u"twelve_chars", 60);
    File(sDeep + u"\\last.txt");
    ASSERT_GT(Path(sDeep).size(), 700u);
    EXPECT_EQ(OnEveryLevel(u"last.*", kSearchFiles, true), (Names{sDeep + u"\\last.txt"}));
    const SearchResults all =
        search.SearchInPath(Path(u"twelve_chars"), kSearchFilesAndFolders, true, false, false, -1, false);
    EXPECT_EQ(all.Count(), 60u);
    EXPECT_EQ(ufu_FileName(all.Item(60)->sPathFileName()), u"last.txt");
}

} // namespace
} // namespace orvanta
