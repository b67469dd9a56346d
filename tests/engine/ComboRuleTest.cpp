// Combo boxes: their style is renumbered, and the run's two options choose the target.
#include "tests/engine/EngineRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orvanta {
namespace {

using ::testing::Contains;
using testing::kBothOptions;
using testing::kComboImages;
using testing::kNoOptions;
using testing::kOneConverted;
using testing::kTextCombos;
using testing::Outcome;

constexpr const char* kCombo = "Orvanta.ctlUniComboBoxXP";
constexpr const char* kImage = "Orvanta.ctlUniComboImageXP";
constexpr const char* kNoneConverted = "||Converted 0 controls";

std::string Begin(const std::string& sType) {
    return "Begin " + sType + " cbo";
}

struct ComboCase {
    ComboOptions options;
    const char* sStyle; // the property line
    const char* sTarget;
    const char* sWanted;
};

TEST(ComboRule, AComboWithoutStyleGetsAStyleLineAndStaysAPlainCombo) {
    for (const char* sType : {"VB.ComboBox", "MSForms.ComboBox"}) {
        for (const ComboOptions options : {kNoOptions, kComboImages, kTextCombos, kBothOptions}) {
            const Outcome outcome = testing::ConvertBlock({Begin(sType), "Left = 1", "End"}, options);
            EXPECT_EQ(outcome.sBytes,
                      testing::InConvertedForm(
                          {Begin(kCombo), options.bUseTextLikeCombos ? "Style = 4" : "Style = 2", "Left = 1", "End"}));
            EXPECT_THAT(outcome.rows, Contains(kOneConverted));
        }
    }
}

TEST(ComboRule, TheStyleIsRenumberedAndThenTheOptionsLookAtIt) {
    const ComboCase cases[] = {
        {kNoOptions, "Style = 0  'Dropdown Combo", kCombo, "Style=2"},
        {kNoOptions, "Style = 1  'Simple Combo", kCombo, "Style = 1  'Simple Combo"},
        {kNoOptions, "Style = 2  'Dropdown List", kCombo, "Style=1"},
        {kNoOptions, "Style = 3", kCombo, "Style = 3"},
        {kTextCombos, "Style = 0", kCombo, "Style=2"},
        {kTextCombos, "Style = 1", kCombo, "Style=3"},
        {kTextCombos, "Style = 2", kCombo, "Style=3"},
        {kTextCombos, "Style = 3", kCombo, "Style = 3"},
        {kComboImages, "Style = 0", kCombo, "Style=2"},
        {kComboImages, "Style = 1", kImage, "Style = 1"},
        {kComboImages, "Style = 2", kImage, "Style=1"},
        {kComboImages, "Style = 3", kCombo, "Style = 3"},
        {kBothOptions, "Style = 0", kCombo, "Style=2"},
        {kBothOptions, "Style = 1", kImage, "Style = 1"},
        {kBothOptions, "Style = 2", kImage, "Style=1"},
        {kNoOptions, "style=20", kCombo, "Style=1"}, // only the first character counts
        {kNoOptions, "Style = -2", kCombo, "Style = -2"},
        {kBothOptions, "Style = \"2\"", kCombo, "Style = \"2\""},
    };
    for (const char* sType : {"VB.ComboBox", "MSForms.ComboBox"}) {
        for (const ComboCase& c : cases) {
            const Outcome outcome = testing::ConvertBlock({Begin(sType), c.sStyle, "End"}, c.options);
            EXPECT_EQ(outcome.sBytes, testing::InConvertedForm({Begin(c.sTarget), c.sWanted, "End"}))
                << c.sStyle << " text " << c.options.bUseTextLikeCombos << " image " << c.options.bUseComboImages;
            EXPECT_THAT(outcome.rows, Contains(kOneConverted));
            EXPECT_EQ(outcome.rows.size(), 4u); // a style moves without a row
        }
    }
}

// An empty value counts as no such line, and a later one is not looked at.
TEST(ComboRule, AnEmptyStyleCountsAsNone) {
    EXPECT_EQ(testing::ConvertBlock({Begin("VB.ComboBox"), "Style =  ", "Style = 2", "End"}, kComboImages).sBytes,
              testing::InConvertedForm({Begin(kCombo), "Style = 2", "Style =  ", "Style = 2", "End"}));
}

// The style is read again after it was changed: a later line with the same name never comes into play.
TEST(ComboRule, TheSecondLookReadsTheChangedLineNotALaterOne) {
    EXPECT_EQ(testing::ConvertBlock({Begin("VB.ComboBox"), "Style = 0", "Style = 1", "End"}, kBothOptions).sBytes,
              testing::InConvertedForm({Begin(kCombo), "Style=2", "Style = 1", "End"}));
}

TEST(LibraryComboRule, WithoutAnOptionItIsNeitherCountedNorRebuilt) {
    const std::string sBegin = "   Begin Orvanta.ctlUniComboBoxXP cbo extra";
    const Outcome outcome = testing::ConvertBlock({sBegin, "ToolTipText = \"t\"", "Style = 1", "End"});
    EXPECT_EQ(outcome.sBytes, testing::InConvertedForm({sBegin, "ToolTipText = \"t\"", "Style = 1", "End"}));
    EXPECT_THAT(outcome.rows, Contains(kNoneConverted));
}

TEST(LibraryComboRule, WithAnOptionItCountsAndIsRebuiltInEitherCase) {
    const ComboCase cases[] = {
        {kComboImages, "Style = 1", kImage, "Style = 1"},
        {kComboImages, "Style = 3  'Text", kImage, "Style = 3  'Text"},
        {kComboImages, "Style = 0", kCombo, "Style = 0"},
        {kComboImages, "Style = 2", kCombo, "Style = 2"},
        {kComboImages, "Style = 4", kCombo, "Style = 4"},
        {kComboImages, "Left = 1", kCombo, "Left = 1"},
        {kTextCombos, "  Style = 1 ", kCombo, "Style=3"},
        {kTextCombos, "Style = 2", kCombo, "Style = 2"},
        {kTextCombos, "Style = 3", kCombo, "Style = 3"},
        {kTextCombos, "Left = 1", kCombo, "Left = 1"},
        {kBothOptions, "Style = 1", kImage, "Style = 1"},
        {kBothOptions, "Style = 3", kImage, "Style = 3"},
        {kBothOptions, "Style = 2", kCombo, "Style = 2"},
    };
    for (const ComboCase& c : cases) {
        testing::FakeWorld world;
        world.kinds.fill(false); // the kinds are not asked
        world.Put(testing::kFormPath,
                  testing::InForm({"   Begin Orvanta.ctlUniComboBoxXP cbo ", c.sStyle, "ToolTipText = \"t\"", "End"}));
        const Outcome outcome = testing::ConvertIn(world, c.options);
        EXPECT_EQ(outcome.sBytes, testing::InConvertedForm({Begin(c.sTarget), c.sWanted, "Tip=\"t\"", "End"}))
            << c.sStyle;
        EXPECT_THAT(outcome.rows, Contains(kOneConverted));
        EXPECT_THAT(world.asked, ::testing::IsEmpty());
    }
}

TEST(LibraryComboRule, ASecondConvertWithImagesTakesWhatTheFirstLeftAsCombo) {
    const std::string sFirst =
        testing::ConvertBlock({Begin("VB.ComboBox"), "Style = 2", "End"}, kTextCombos).sBytes; // now Style=3
    EXPECT_EQ(testing::ConvertForm(sFirst, kComboImages).sBytes,
              testing::InConvertedForm({Begin(kImage), "Style=3", "End"}) + "\r\n");
}

} // namespace
} // namespace orvanta
