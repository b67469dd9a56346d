#include "gallery/ValueText.h"

#include "base/Failure.h"
#include "base/ResumeNext.h"
#include "base/Text.h"
#include "controls/contract/ObjectValues.h"
#include "gallery/SamplePictures.h"

#include <optional>

namespace orvanta::gallery {

namespace {

std::u16string HexText(std::uint32_t n) {
    std::u16string s = u"0x";
    for (int shift = 28; shift >= 0; shift -= 4)
        s.push_back(u"0123456789ABCDEF"[n >> shift & 15]);
    return s;
}

std::optional<std::int32_t> HexNumber(std::u16string_view s) {
    if (!s.starts_with(u"0x") || s.size() < 3 || s.size() > 10) return std::nullopt;
    std::uint32_t n = 0;
    for (const char16_t c : s.substr(2)) {
        const std::size_t digit = std::u16string_view(u"0123456789abcdef").find(LowerAscii(c));
        if (digit == std::u16string_view::npos) return std::nullopt;
        n = n << 4 | static_cast<std::uint32_t>(digit);
    }
    return static_cast<std::int32_t>(n);
}

std::optional<OleFont> FontOf(const PropertyValue& value) {
    std::optional<OleFont> font;
    if (value.IsObject()) {
        ResumeNext([](const Failure&) {}, [&] { font = PropertyKind<OleFont>::Take(value); });
    }
    return font;
}

bool IsSampleName(std::u16string_view s) {
    for (const std::u16string& sName : SampleNames()) {
        if (sName == s) return true;
    }
    return false;
}

} // namespace

std::u16string TextOfValue(const PropertyValue& value) {
    if (const auto font = FontOf(value)) {
        return Concat({font->Name(), u", ", TaggedValue(font->Size()).ToText()});
    }
    if (value.IsObject()) return u"(picture)";
    if (value.IsBytes()) return u"(bytes)";
    const TaggedValue& plain = value.Plain();
    if (plain.IsInteger() && (plain.ToInteger() < -1 || plain.ToInteger() > 0xFFFF)) {
        return HexText(static_cast<std::uint32_t>(plain.ToInteger()));
    }
    return ReplaceAll(plain.ToText(), u"\r\n", u"\\n");
}

PropertyValue ValueOfText(std::u16string_view s, const PropertyValue& present) {
    if (FontOf(present)) {
        const std::size_t nComma = s.rfind(u',');
        if (nComma == std::u16string_view::npos) throw TypeMismatch();
        const std::u16string sName(TrimBlanks(s.substr(0, nComma)));
        const double dSize = TaggedValue(TrimBlanks(s.substr(nComma + 1))).ToFloat();
        return PropertyKind<OleFont>::Make(OleFont::Create(sName, dSize));
    }
    // A property without a picture holds nothing, as no other does.
    if (present.IsObject() || present.IsNothing()) {
        if (!IsSampleName(s)) throw TypeMismatch();
        return PropertyKind<OlePicture>::Make(SampleByName(s));
    }
    if (const auto number = HexNumber(s)) return *number;
    return ReplaceAll(s, u"\\n", u"\r\n");
}

} // namespace orvanta::gallery
