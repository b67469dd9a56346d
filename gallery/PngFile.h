#pragma once

#include <windows.h>

#include <string>

namespace orvanta::gallery {

// Writes bitmaps to PNG files. One writer for the time of all of them: it starts what the platform needs.
class PngWriter {
public:
    PngWriter();
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter();

    // The bitmap is selected nowhere. False when the file could not be written.
    bool Save(HBITMAP bitmap, const std::u16string& sPath) const;

private:
    ULONG_PTR m_token = 0;
};

} // namespace orvanta::gallery
