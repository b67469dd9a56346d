#include "controls/text/ctlUniListBoxXP.h"

#include "drawing/clsFontHDC.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"

namespace orvanta {

const PropertyTable<ListBoxCore>& ctlUniListBoxXP::Table() const {
    static const PropertyTable<ListBoxCore> table = MakeTable(Kind::Columns);
    return table;
}

// The list window does not stand yet: it asks while it is made.
void ctlUniListBoxXP::pvMeasureItem(MEASUREITEMSTRUCT& record) {
    clsMEMDC surface;
    surface.CreateDC(1, 1, TRANSPARENT);
    clsFontHDC font;
    font.SetFontToDCStdFont(surface.Hdc(), Font(), -1, 0, 0, false);
    record.itemHeight = static_cast<UINT>(PlainItemHeight(surface.Hdc()));
    font.Destroy();
}

void ctlUniListBoxXP::pvDrawItem(const DRAWITEMSTRUCT& record) {
    const auto lNumber = static_cast<std::int32_t>(record.itemData);
    // An empty list that has the focus draws its first line.
    const bool bItem = static_cast<std::int32_t>(record.itemID) >= 0 && lNumber >= 0;
    const ListItem* item = bItem ? Items().Find(lNumber) : nullptr;
    const ListRow row = LayoutOfRow(PixelRectOf(record.rcItem), bItem && HasChecks());
    if (bItem && HasChecks()) DrawCheckBox(record.hDC, row.box, item && item->bChecked);
    const OleColor text = DrawItemFace(record.hDC, row.item, (record.itemState & ODS_SELECTED) != 0);
    if (record.itemState & ODS_FOCUS) DrawFocusRectOn(record.hDC, RectOf(row.item));
    DrawItemText(record.hDC, item ? item->sText : std::u16string(), row.text, text);
}

} // namespace orvanta
