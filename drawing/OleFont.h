#pragma once

#include "drawing/ComReference.h"

#include <windows.h>

#include <ocidl.h>

#include <cstdint>
#include <string>

namespace orvanta {

// The platform's font object, or none. Copies share one object: a change is seen by all of them. Of an empty reference
// texts are empty and numbers 0; setting does nothing.
class OleFont {
public:
    OleFont() = default;
    explicit OleFont(ComReference<IFont> font) : m_font(std::move(font)) {}

    // dSize in points. Empty when the platform makes none.
    static OleFont Create(const std::u16string& sName, double dSize);

    bool IsEmpty() const { return !m_font; }
    explicit operator bool() const { return !IsEmpty(); }

    std::u16string Name() const;
    void Name(const std::u16string& sName);
    // In points. The platform may round it to whole pixels.
    double Size() const;
    void Size(double dSize);
    bool Bold() const { return Flag(&IFont::get_Bold); }
    void Bold(bool b) { Flag(&IFont::put_Bold, b); }
    bool Italic() const { return Flag(&IFont::get_Italic); }
    void Italic(bool b) { Flag(&IFont::put_Italic, b); }
    bool Underline() const { return Flag(&IFont::get_Underline); }
    void Underline(bool b) { Flag(&IFont::put_Underline, b); }
    bool Strikethrough() const { return Flag(&IFont::get_Strikethrough); }
    void Strikethrough(bool b) { Flag(&IFont::put_Strikethrough, b); }
    std::int16_t Weight() const;
    void Weight(std::int16_t iWeight);

    // Lent, and only until the font changes or goes.
    HFONT hFont() const;

    // A font of its own with the same properties.
    OleFont Clone() const;
    // True when all properties are equal; two empty references are equal too.
    bool IsEqual(const OleFont& other) const;

    // The object itself, lent.
    IFont* Object() const { return m_font.Get(); }

private:
    bool Flag(HRESULT (STDMETHODCALLTYPE IFont::*get)(BOOL*)) const;
    void Flag(HRESULT (STDMETHODCALLTYPE IFont::*put)(BOOL), bool b);

    ComReference<IFont> m_font;
};

} // namespace orvanta
