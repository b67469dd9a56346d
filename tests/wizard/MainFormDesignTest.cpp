#include "wizard/MainFormDesign.h"

#include "tests/support/Unicode.h"
#include "wizard/ProgramResources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace orvanta {
namespace {

std::string ValueText(const SettingValue& value) {
    struct Shown {
        std::string operator()(bool b) const { return b ? "true" : "false"; }
        std::string operator()(std::int32_t l) const {
            std::ostringstream text;
            if (l > -2 && l < 1000)
                text << l;
            else
                text << "&H" << std::hex << std::uppercase << static_cast<std::uint32_t>(l);
            return text.str();
        }
        std::string operator()(std::u16string_view s) const { return '"' + testing::ToUtf8(s) + '"'; }
        std::string operator()(const FontSetting& font) const {
            std::ostringstream text;
            text << testing::ToUtf8(font.sName) << ' ' << font.dSize;
            return text.str();
        }
        std::string operator()(const PictureSetting& picture) const {
            return "bitmap " + std::to_string(picture.iResource);
        }
    };
    return std::visit(Shown(), value);
}

const DesignControl& ControlNamed(std::u16string_view sName) {
    const auto& controls = MainFormDesign().controls;
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&](const DesignControl& c) { return c.sName == sName; });
    if (found == controls.end()) throw std::runtime_error("no control " + testing::ToUtf8(sName));
    return *found;
}

// All settings of a control as "key value", in alphabetical order.
using Lines = std::vector<std::string>;
Lines SettingsOf(std::u16string_view sName) {
    Lines lines;
    for (const DesignSetting& setting : ControlNamed(sName).settings)
        lines.push_back(testing::ToUtf8(setting.sKey) + ' ' + ValueText(setting.value));
    std::sort(lines.begin(), lines.end());
    return lines;
}

// The row of a control in the table of positions.
std::string RowOf(const DesignControl& control) {
    static constexpr const char* kTypes[] = {"ctlUniButtonImageXP", "ctlUniLabel",         "ctlUniFrameXP",
                                             "ctlUniCheckXP",       "ctlUniListBoxExXP",   "ctlUniTextBoxXP",
                                             "ctlUniGrid",          "ctlUniTooltipManager"};
    std::ostringstream text;
    text << testing::ToUtf8(control.sName) << ' ' << kTypes[static_cast<std::size_t>(control.type)] << " in "
         << (control.sContainer.empty() ? "form" : testing::ToUtf8(control.sContainer)) << ": " << control.lLeft << ' '
         << control.lTop << ' ' << control.lWidth << ' ' << control.lHeight << " tab " << control.iTabIndex;
    return text.str();
}

const std::string kStandardFontLine = "font MS Sans Serif 8.25";

TEST(MainFormDesignTest, FormIsWhiteCenteredAndHasItsCaptionAndInnerSize) {
    const DesignForm& form = MainFormDesign();
    EXPECT_EQ(form.sCaption, u"Vbp Migrator - Upgrader");
    EXPECT_EQ(form.lBackColor, 0xFFFFFF);
    EXPECT_EQ(form.lScaleWidth, 8700);
    EXPECT_EQ(form.lScaleHeight, 5655);
    EXPECT_TRUE(form.bCenteredOnScreen);
}

TEST(MainFormDesignTest, ControlsStandInTheOrderOfCreationWithPlaceAndTabIndex) {
    Lines rows;
    for (const DesignControl& control : MainFormDesign().controls)
        rows.push_back(RowOf(control));
    EXPECT_EQ(rows, (Lines{"btnOp ctlUniButtonImageXP in form: 3510 5100 1665 405 tab 0",
                           "lblInfo ctlUniLabel in form: 270 120 8175 1695 tab -1",
                           "btnClose ctlUniButtonImageXP in form: 5280 5100 1665 405 tab 1",
                           "btnSaveToLog ctlUniButtonImageXP in form: 1740 5100 1665 405 tab 2",
                           "frmFiles ctlUniFrameXP in form: 270 1860 8175 3105 tab -1",
                           "chkUseTextLikeCombos ctlUniCheckXP in frmFiles: 4290 540 3825 255 tab 7",
                           "ctlUniLabel1 ctlUniLabel in frmFiles: 150 300 1890 195 tab -1",
                           "lstFiles ctlUniListBoxExXP in frmFiles: 150 540 4095 2475 tab 6",
                           "chkComboImages ctlUniCheckXP in frmFiles: 4290 840 3825 405 tab 8",
                           "lstControls ctlUniListBoxExXP in frmFiles: 4290 1500 3795 1515 tab 9",
                           "ctlUniLabel2 ctlUniLabel in frmFiles: 4320 1290 2175 195 tab -1",
                           "frmChooseProject ctlUniFrameXP in form: 270 1860 8175 3105 tab -1",
                           "lblStep2Info ctlUniLabel in frmChooseProject: 150 360 7845 945 tab -1",
                           "txtProject ctlUniTextBoxXP in frmChooseProject: 840 2430 5985 315 tab 3",
                           "btnBrowse ctlUniButtonImageXP in frmChooseProject: 6870 2430 435 315 tab 4",
                           "lblStep2Info2 ctlUniLabel in frmChooseProject: 150 1410 7845 945 tab -1",
                           "frmGrid ctlUniFrameXP in form: 270 1860 8175 3105 tab -1",
                           "fxgrid ctlUniGrid in frmGrid: 60 300 8055 2745 tab 5",
                           "ctlUniTooltipManager1 ctlUniTooltipManager in form: 0 0 0 0 tab -1"}));
}

TEST(MainFormDesignTest, EveryContainerStandsBeforeItsControls) {
    Lines seen;
    for (const DesignControl& control : MainFormDesign().controls) {
        if (!control.sContainer.empty()) {
            EXPECT_NE(std::find(seen.begin(), seen.end(), testing::ToUtf8(control.sContainer)), seen.end());
        }
        seen.push_back(testing::ToUtf8(control.sName));
    }
}

TEST(MainFormDesignTest, ForwardButton) {
    EXPECT_EQ(SettingsOf(u"btnOp"), (Lines{"backcolor &HFFFFC0", "caption \"Next >>\"", kStandardFontLine,
                                           "roundedborders true", "showfocus true", "style 7"}));
}

TEST(MainFormDesignTest, CloseButton) {
    EXPECT_EQ(SettingsOf(u"btnClose"),
              (Lines{"backcolor &HC0C0FF", "caption \"Close\"", kStandardFontLine, "imagepos 1", "picture bitmap 101",
                     "roundedborders true", "showfocus true", "style 7"}));
}

TEST(MainFormDesignTest, SaveLogButton) {
    EXPECT_EQ(SettingsOf(u"btnSaveToLog"), (Lines{"backcolor &HFFFFFF", "caption \"Save log...\"", kStandardFontLine,
                                                  "roundedborders true", "showfocus true", "style 7"}));
}

TEST(MainFormDesignTest, BrowseButton) {
    EXPECT_EQ(SettingsOf(u"btnBrowse"), (Lines{"backcolor &HFFFFFF", "backcolorout &HFFFFFF", "caption \"\"",
                                               kStandardFontLine, "picture bitmap 102", "roundedborders true",
                                               "style 4", "tip \"Browse for a project...\"", "useroundregions true"}));
}

TEST(MainFormDesignTest, InfoLabel) {
    EXPECT_EQ(SettingsOf(u"lblInfo"), (Lines{"alignment 2", "backcolor &HFFFFFF", "backstyle 1", "bordercolor &HC08000",
                                             "borderstyle 1", "font Tahoma 9.75"}));
}

TEST(MainFormDesignTest, HeadingsOfTheTwoLists) {
    EXPECT_EQ(SettingsOf(u"ctlUniLabel1"), (Lines{"autosize true", "backcolor &HFFFFFF", "backstyle 1",
                                                  "caption \"Choose the files to convert\"", kStandardFontLine}));
    EXPECT_EQ(SettingsOf(u"ctlUniLabel2"), (Lines{"autosize true", "backcolor &HFFFFFF", "backstyle 1",
                                                  "caption \"Choose the controls to convert\"", kStandardFontLine}));
}

TEST(MainFormDesignTest, UpgradeAdvice) {
    EXPECT_EQ(SettingsOf(u"lblStep2Info"),
              (Lines{"alignment 2", "backstyle 0",
                     "caption \"The project MUST already have a reference to the \"Orvanta\" library. The \"Upgrade\" "
                     "step will convert your files from an old version of the Unicode Library to the latest one; the "
                     "\"Convert\" step will change every VB6 standard control to the Unicode version contained in this "
                     "library.\"",
                     "font Tahoma 9"}));
}

TEST(MainFormDesignTest, ReferenceAdvice) {
    EXPECT_EQ(SettingsOf(u"lblStep2Info2"),
              (Lines{"alignment 2", "backcolor &HFFFFFF", "backstyle 1",
                     "caption \"If actually your project doesn't use the \"Orvanta\" ActiveX component, please add a "
                     "reference to this library (VB6 Menu --> Project/Components) and save the project or you'll not "
                     "be able to load the project anymore after the conversion.\"",
                     "font Tahoma 9", "forecolor 255"}));
}

TEST(MainFormDesignTest, Frames) {
    const Lines common = {"backcolor &HFFFFFF",      "bordercolor &HC08000", kStandardFontLine, "forecolor &HFFFFFF",
                          "titlebackcolor &HC08000", "useshadow false",      "vistastyle true"};
    const auto with = [&](const char* caption) {
        Lines lines = common;
        lines.emplace_back(caption);
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    EXPECT_EQ(SettingsOf(u"frmFiles"), with("caption \"Convert project files\""));
    EXPECT_EQ(SettingsOf(u"frmChooseProject"), with("caption \"Project to convert/upgrade\""));
    EXPECT_EQ(SettingsOf(u"frmGrid"), common);
}

TEST(MainFormDesignTest, Options) {
    const auto with = [](const char* caption) {
        return Lines{"backcolor &HFFFFFF",
                     caption,
                     "checkbackcolor &H80000005",
                     "checkforecolor &H80000008",
                     kStandardFontLine,
                     "pressed false",
                     "style -1"};
    };
    EXPECT_EQ(SettingsOf(u"chkUseTextLikeCombos"), with("caption \"Use Text-Like combo boxes\""));
    EXPECT_EQ(SettingsOf(u"chkComboImages"), with("caption \"Use Combo-Images when combo-style is DropDownList\""));
}

TEST(MainFormDesignTest, Lists) {
    const Lines expected = {"allowimages false",   kStandardFontLine,
                            "icondim 16",          "multiselect 0",
                            "roundedborders true", "selbackcolor &H8000000D",
                            "selectorstyle -1",    "selforecolor &H8000000E",
                            "sorted false",        "style 1"};
    EXPECT_EQ(SettingsOf(u"lstFiles"), expected);
    EXPECT_EQ(SettingsOf(u"lstControls"), expected);
}

TEST(MainFormDesignTest, ProjectBox) {
    EXPECT_EQ(SettingsOf(u"txtProject"), (Lines{"enablecontextmenu true", kStandardFontLine, "locked true",
                                                "multiline false", "raisechangeevent true", "roundedborders true"}));
}

TEST(MainFormDesignTest, Grid) {
    EXPECT_EQ(SettingsOf(u"fxgrid"),
              (Lines{"allowmultilinetext false", kStandardFontLine, "headerbackcolor &HC08000",
                     "headerforecolor &HFFFFFF", "headerstyle -1", "minrowheight 0", "selbackcolor &HC08000",
                     "selectorstyle -1", "selforecolor &HFFFFFF", "showfocus true"}));
}

TEST(MainFormDesignTest, TooltipManager) {
    EXPECT_EQ(SettingsOf(u"ctlUniTooltipManager1"),
              (Lines{"activatetips true", kStandardFontLine, "persistenttip false", "style -1", "tipbgcolor &H80000018",
                     "tipfgcolor &H80000017", "transparency 0"}));
}

TEST(MainFormDesignTest, KeysCompareWithoutRegardToCase) {
    const SettingValue* value = ControlNamed(u"btnOp").Setting(u"BackColor");
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(std::get<std::int32_t>(*value), 0xFFFFC0);
    EXPECT_EQ(ControlNamed(u"btnOp").Setting(u"picture"), nullptr);
}

TEST(MainFormDesignTest, TabIndexesRunFromZeroToNineWithoutAGap) {
    std::vector<std::int16_t> indexes;
    for (const DesignControl& control : MainFormDesign().controls)
        if (control.iTabIndex != DesignControl::kNoTabIndex) indexes.push_back(control.iTabIndex);
    std::sort(indexes.begin(), indexes.end());
    EXPECT_EQ(indexes, (std::vector<std::int16_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

} // namespace
} // namespace orvanta
