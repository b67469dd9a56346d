#include "controls/text/ctlUniListBoxExXP.h"

#include "drawing/clsFontHDC.h"
#include "drawing/modCtlCommon_alphaImg.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

#include <algorithm>

namespace orvanta {

// An item as its owner wants it.
struct ctlUniListBoxExXP::OwnersItem {
    std::u16string sText;
    OlePicture picture;
    std::int16_t iWidth = 0;
    std::int16_t iHeight = 0;
    bool bTransparent = true;
};

const PropertyTable<ListBoxCore>& ctlUniListBoxExXP::Table() const {
    static const PropertyTable<ListBoxCore> table = MakeTable(Kind::Pictures);
    return table;
}

bool ctlUniListBoxExXP::AskOwner(std::int32_t lState, std::int32_t lItemIndex, OwnersItem& item) {
    item.iWidth = m_iIconDim;
    item.iHeight = m_iIconDim;
    m_lOwnerDrawState = lState;
    if (!Raise(OnOwnerDraw, lItemIndex, item.sText, item.picture, item.iWidth, item.iHeight, item.bTransparent) ||
        !IsStarted())
        return false;
    item.iWidth = std::max(item.iWidth, m_iIconDim);
    item.iHeight = std::max(item.iHeight, m_iIconDim);
    return true;
}

void ctlUniListBoxExXP::pvMeasureItem(MEASUREITEMSTRUCT& record) {
    const auto lItemIndex = static_cast<std::int32_t>(record.itemID);
    const auto lNumber = static_cast<std::int32_t>(record.itemData);
    const bool bWithPicture = m_bAllowImages && lItemIndex >= 0 && lNumber >= 0;
    OwnersItem item;
    if (bWithPicture) {
        item.sText = Items().TextOf(lNumber);
        if (!AskOwner(0, lItemIndex, item)) return;
    }
    const WindowDc dc(hwnd());
    clsFontHDC font;
    font.SetFontToDCStdFont(dc.Get(), Font(), -1, 0, 0, false);
    if (bWithPicture) {
        PixelSize text;
        MeasureTextLine(dc.Get(), item.sText, DT_NOPREFIX, text.width, text.height);
        const PixelSize size = PictureItemSize(text, item.iWidth, item.iHeight);
        record.itemWidth = static_cast<UINT>(size.width);
        record.itemHeight = static_cast<UINT>(size.height);
    } else {
        record.itemHeight = static_cast<UINT>(PlainItemHeight(dc.Get()));
    }
    font.Destroy();
}

void ctlUniListBoxExXP::pvDrawItem(const DRAWITEMSTRUCT& record) {
    const auto lItemIndex = static_cast<std::int32_t>(record.itemID);
    const auto lNumber = static_cast<std::int32_t>(record.itemData);
    if (lItemIndex < 0 || lNumber < 0) {
        DrawNoItem(record);
        return;
    }
    OwnersItem item;
    bool bChecked = false;
    if (const ListItem* stored = Items().Find(lNumber)) {
        item.sText = stored->sText;
        bChecked = stored->bChecked;
    }
    if (!AskOwner(1, lItemIndex, item)) return;
    if (!m_bAllowImages) item.picture = {};

    HDC dc = record.hDC;
    const ListRow row = LayoutOfPictureRow(PixelRectOf(record.rcItem), HasChecks(), m_bAllowImages, item.iWidth);
    if (HasChecks()) DrawCheckBox(dc, row.box, bChecked);
    const OleColor text = DrawItemFace(dc, row.item, (record.itemState & ODS_SELECTED) != 0);
    if (item.picture) {
        IgnoreFailure([&] {
            pvOverlapImage(dc, RectOf(row.picture), !Enabled(), item.picture, item.bTransparent, item.iWidth,
                           item.iHeight);
        });
    }
    if (record.itemState & ODS_FOCUS) DrawFocusRectOn(dc, RectOf(row.item));
    DrawItemText(dc, item.sText, row.text, text);
}

void ctlUniListBoxExXP::DrawNoItem(const DRAWITEMSTRUCT& record) const {
    RECT rect = record.rcItem;
    rect.bottom = rect.top + PlainItemHeight(record.hDC);
    FillOrFrame(record.hDC, rect, BackColor(), true);
    if (record.itemState & ODS_FOCUS) DrawFocusRectOn(record.hDC, rect);
}

} // namespace orvanta
