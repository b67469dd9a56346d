// The engine against the plain engine on random files: the same bytes, rows, colours and boxes.
#include "tests/support/AgainstPlain.h"

#include "engine/CodePass.h"
#include "engine/ProjectIntake.h"
#include "tests/engine/OddForms.h"
#include "tests/reference/PlainEngine.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/FormGenerator.h"
#include "tests/support/Unicode.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace orvanta {
namespace {

using testing::Pick;
using testing::Random;

testing::PlainCase RandomCase(Random& random) {
    testing::PlainCase plainCase;
    for (bool& bKind : plainCase.kinds)
        bKind = Pick(random, 5) != 0;
    plainCase.options = {Pick(random, 2) == 0, Pick(random, 2) == 0};
    plainCase.bSaves = Pick(random, 10) != 0;
    return plainCase;
}

// Each round has its own seed, which a failure names.
void ForEachRound(std::uint64_t nRounds, const std::function<std::string(Random&)>& difference) {
    for (std::uint64_t nSeed = 1; nSeed <= nRounds; ++nSeed) {
        Random random(nSeed);
        const std::string sDifference = difference(random);
        ASSERT_TRUE(sDifference.empty()) << "seed " << nSeed << "\n" << sDifference;
    }
}

std::string BothDifferences(const std::string& sBytes, Random& random) {
    return testing::ConvertDifference(sBytes, RandomCase(random)) +
           testing::UpgradeDifference(sBytes, Pick(random, 4) == 0, Pick(random, 10) != 0);
}

std::vector<std::string> SampleFiles() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator("samples/Bookshop")) {
        if (!entry.is_regular_file()) continue;
        std::ifstream in(entry.path(), std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return files;
}

TEST(AgainstPlainEngine, GeneratedForms) {
    ForEachRound(40, [](Random& random) {
        testing::FormPlan plan;
        plan.nSeed = random();
        plan.nControls = 1 + Pick(random, 40);
        plan.nTextBoxes = Pick(random, plan.nControls + 1);
        plan.nCodeLines = Pick(random, 200);
        return BothDifferences(testing::GenerateForm(plan), random);
    });
}

TEST(AgainstPlainEngine, MutatedGeneratedForms) {
    ForEachRound(300, [](Random& random) {
        testing::FormPlan plan;
        plan.nSeed = random();
        plan.nControls = 1 + Pick(random, 20);
        plan.nTextBoxes = Pick(random, plan.nControls + 1);
        plan.nCodeLines = Pick(random, 100);
        return BothDifferences(testing::Mutated(testing::GenerateForm(plan), random), random);
    });
}

TEST(AgainstPlainEngine, MutatedSampleFiles) {
    const std::vector<std::string> files = SampleFiles();
    ASSERT_FALSE(files.empty());
    ForEachRound(400, [&](Random& random) {
        return BothDifferences(testing::Mutated(files[Pick(random, files.size())], random), random);
    });
}

TEST(AgainstPlainEngine, FormsOfRandomLines) {
    ForEachRound(3000, [](Random& random) {
        return BothDifferences(testing::RandomForm(random, 1 + Pick(random, 60)), random);
    });
}

TEST(AgainstPlainEngine, UnreadableLengths) {
    for (const std::size_t nLength : {0u, 1u, 2u, 3u, 16384u, 16385u, 16386u}) {
        for (const char* sMark : {"", "\xFF\xFE", "\xEF\xBB\xBF", "\xFF", "\xEF"}) {
            std::string sBytes(sMark);
            sBytes.resize(nLength, 'E');
            EXPECT_EQ(testing::ConvertDifference(sBytes, {}), "") << nLength;
            EXPECT_EQ(testing::UpgradeDifference(sBytes, false, true), "") << nLength;
        }
    }
}

TEST(AgainstPlainEngine, CodeMadeToMeetItsNames) {
    ForEachRound(6000, [](Random& random) -> std::string {
        const std::vector<std::u16string> names = testing::OddNames(random);
        const std::u16string sCode = testing::OddCode(random, names, 1 + Pick(random, 30));
        LineArray aLines(sCode);
        reference::PlainLines lines;
        for (std::size_t n = 0; n < aLines.Count(); ++n)
            lines.emplace_back(aLines[n]);
        FixEventSignatures(names, aLines);
        reference::PlainFixEventSignatures(names, lines);
        for (std::size_t n = 0; n < lines.size(); ++n) {
            if (aLines[n] != lines[n]) {
                return "line " + std::to_string(n) + ": " + testing::ToUtf8(aLines[n]) + " but plainly " +
                       testing::ToUtf8(lines[n]) + "\n" + testing::ToUtf8(sCode);
            }
        }
        return {};
    });
}

TEST(AgainstPlainEngine, PathsOfMembers) {
    constexpr const char16_t* kPieces[] = {u"\\", u".", u"..",  u"\\..",    u"\\.\\",    u"a",  u"b.frm", u"/",
                                           u"|",  u":", u"%20", u"file://", u"FILE:///", u"C:", u" ",     u"://"};
    ForEachRound(5000, [&](Random& random) -> std::string {
        std::u16string sPath;
        for (std::size_t n = Pick(random, 12); n > 0; --n)
            sPath += kPieces[Pick(random, std::size(kPieces))];
        if (CollapseDots(sPath) != reference::PlainCollapseDots(sPath)) return "dots " + testing::ToUtf8(sPath);
        if (NormalizePath(sPath) != reference::PlainNormalizePath(sPath)) return "form " + testing::ToUtf8(sPath);
        const std::u16string sProject = u"C:\\Work\\App.vbp";
        if (ResolveProjectPath(sProject, sPath) != reference::PlainResolveProjectPath(sProject, sPath)) {
            return "path " + testing::ToUtf8(sPath);
        }
        return {};
    });
}

} // namespace
} // namespace orvanta
