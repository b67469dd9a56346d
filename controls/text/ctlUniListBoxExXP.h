#pragma once

#include "controls/text/ListBoxCore.h"
#include "drawing/OlePicture.h"

namespace orvanta {

// The list box with a picture beside each item, and items of their own heights. It keeps no pictures: its owner hands
// them out in OnOwnerDraw, once when an item is added and its size is asked, and again whenever it is drawn.
class ctlUniListBoxExXP final : public ListBoxCore {
public:
    explicit ctlUniListBoxExXP(ControlHost& host) : ListBoxCore(host) {}

    const PropertyTable<ListBoxCore>& Table() const override;

    // The least width and height of a picture, in pixels. Items keep the height that they have.
    std::int16_t IconDim() const { return m_iIconDim; }
    void IconDim(std::int16_t i) { m_iIconDim = i; }
    // Items have a column for pictures. For the form designer: at run time the value is stored, and then the setter
    // raises Failure::kOwn "This property can only be set in Design mode".
    bool AllowImages() const { return m_bAllowImages; }
    void AllowImages(bool bValue) { SetAllowImages(bValue); }

    bool IsStarted() const { return hwnd() != nullptr; }
    // What OnOwnerDraw is raised for: 0 the size of an item, 1 its drawing.
    std::int32_t OwnerDrawState() const { return m_lOwnerDrawState; }

    // lItemIndex, sItemText, oItemPic, iItemPicWidth, iItemPicHeight, bItemPicTransp. A changed text is shown and
    // forgotten. Sizes are pixels, IconDim at first and at least. bItemPicTransp leaves out what has the colour of the
    // picture's top left pixel. Without AllowImages it is raised for the drawing alone, for the text's sake.
    Event<std::int32_t, std::u16string&, OlePicture&, std::int16_t&, std::int16_t&, bool&> OnOwnerDraw;

private:
    struct OwnersItem;

    std::u16string_view FailureSource() const override { return u"ctlUniListboxExXP."; }
    DWORD OwnerDrawStyle() const override { return LBS_OWNERDRAWVARIABLE; }
    void pvMeasureItem(MEASUREITEMSTRUCT& record) override;
    void pvDrawItem(const DRAWITEMSTRUCT& record) override;
    void DrawNoItem(const DRAWITEMSTRUCT& record) const;
    // False when the control has been removed meanwhile.
    bool AskOwner(std::int32_t lState, std::int32_t lItemIndex, OwnersItem& item);

    std::int32_t m_lOwnerDrawState = 0;
};

} // namespace orvanta
