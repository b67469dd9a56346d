#pragma once

#include "controls/contract/PropertyValue.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// The formats that have a form of their own in a DataObject, by the platform's numbers. All others are plain bytes.
inline constexpr std::int16_t kFormatText = 1;         // text in the ANSI code page on the wire
inline constexpr std::int16_t kFormatUnicodeText = 13; // UTF-16
inline constexpr std::int16_t kFormatFiles = 15;       // full paths of files

// What can happen with dragged data: a combination of these.
inline constexpr std::int32_t kDropNone = 0;
inline constexpr std::int32_t kDropCopy = 1;
inline constexpr std::int32_t kDropMove = 2;
inline constexpr std::int32_t kDropScroll = static_cast<std::int32_t>(0x80000000u);

// The values of State in OLEDragOver.
inline constexpr std::int16_t kDragEnter = 0;
inline constexpr std::int16_t kDragLeave = 1;
inline constexpr std::int16_t kDragOver = 2;

// The data of a drag: at the source what the handlers of OLEStartDrag and OLESetData put in, at the target what came.
// A format can be promised without data: who asks for it then brings about OLESetData at the source.
class DataObject {
public:
    // Text, files or bytes, as the format says.
    struct Content {
        std::u16string sText;
        std::vector<std::u16string> files;
        PropertyBytes bytes;
    };
    // Brings the data of a format that is promised or comes from outside; nothing when there is none.
    using Source = std::function<std::optional<Content>(std::int16_t iFormat)>;

    void Clear();

    // With the format's own form; SetText takes kFormatText or kFormatUnicodeText.
    void SetText(std::u16string_view s, std::int16_t iFormat = kFormatUnicodeText);
    void SetFiles(std::vector<std::u16string> files);
    void SetBytes(PropertyBytes bytes, std::int16_t iFormat);
    // Promises a format.
    void SetFormat(std::int16_t iFormat);

    bool GetFormat(std::int16_t iFormat) const { return m_formats.contains(iFormat); }
    // Empty when there is no such data.
    std::u16string GetText(std::int16_t iFormat = kFormatUnicodeText) const;
    std::vector<std::u16string> Files() const;
    PropertyBytes GetBytes(std::int16_t iFormat) const;

    // For hosts. Fetch answers nothing for a format that is not here, or that nobody can bring.
    std::vector<std::int16_t> Formats() const;
    std::optional<Content> Fetch(std::int16_t iFormat) const;
    // The same without asking anybody.
    std::optional<Content> Stored(std::int16_t iFormat) const;
    void BringsPromised(Source source) { m_source = std::move(source); }

private:
    std::map<std::int16_t, std::optional<Content>> m_formats;
    Source m_source;
};

} // namespace orvanta
