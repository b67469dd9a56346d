#include "engine/ControlRules.h"

#include "base/Text.h"

namespace orvanta {

namespace {

std::u16string NameAnd(std::u16string_view sName, std::u16string_view sMove) {
    return Concat({sName, u"> ", sMove});
}

} // namespace

bool ControlRules::KindSelected(int iKind) {
    if (iKind < 0) return true;
    bool bSelected = true; // a question that fails goes on inside its branch
    m_log.Step([&] { bSelected = m_world.Selected(iKind); });
    return bSelected;
}

ControlRules::Outcome ControlRules::Apply(const Block& block) {
    Outcome outcome;
    const SourceType* const type = FindSourceType(block.sType);
    if (!type || !KindSelected(type->iKind)) return outcome;
    outcome.bConverted = true;
    outcome.sTarget = type->sTarget;
    switch (type->rule) {
    case TypeRule::Plain: break;
    case TypeRule::ProgressBar: CountWarning(Warning::ProgressBars); break;
    case TypeRule::TextBox: m_textBoxes.emplace_back(block.sName); break;
    case TypeRule::Value: ApplyValue(block, outcome); break;
    case TypeRule::Combo: ApplyCombo(block, outcome); break;
    case TypeRule::LibraryCombo: ApplyLibraryCombo(block, outcome); break;
    case TypeRule::FileBox: outcome.sExtraLines = u"\r\nDisplayMode = 1"; break;
    case TypeRule::DirBox: outcome.sExtraLines = u"\r\nDisplayMode = 2"; break;
    case TypeRule::CountMenu: CountWarning(Warning::Menus); return {};
    case TypeRule::CountTabStrip: CountWarning(Warning::TabStrips); return {};
    case TypeRule::CountStatusBar: CountWarning(Warning::StatusBars); return {};
    case TypeRule::CountTreeView: CountWarning(Warning::TreeViews); return {};
    case TypeRule::CountToolbar: CountWarning(Warning::Toolbars); return {};
    case TypeRule::CountImageCombo: CountWarning(Warning::ImageCombos); return {};
    }
    if (outcome.bConverted) ++m_lConverted;
    return outcome;
}

void ControlRules::MoveToolTip(const Block& block) {
    if (m_properties.GetBlockProperty(block.nMark, u"ToolTipText").empty()) return;
    CountWarning(Warning::Tips);
    m_log.Line(block.nLine, NameAnd(block.sName, u"ToolTipText>>Tip"), kDarkGreen);
    m_properties.ChangeBlockProperty(block.nMark, u"ToolTipText", u"Tip");
}

// A grey check box (2) comes out unpressed.
void ControlRules::ApplyValue(const Block& block, Outcome& outcome) {
    const std::u16string_view sValue = m_properties.GetBlockProperty(block.nMark, u"Value");
    if (sValue.empty()) {
        outcome.sExtraLines = u"\r\nPressed = 0";
        return;
    }
    const bool bPressed = sValue.starts_with(u"1") || sValue.starts_with(u"-1");
    m_log.Line(block.nLine, NameAnd(block.sName, u"Value>>Pressed"), kDarkGreen);
    m_properties.ChangeBlockProperty(block.nMark, u"Value", u"Pressed", bPressed ? u"-1" : u"0");
}

char16_t ControlRules::FirstOf(const Block& block, std::u16string_view sProperty) const {
    const std::u16string_view sValue = m_properties.GetBlockProperty(block.nMark, sProperty);
    return sValue.empty() ? u'\0' : sValue.front();
}

void ControlRules::SetStyle(const Block& block, std::u16string_view sStyle) {
    m_properties.ChangeBlockProperty(block.nMark, u"Style", u"Style", sStyle);
}

// Source styles: 0 drop-down combo, 1 simple combo, 2 drop-down list. The target numbers them 2, 1, 1, and knows a
// text-like list as 3 and a text-like combo as 4. The options look at the style after it was renumbered.
void ControlRules::ApplyCombo(const Block& block, Outcome& outcome) {
    const std::u16string_view sStyle = m_properties.GetBlockProperty(block.nMark, u"Style");
    if (sStyle.empty()) {
        outcome.sExtraLines = m_options.bUseTextLikeCombos ? u"\r\nStyle = 4" : u"\r\nStyle = 2";
        return;
    }
    const char16_t cStyle = sStyle.front();
    if (cStyle == u'0') SetStyle(block, u"2");
    if (cStyle == u'2') SetStyle(block, u"1");
    if (m_options.bUseComboImages) {
        if (FirstOf(block, u"Style") == u'1') outcome.sTarget = kImageComboTarget;
    } else if (m_options.bUseTextLikeCombos) {
        if (FirstOf(block, u"Style") == u'1') SetStyle(block, u"3");
    }
}

void ControlRules::ApplyLibraryCombo(const Block& block, Outcome& outcome) {
    if (m_options.bUseComboImages) {
        const char16_t cStyle = FirstOf(block, u"Style");
        if (cStyle == u'1' || cStyle == u'3') outcome.sTarget = kImageComboTarget;
    } else if (m_options.bUseTextLikeCombos) {
        if (FirstOf(block, u"Style") == u'1') SetStyle(block, u"3");
    } else {
        outcome.bConverted = false;
    }
}

} // namespace orvanta
