#include "wizard/MainFormDesign.h"

#include "base/Text.h"
#include "plumbing/SharedColors.h"
#include "wizard/ProgramResources.h"

namespace orvanta {

namespace {

using Settings = std::vector<DesignSetting>;

constexpr std::int32_t kWhite = 0xFFFFFF;
constexpr std::int32_t kRed = 0x0000FF;
constexpr std::int32_t kBlue = 0xC08000;
constexpr std::int32_t kPaleBlue = 0xFFFFC0;
constexpr std::int32_t kPaleRed = 0xC0C0FF;

constexpr std::int32_t kHighlight = static_cast<std::int32_t>(0x8000000Du);
constexpr std::int32_t kHighlightText = static_cast<std::int32_t>(0x8000000Eu);
constexpr std::int32_t kInfoText = static_cast<std::int32_t>(0x80000017u);
constexpr std::int32_t kInfoBack = static_cast<std::int32_t>(0x80000018u);

constexpr FontSetting kStandardFont{u"MS Sans Serif", 8.25};
constexpr FontSetting kTitleFont{u"Tahoma", 9.75};
constexpr FontSetting kAdviceFont{u"Tahoma", 9};

constexpr std::u16string_view kUpgradeAdvice = u"The project MUST already have a reference to the \"Orvanta\" library. "
                                               u"The \"Upgrade\" step will convert your files "
                                               u"from an old version of the Unicode Library to the latest one; the "
                                               u"\"Convert\" step will change every VB6 standard "
                                               u"control to the Unicode version contained in this library.";
constexpr std::u16string_view kReferenceAdvice =
    u"If actually your project doesn't use the \"Orvanta\" ActiveX component, please add a reference to this library "
    u"(VB6 Menu --> Project/Components) and save the project or you'll not be able to load the project anymore after "
    u"the "
    u"conversion.";

// What several controls have in common, and then what is a control's own.
Settings Join(Settings common, const Settings& own) {
    common.insert(common.end(), own.begin(), own.end());
    return common;
}

Settings BottomButton(std::u16string_view sCaption, std::int32_t lBackColor) {
    return {{u"font", kStandardFont},   {u"caption", sCaption},    {u"style", 7},
            {u"backcolor", lBackColor}, {u"roundedborders", true}, {u"showfocus", true}};
}

Settings FrameOf(const Settings& own) {
    return Join({{u"font", kStandardFont},
                 {u"backcolor", kWhite},
                 {u"forecolor", kWhite},
                 {u"bordercolor", kBlue},
                 {u"titlebackcolor", kBlue},
                 {u"vistastyle", true},
                 {u"useshadow", false}},
                own);
}

Settings ListHeading(std::u16string_view sCaption) {
    return {{u"font", kStandardFont},
            {u"caption", sCaption},
            {u"backcolor", kWhite},
            {u"backstyle", 1},
            {u"autosize", true}};
}

Settings Option(std::u16string_view sCaption) {
    return {{u"font", kStandardFont},
            {u"caption", sCaption},
            {u"pressed", false},
            {u"style", -1},
            {u"backcolor", kWhite},
            {u"checkbackcolor", kSystemWindow},
            {u"checkforecolor", kSystemWindowText}};
}

Settings CheckList() {
    return {{u"font", kStandardFont},
            {u"style", 1},
            {u"multiselect", 0},
            {u"sorted", false},
            {u"icondim", 16},
            {u"allowimages", false},
            {u"roundedborders", true},
            {u"selectorstyle", -1},
            {u"selbackcolor", kHighlight},
            {u"selforecolor", kHighlightText}};
}

DesignForm MakeMainForm() {
    using enum ControlType;
    constexpr std::int16_t kNone = DesignControl::kNoTabIndex;
    return {
        u"Vbp Migrator - Upgrader",
        kWhite,
        8700,
        5655,
        true,
        {
            {u"btnOp", ctlUniButtonImageXP, u"", 3510, 5100, 1665, 405, 0, BottomButton(u"Next >>", kPaleBlue)},
            {u"lblInfo",
             ctlUniLabel,
             u"",
             270,
             120,
             8175,
             1695,
             kNone,
             {{u"font", kTitleFont},
              {u"backcolor", kWhite},
              {u"backstyle", 1},
              {u"borderstyle", 1},
              {u"bordercolor", kBlue},
              {u"alignment", 2}}},
            {u"btnClose", ctlUniButtonImageXP, u"", 5280, 5100, 1665, 405, 1,
             Join(BottomButton(u"Close", kPaleRed),
                  {{u"imagepos", 1}, {u"picture", PictureSetting{ORVANTA_BITMAP_CLOSE}}})},
            {u"btnSaveToLog", ctlUniButtonImageXP, u"", 1740, 5100, 1665, 405, 2, BottomButton(u"Save log...", kWhite)},
            {u"frmFiles", ctlUniFrameXP, u"", 270, 1860, 8175, 3105, kNone,
             FrameOf({{u"caption", u"Convert project files"}})},
            {u"chkUseTextLikeCombos", ctlUniCheckXP, u"frmFiles", 4290, 540, 3825, 255, 7,
             Option(u"Use Text-Like combo boxes")},
            {u"ctlUniLabel1", ctlUniLabel, u"frmFiles", 150, 300, 1890, 195, kNone,
             ListHeading(u"Choose the files to convert")},
            {u"lstFiles", ctlUniListBoxExXP, u"frmFiles", 150, 540, 4095, 2475, 6, CheckList()},
            {u"chkComboImages", ctlUniCheckXP, u"frmFiles", 4290, 840, 3825, 405, 8,
             Option(u"Use Combo-Images when combo-style is DropDownList")},
            {u"lstControls", ctlUniListBoxExXP, u"frmFiles", 4290, 1500, 3795, 1515, 9, CheckList()},
            {u"ctlUniLabel2", ctlUniLabel, u"frmFiles", 4320, 1290, 2175, 195, kNone,
             ListHeading(u"Choose the controls to convert")},
            {u"frmChooseProject", ctlUniFrameXP, u"", 270, 1860, 8175, 3105, kNone,
             FrameOf({{u"caption", u"Project to convert/upgrade"}})},
            {u"lblStep2Info",
             ctlUniLabel,
             u"frmChooseProject",
             150,
             360,
             7845,
             945,
             kNone,
             {{u"font", kAdviceFont}, {u"caption", kUpgradeAdvice}, {u"backstyle", 0}, {u"alignment", 2}}},
            {u"txtProject",
             ctlUniTextBoxXP,
             u"frmChooseProject",
             840,
             2430,
             5985,
             315,
             3,
             {{u"font", kStandardFont},
              {u"locked", true},
              {u"multiline", false},
              {u"roundedborders", true},
              {u"raisechangeevent", true},
              {u"enablecontextmenu", true}}},
            {u"btnBrowse",
             ctlUniButtonImageXP,
             u"frmChooseProject",
             6870,
             2430,
             435,
             315,
             4,
             {{u"font", kStandardFont},
              {u"caption", u""},
              {u"tip", u"Browse for a project..."},
              {u"style", 4},
              {u"backcolor", kWhite},
              {u"backcolorout", kWhite},
              {u"roundedborders", true},
              {u"useroundregions", true},
              {u"picture", PictureSetting{ORVANTA_BITMAP_BROWSE}}}},
            {u"lblStep2Info2",
             ctlUniLabel,
             u"frmChooseProject",
             150,
             1410,
             7845,
             945,
             kNone,
             {{u"font", kAdviceFont},
              {u"caption", kReferenceAdvice},
              {u"backcolor", kWhite},
              {u"forecolor", kRed},
              {u"backstyle", 1},
              {u"alignment", 2}}},
            {u"frmGrid", ctlUniFrameXP, u"", 270, 1860, 8175, 3105, kNone, FrameOf({})},
            {u"fxgrid",
             ctlUniGrid,
             u"frmGrid",
             60,
             300,
             8055,
             2745,
             5,
             {{u"font", kStandardFont},
              {u"selbackcolor", kBlue},
              {u"headerbackcolor", kBlue},
              {u"selforecolor", kWhite},
              {u"headerforecolor", kWhite},
              {u"minrowheight", 0},
              {u"headerstyle", -1},
              {u"selectorstyle", -1},
              {u"showfocus", true},
              {u"allowmultilinetext", false}}},
            {u"ctlUniTooltipManager1",
             ctlUniTooltipManager,
             u"",
             0,
             0,
             0,
             0,
             kNone,
             {{u"font", kStandardFont},
              {u"activatetips", true},
              {u"persistenttip", false},
              {u"style", -1},
              {u"transparency", 0},
              {u"tipbgcolor", kInfoBack},
              {u"tipfgcolor", kInfoText}}},
        }};
}

} // namespace

const SettingValue* DesignControl::Setting(std::u16string_view sKey) const {
    for (const DesignSetting& setting : settings) {
        if (EqualsAsciiFolded(setting.sKey, sKey)) return &setting.value;
    }
    return nullptr;
}

const DesignForm& MainFormDesign() {
    static const DesignForm form = MakeMainForm();
    return form;
}

} // namespace orvanta
