#pragma once

#include "controls/text/ListBoxCore.h"

namespace orvanta {

// A Unicode list box, optionally with check boxes or in columns. All items are of one height, that of the font when the
// list window was made.
class ctlUniListBoxXP final : public ListBoxCore {
public:
    explicit ctlUniListBoxXP(ControlHost& host) : ListBoxCore(host) {}

    const PropertyTable<ListBoxCore>& Table() const override;

    // Above 0: items run down in columns, so many beside one another. A change from 0 or to 0 makes the list window
    // anew; with a negative number on either side nothing follows.
    std::int16_t Columns() const { return m_iColumns; }
    void Columns(std::int16_t i) { SetColumns(i); }

private:
    std::u16string_view FailureSource() const override { return u"ctlUniListBoxXP."; }
    DWORD OwnerDrawStyle() const override { return LBS_OWNERDRAWFIXED; }
    void pvMeasureItem(MEASUREITEMSTRUCT& record) override;
    void pvDrawItem(const DRAWITEMSTRUCT& record) override;
};

} // namespace orvanta
