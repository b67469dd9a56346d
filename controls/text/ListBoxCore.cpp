// The properties of the list boxes.
#include "controls/text/ListBoxCore.h"

#include "controls/contract/SharedRows.h"

#include <utility>

namespace orvanta {

PropertyTable<ListBoxCore> ListBoxCore::MakeTable(Kind kind) {
    using Rows = PropertyTable<ListBoxCore>;
    using Shared = SharedRows<ListBoxCore>;
    using L = ListBoxCore;
    const bool bPictures = kind == Kind::Pictures;
    std::vector<Rows::Row> rows;
    if (bPictures) rows.push_back(Rows::Field(u"IconDim", 16, &L::m_iIconDim));
    for (Rows::Row& row : std::vector<Rows::Row>{
             Rows::Field(u"BorderColor", kAutomatic, &L::m_borderColor, After::Repaint),
             Rows::Field(u"BackColor", kSystemWindow, &L::m_backColor, &L::BackColor),
             Rows::Field(u"ForeColor", kSystemWindowText, &L::m_foreColor, After::Repaint),
             Shared::Enabled(),
             Shared::Font(),
             // The key is shorter than the property.
             Rows::Field(u"TrapTab", false, &L::m_bTrapTab),
             Shared::Tip(),
             Rows::Field(u"MultiSelect", 0, &L::m_lMultiSelect, &L::MultiSelect),
             Rows::Field(u"Sorted", false, &L::m_bSorted, &L::Sorted),
             Rows::Field(u"HScroll", false, &L::m_bHScroll, &L::HScroll),
             Rows::Field(u"SelBackColor", kSystemHighlight, &L::m_selBackColor, After::Repaint),
             Rows::Field(u"SelForeColor", kSystemHighlightText, &L::m_selForeColor, After::Repaint),
             Rows::Field(u"RoundedBorders", false, &L::m_bRoundedBorders, After::ShapeAndRepaint),
             Rows::Field(u"SelectorStyle", -1, &L::m_lSelectorStyle, After::Repaint),
             Rows::Field(u"RoundSelector", false, &L::m_bRoundSelector, After::Repaint),
             Rows::Field(u"BackColorOut", kAutomatic, &L::m_backColorOut, After::Repaint),
             Rows::Field(u"UseRoundRegions", false, &L::m_bUseRoundRegions, &L::UseRoundRegions),
         })
        rows.push_back(std::move(row));
    if (bPictures) rows.push_back(Rows::Field(u"AllowImages", true, &L::m_bAllowImages, &L::SetAllowImages));
    for (Rows::Row& row : std::vector<Rows::Row>{
             Rows::Field(u"ManualStart", false, &L::m_bManualStart),
             Shared::MousePointer(),
             Shared::MouseIcon(),
             Rows::Field(u"Style", 0, &L::m_lStyle, &L::Style),
             Shared::OLEDropMode(),
             Rows::Field(u"ScrollOnMouseWheel", true, &L::m_bScrollOnMouseWheel),
         })
        rows.push_back(std::move(row));
    if (!bPictures) rows.push_back(Rows::Field(u"Columns", 0, &L::m_iColumns, &L::SetColumns));
    return PropertyTable<ListBoxCore>(std::move(rows));
    // The analyzer loses sight of the function objects that move with their rows.
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

void ListBoxCore::BorderColor(OleColor c) {
    Table().Set(*this, &ListBoxCore::m_borderColor, c);
}
void ListBoxCore::ForeColor(OleColor c) {
    Table().Set(*this, &ListBoxCore::m_foreColor, c);
}
void ListBoxCore::SelBackColor(OleColor c) {
    Table().Set(*this, &ListBoxCore::m_selBackColor, c);
}
void ListBoxCore::SelForeColor(OleColor c) {
    Table().Set(*this, &ListBoxCore::m_selForeColor, c);
}
void ListBoxCore::BackColorOut(OleColor c) {
    Table().Set(*this, &ListBoxCore::m_backColorOut, c);
}
void ListBoxCore::RoundedBorders(bool b) {
    Table().Set(*this, &ListBoxCore::m_bRoundedBorders, b);
}
void ListBoxCore::SelectorStyle(std::int32_t l) {
    Table().Set(*this, &ListBoxCore::m_lSelectorStyle, l);
}
void ListBoxCore::RoundSelector(bool b) {
    Table().Set(*this, &ListBoxCore::m_bRoundSelector, b);
}

void ListBoxCore::BackColor(OleColor c) {
    m_backColor = c;
    m_bBrushDirty = true;
    pvInvalidate();
}

void ListBoxCore::UseRoundRegions(bool b) {
    m_bUseRoundRegions = b;
    m_bRoundedBorders = b;
    AfterChange(u"UseRoundRegions", After::ShapeAndRepaint);
}

void ListBoxCore::MultiSelect(std::int32_t l) {
    const std::int32_t lCurrent = ListIndex();
    m_lMultiSelect = l;
    pvRecreateList(lCurrent);
}

void ListBoxCore::Sorted(bool b) {
    m_bSorted = b;
    pvRecreateList(ListIndex());
}

void ListBoxCore::Style(std::int32_t l) {
    if (m_lStyle == l) return;
    m_lStyle = l;
    pvRecreateList(ListIndex());
}

void ListBoxCore::HScroll(bool b) {
    const bool bEnds = m_bHScroll && !b;
    m_bHScroll = b;
    if (bEnds) Send(LB_SETHORIZONTALEXTENT, 0);
}

void ListBoxCore::SetColumns(std::int16_t i) {
    const std::int16_t iLast = std::exchange(m_iColumns, i);
    if (iLast < 0 || i < 0) return;
    if ((iLast == 0) != (i == 0)) {
        pvRecreateList(ListIndex());
    } else {
        pvSetColumnWidth();
    }
}

void ListBoxCore::SetAllowImages(bool b) {
    m_bAllowImages = b;
    if (UserMode()) throw OwnFailure(u"", u"This property can only be set in Design mode");
}

void ListBoxCore::Font(const OleFont& New_Font) {
    Host().Font(New_Font);
    if (m_hList) {
        SendFont();
    } else {
        pvInvalidate();
    }
}

OleFont ListBoxCore::ApplyFontChanges() {
    OleFont font = Font();
    Font(font);
    return font;
}

} // namespace orvanta
