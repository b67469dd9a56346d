#pragma once

#include "base/Collection.h"
#include "controls/contract/Control.h"

#include <cstdint>

namespace orvanta {

// Keeps a numbered set of pictures in the form's property bag, for code to fetch at run time. Not shown at run time; a
// form designer shows an icon of fixed size.
class ctlImageBag : public Control {
public:
    using Control::Control;

    // The stored object itself, counted from 1. Raises SubscriptOutOfRange.
    OlePicture GetPicture(std::int32_t i) const;
    // A new picture with a copy of the bitmap. Raises SubscriptOutOfRange, and what clsMEMDC raises for an entry that
    // is no bitmap.
    OlePicture GetPictureClone(std::int32_t i) const;

    // The set itself, for the property page that fills it. An entry may be empty.
    Collection<OlePicture>& Pictures() { return m_pictures; }
    const Collection<OlePicture>& Pictures() const { return m_pictures; }

    HostTraits Traits() const override { return {.bCanGetFocus = false, .bHasFace = false}; }
    // Adds the stored pictures to the set; entries that are no pictures are left out.
    void OnReadProperties(const PropertyBag& bag) override;
    void OnWriteProperties(PropertyBag& bag) override;
    void OnResize() override;
    void OnPaint() override;

private:
    Collection<OlePicture> m_pictures;
    bool m_bSizing = false;
};

} // namespace orvanta
