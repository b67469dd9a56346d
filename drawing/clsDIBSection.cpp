#include "drawing/clsDIBSection.h"

#include "base/Failure.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <unordered_map>
#include <utility>

namespace orvanta {

namespace {

static_assert(sizeof(PaletteEntry) == sizeof(RGBQUAD));

std::unordered_map<HDC, const clsDIBSection*>& LivingSections() {
    static std::unordered_map<HDC, const clsDIBSection*> sections;
    return sections;
}

std::int32_t ScanLineBytes(std::int32_t Width, std::int32_t Bpp) {
    const std::int64_t lBytes = (std::int64_t{Width} * Bpp + 31) / 32 * 4;
    if (lBytes > INT32_MAX) throw Overflow();
    return static_cast<std::int32_t>(lBytes);
}

void RequirePalette(std::int32_t Bpp, const PaletteReference& cPal) {
    if (!cPal && Bpp >= 1 && Bpp < 24) throw OwnFailure(u"clsDIBSection", u"Palette is required!");
}

} // namespace

clsDIBSection::clsDIBSection() {
    // Made before the first section, the list outlives all of them, static ones too.
    LivingSections();
}

std::size_t clsDIBSection::RecordIndex(std::int32_t Bpp) {
    return Bpp == 1 ? 0 : Bpp == 4 ? 1 : Bpp == 8 ? 2 : 3;
}

std::size_t clsDIBSection::TableSize(std::int32_t Bpp) {
    return Bpp == 1 ? 2 : Bpp == 4 ? 16 : Bpp == 8 ? 256 : 0;
}

void clsDIBSection::CreateDC(std::int32_t Width, std::int32_t Height, std::int32_t Bpp, PaletteReference& cPal) {
    constexpr std::u16string_view kMember = u"CreateDC";
    Destroy();
    // Not 1, as a clsMEMDC has it.
    if (Width < 0) Width = 2;
    if (Height < 0) Height = 2;
    m_lBpp = Bpp;
    const WindowDc desktop(GetDesktopWindow());
    if (!m_surface.MakeDc(desktop.Get())) FailSurface(kMember, u"HDC not created");

    InfoRecord& record = RecordOf(Bpp);
    record.header = {};
    record.header.biSize = sizeof record.header;
    record.header.biWidth = Width;
    record.header.biHeight = Height;
    record.header.biPlanes = 1;
    record.header.biBitCount = static_cast<WORD>(Bpp);
    record.header.biCompression = BI_RGB;
    const std::int64_t lImageBytes = std::int64_t{ScanLineBytes(Width, Bpp)} * Height;
    if (lImageBytes > INT32_MAX) throw Overflow();
    record.header.biSizeImage = static_cast<DWORD>(lImageBytes);
    FillColorTable(cPal);

    static_assert(offsetof(InfoRecord, colors) == offsetof(BITMAPINFO, bmiColors));
    void* bits = nullptr;
    OwnedBitmap bitmap(
        CreateDIBSection(Hdc(), reinterpret_cast<const BITMAPINFO*>(&record), DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap) FailSurface(kMember, u"hDib not created");
    m_bits = static_cast<std::uint8_t*>(bits);
    if (!m_surface.SelectBitmap(std::move(bitmap))) FailSurface(kMember, u"DIB not selected");
    SetStretchBltMode(Hdc(), COLORONCOLOR);
    LivingSections()[Hdc()] = this;
}

void clsDIBSection::FillColorTable(PaletteReference& cPal) {
    const std::size_t nTable = TableSize(m_lBpp);
    if (nTable == 0) return;
    if (!cPal) {
        cPal = std::make_shared<clsPalette>();
        switch (m_lBpp) {
        case 1: cPal->CreateMono2(); break;
        case 4: cPal->Create16(); break;
        default: cPal->CreateHalfTone256(); break;
        }
    }
    const auto entries = cPal->Entries();
    std::memcpy(RecordOf(m_lBpp).colors.data(), entries.data(), (std::min)(nTable, entries.size()) * sizeof(RGBQUAD));
}

void clsDIBSection::CreateDC(std::int32_t Width, std::int32_t Height, std::int32_t Bpp) {
    PaletteReference none;
    CreateDC(Width, Height, Bpp, none);
}

void clsDIBSection::CloneFromDib(const clsDIBSection& oDib, std::int32_t Bpp) {
    PaletteReference cPal = oDib.Palette();
    CreateDC(oDib.Width(), oDib.Height(), Bpp < 0 ? oDib.Bpp() : Bpp, cPal);
    oDib.PaintPicture(Hdc(), 0, 0);
}

void clsDIBSection::CloneFromHBmp(HBITMAP hBmp, std::int32_t Bpp, PaletteReference& cPal) {
    RequirePalette(Bpp, cPal);
    const BITMAP record = BitmapRecordOf(hBmp);
    CreateDC(record.bmWidth, record.bmHeight, Bpp == -1 ? record.bmBitsPixel : Bpp, cPal);
    CopyBitmapTo(Hdc(), hBmp, Width(), Height());
}

void clsDIBSection::CloneFromHBmp(HBITMAP hBmp, std::int32_t Bpp) {
    PaletteReference none;
    CloneFromHBmp(hBmp, Bpp, none);
}

void clsDIBSection::CloneFromHdc(HDC lHdc, std::int32_t Bpp, PaletteReference& cPal, std::int32_t lSrcLeft,
                                 std::int32_t lSrcTop, std::int32_t lSrcWidth, std::int32_t lSrcHeight,
                                 std::uint32_t eRop) {
    RequirePalette(Bpp, cPal);
    if (Bpp == -1 || lSrcWidth < 1 || lSrcHeight < 1) {
        const BITMAP record = BitmapRecordOfDc(lHdc);
        if (lSrcWidth < 1 || lSrcHeight < 1) {
            lSrcWidth = record.bmWidth;
            lSrcHeight = record.bmHeight;
        }
        if (Bpp == -1) Bpp = record.bmBitsPixel;
    }
    CreateDC(lSrcWidth, lSrcHeight, Bpp, cPal);
    BitBlt(Hdc(), 0, 0, Width(), Height(), lHdc, lSrcLeft, lSrcTop, eRop);
}

void clsDIBSection::CloneFromHdc(HDC lHdc, std::int32_t Bpp, std::int32_t lSrcLeft, std::int32_t lSrcTop,
                                 std::int32_t lSrcWidth, std::int32_t lSrcHeight, std::uint32_t eRop) {
    PaletteReference none;
    CloneFromHdc(lHdc, Bpp, none, lSrcLeft, lSrcTop, lSrcWidth, lSrcHeight, eRop);
}

void clsDIBSection::Destroy() {
    if (Hdc()) LivingSections().erase(Hdc());
    m_bits = nullptr;
    m_surface.Destroy();
}

void clsDIBSection::PaintPicture(HDC lHdc, std::int32_t lDestLeft, std::int32_t lDestTop, std::int32_t lDestWidth,
                                 std::int32_t lDestHeight, std::int32_t lSrcLeft, std::int32_t lSrcTop,
                                 std::int32_t lSrcWidth, std::int32_t lSrcHeight, std::uint32_t eRop) const {
    m_surface.Paint(lHdc, {lDestLeft, lDestTop, lDestWidth, lDestHeight}, {lSrcLeft, lSrcTop, lSrcWidth, lSrcHeight},
                    eRop, Width(), Height());
}

HBITMAP clsDIBSection::ReleasehDib() {
    if (Hdc()) LivingSections().erase(Hdc());
    m_bits = nullptr;
    return m_surface.ReleaseBitmap();
}

std::int32_t clsDIBSection::BytesPerScanLine() const {
    return ScanLineBytes(Width(), m_lBpp);
}

PixelBits clsDIBSection::Pixels() const {
    return {m_bits, Width(), Height(), static_cast<std::size_t>(BytesPerScanLine())};
}

PaletteReference clsDIBSection::Palette() const {
    const std::size_t nTable = TableSize(m_lBpp);
    if (nTable == 0) return {};
    auto cPal = std::make_shared<clsPalette>();
    for (std::size_t n = 0; n < nTable; ++n) {
        const RGBQUAD& color = RecordOf(m_lBpp).colors[n];
        cPal->Add(color.rgbRed, color.rgbGreen, color.rgbBlue);
    }
    return cPal;
}

OlePicture clsDIBSection::Picture() {
    if (!hDib()) return {};
    return OlePicture::OfBitmap(ReleasehDib());
}

const clsDIBSection* clsDIBSection::OfHdc(HDC lHdc) {
    const auto found = LivingSections().find(lHdc);
    return found == LivingSections().end() ? nullptr : found->second;
}

} // namespace orvanta
