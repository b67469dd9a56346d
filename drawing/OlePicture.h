#pragma once

#include "drawing/ComReference.h"
#include "plumbing/GdiOwner.h"

#include <windows.h>

#include <ocidl.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// The platform's picture object, or none. Copies share one object; the bitmap or icon lives as long as the last of
// them.
class OlePicture {
public:
    static constexpr std::int16_t kTypeNone = -1; // of an empty reference, and of a picture without content
    static constexpr std::int16_t kTypeBitmap = 1;
    static constexpr std::int16_t kTypeIcon = 3;

    OlePicture() = default;
    explicit OlePicture(ComReference<IPicture> picture) : m_picture(std::move(picture)) {}

    // A picture that owns the bitmap or icon; empty when the platform makes none, and the handle is deleted then.
    static OlePicture OfBitmap(HBITMAP bitmap);
    static OlePicture OfIcon(HICON icon);
    // A picture out of the bytes of a BMP, GIF, JPEG or ICO file; empty when they are none of these.
    static OlePicture Load(std::string_view bytes);

    bool IsEmpty() const { return !m_picture; }
    explicit operator bool() const { return !IsEmpty(); }
    // The same object; two empty references are equal too.
    bool operator==(const OlePicture& other) const { return Object() == other.Object(); }

    // Lent; 0 when there is none. Its lower 32 bits tell it from other handles: the object knows no more, and those
    // above need not be as the handle had them that the picture was made of.
    HGDIOBJ Handle() const;
    std::int16_t Type() const;
    // In hundredths of a millimetre; 0 when there is no picture.
    std::int32_t Width() const;
    std::int32_t Height() const;

    // The bytes of a file with this picture; empty when there is none or the platform cannot save it.
    std::string Save() const;

    // The object itself, lent.
    IPicture* Object() const { return m_picture.Get(); }

private:
    ComReference<IPicture> m_picture;
};

} // namespace orvanta
