#include "controls/hosting/HostShape.h"

#include "plumbing/GdiOwner.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace orvanta {

namespace {

// The pixels of a bitmap, rows from the top, 0x00RRGGBB. Empty for a handle that is no bitmap.
std::vector<std::uint32_t> PixelsOf(HBITMAP bitmap, std::int32_t& width) {
    BITMAP record{};
    if (GetObjectW(bitmap, sizeof record, &record) == 0 || record.bmWidth < 1 || record.bmHeight < 1) return {};
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = record.bmWidth;
    info.bmiHeader.biHeight = -record.bmHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(record.bmWidth) *
                                      static_cast<std::size_t>(record.bmHeight));
    const WindowDc screen(nullptr);
    const auto lRows = static_cast<UINT>(record.bmHeight);
    if (GetDIBits(screen.Get(), bitmap, 0, lRows, pixels.data(), &info, DIB_RGB_COLORS) == 0) return {};
    width = record.bmWidth;
    return pixels;
}

OwnedRegion RegionOf(const std::vector<MaskRect>& rects) {
    if (rects.empty()) return OwnedRegion(CreateRectRgn(0, 0, 0, 0));
    const std::size_t nBytes = rects.size() * sizeof(RECT);
    std::vector<std::byte> memory(sizeof(RGNDATAHEADER) + nBytes);
    auto* data = reinterpret_cast<RGNDATA*>(memory.data());
    RGNDATAHEADER& header = data->rdh;
    header.dwSize = sizeof header;
    header.iType = RDH_RECTANGLES;
    header.nCount = static_cast<DWORD>(rects.size());
    header.nRgnSize = static_cast<DWORD>(nBytes);
    header.rcBound = {rects.front().left, rects.front().top, rects.front().right, rects.back().bottom};
    auto* target = reinterpret_cast<RECT*>(data->Buffer);
    for (const MaskRect& rect : rects) {
        header.rcBound.left = std::min<LONG>(header.rcBound.left, rect.left);
        header.rcBound.right = std::max<LONG>(header.rcBound.right, rect.right);
        *target++ = {rect.left, rect.top, rect.right, rect.bottom};
    }
    return OwnedRegion(ExtCreateRegion(nullptr, static_cast<DWORD>(memory.size()), data));
}

// 0x00BBGGRR to 0x00RRGGBB.
std::uint32_t PixelOf(OleColor c) {
    const auto lColor = static_cast<std::uint32_t>(ResolveColor(c));
    return (lColor & 0xFF) << 16 | (lColor & 0xFF00) | (lColor >> 16 & 0xFF);
}

} // namespace

void HostShape::MaskPicture(const OlePicture& picture) {
    m_mask.reset();
    if (picture.Type() != OlePicture::kTypeBitmap) return;
    std::int32_t width = 0;
    const std::vector<std::uint32_t> pixels = PixelsOf(static_cast<HBITMAP>(picture.Handle()), width);
    if (!pixels.empty()) m_mask = VisibleRects(pixels, width, PixelOf(m_lMaskColor));
}

void HostShape::Apply(HWND window, bool bTransparent) {
    if (!window) return;
    const std::optional<Rects> shape = bTransparent ? m_mask : std::nullopt;
    if (shape == m_applied) return;
    // The window takes the region over when it takes it at all.
    OwnedRegion region = shape ? RegionOf(*shape) : OwnedRegion();
    if (shape && !region) return;
    if (SetWindowRgn(window, region.Get(), TRUE) == 0) return;
    region.Release();
    m_applied = shape;
}

bool HostShape::Open(HWND window) {
    if (!m_applied || !m_applied->empty()) return false;
    Apply(window, false);
    return true;
}

} // namespace orvanta
