#include "gallery/PngFile.h"

#include "plumbing/WideText.h"

#include <algorithm>

#include <objidl.h>

namespace Gdiplus {
// The platform's header takes these for granted.
using std::max; // NOLINT(misc-unused-using-decls)
using std::min; // NOLINT(misc-unused-using-decls)
} // namespace Gdiplus
#include <gdiplus.h>

namespace orvanta::gallery {

namespace {

// The platform's PNG encoder.
constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

} // namespace

PngWriter::PngWriter() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
}

PngWriter::~PngWriter() {
    if (m_token) Gdiplus::GdiplusShutdown(m_token);
}

bool PngWriter::Save(HBITMAP bitmap, const std::u16string& sPath) const {
    if (!m_token) return false;
    Gdiplus::Bitmap image(bitmap, nullptr);
    return image.Save(WideOf(sPath), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

} // namespace orvanta::gallery
