#include "controls/contract/ObjectValues.h"

#include "base/Failure.h"

namespace orvanta {

namespace {

class PictureValue final : public PropertyObject, public std::enable_shared_from_this<PictureValue> {
public:
    explicit PictureValue(OlePicture picture) : m_picture(std::move(picture)) {}

    const OlePicture& Picture() const { return m_picture; }

    bool IsEqual(const PropertyObject& other) const override {
        const auto* picture = dynamic_cast<const PictureValue*>(&other);
        return picture && picture->m_picture == m_picture;
    }
    std::shared_ptr<const PropertyObject> Kept() const override { return shared_from_this(); }

private:
    OlePicture m_picture;
};

class FontValue final : public PropertyObject {
public:
    explicit FontValue(OleFont font) : m_font(std::move(font)) {}

    const OleFont& Font() const { return m_font; }

    bool IsEqual(const PropertyObject& other) const override {
        const auto* font = dynamic_cast<const FontValue*>(&other);
        return font && font->m_font.IsEqual(m_font);
    }
    std::shared_ptr<const PropertyObject> Kept() const override { return std::make_shared<FontValue>(m_font.Clone()); }

private:
    OleFont m_font;
};

} // namespace

PropertyValue PropertyKind<OlePicture>::Make(const OlePicture& picture) {
    if (picture.IsEmpty()) return {};
    return PropertyValue(std::make_shared<PictureValue>(picture));
}

OlePicture PropertyKind<OlePicture>::Take(const PropertyValue& value) {
    const std::shared_ptr<const PropertyObject> object = value.ObjectOrNone();
    if (!object) return {};
    const auto* picture = dynamic_cast<const PictureValue*>(object.get());
    if (!picture) throw TypeMismatch();
    return picture->Picture();
}

PropertyValue PropertyKind<OleFont>::Make(const OleFont& font) {
    if (font.IsEmpty()) return {};
    return PropertyValue(std::make_shared<FontValue>(font));
}

OleFont PropertyKind<OleFont>::Take(const PropertyValue& value) {
    const std::shared_ptr<const PropertyObject> object = value.ObjectOrNone();
    if (!object) return {};
    const auto* font = dynamic_cast<const FontValue*>(object.get());
    if (!font) throw TypeMismatch();
    return font->Font();
}

} // namespace orvanta
