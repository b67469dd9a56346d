#include "drawing/OleFont.h"

#include "base/Rounding.h"
#include "plumbing/WideText.h"

#include <olectl.h>

namespace orvanta {

namespace {

// Sizes are stored with four decimals.
constexpr double kSizeUnit = 10000;

CY SizeInUnits(double dSize) {
    CY size;
    size.int64 = static_cast<LONGLONG>(RoundHalfEven(dSize * kSizeUnit));
    return size;
}

} // namespace

OleFont OleFont::Create(const std::u16string& sName, double dSize) {
    std::u16string sOwnName = sName;
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = WideBuffer(sOwnName);
    description.cySize = SizeInUnits(dSize);
    description.sWeight = FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    ComReference<IFont> font;
    OleCreateFontIndirect(&description, IID_IFont, font.ReceiveVoid());
    return OleFont(std::move(font));
}

std::u16string OleFont::Name() const {
    BSTR name = nullptr;
    if (!m_font || FAILED(m_font->get_Name(&name)) || !name) return {};
    std::u16string sName = TextOfWide(name, SysStringLen(name));
    SysFreeString(name);
    return sName;
}

void OleFont::Name(const std::u16string& sName) {
    if (!m_font) return;
    BSTR name = SysAllocStringLen(WideOf(sName), static_cast<UINT>(sName.size()));
    m_font->put_Name(name);
    SysFreeString(name);
}

double OleFont::Size() const {
    CY size{};
    if (m_font) m_font->get_Size(&size);
    return static_cast<double>(size.int64) / kSizeUnit;
}

void OleFont::Size(double dSize) {
    if (m_font) m_font->put_Size(SizeInUnits(dSize));
}

std::int16_t OleFont::Weight() const {
    SHORT iWeight = 0;
    if (m_font) m_font->get_Weight(&iWeight);
    return iWeight;
}

void OleFont::Weight(std::int16_t iWeight) {
    if (m_font) m_font->put_Weight(iWeight);
}

HFONT OleFont::hFont() const {
    HFONT font = nullptr;
    if (m_font) m_font->get_hFont(&font);
    return font;
}

OleFont OleFont::Clone() const {
    ComReference<IFont> copy;
    if (m_font) m_font->Clone(copy.Receive());
    return OleFont(std::move(copy));
}

bool OleFont::IsEqual(const OleFont& other) const {
    if (!m_font || !other.m_font) return !m_font && !other.m_font;
    return m_font->IsEqual(other.m_font.Get()) == S_OK;
}

bool OleFont::Flag(HRESULT (STDMETHODCALLTYPE IFont::*get)(BOOL*)) const {
    BOOL b = FALSE;
    if (m_font) (m_font.Get()->*get)(&b);
    return b != FALSE;
}

void OleFont::Flag(HRESULT (STDMETHODCALLTYPE IFont::*put)(BOOL), bool b) {
    if (m_font) (m_font.Get()->*put)(b ? TRUE : FALSE);
}

} // namespace orvanta
