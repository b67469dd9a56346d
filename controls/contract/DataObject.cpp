#include "controls/contract/DataObject.h"

#include <utility>

namespace orvanta {

void DataObject::Clear() {
    m_formats.clear();
}

void DataObject::SetText(std::u16string_view s, std::int16_t iFormat) {
    m_formats[iFormat] = Content{std::u16string(s), {}, {}};
}

void DataObject::SetFiles(std::vector<std::u16string> files) {
    m_formats[kFormatFiles] = Content{{}, std::move(files), {}};
}

void DataObject::SetBytes(PropertyBytes bytes, std::int16_t iFormat) {
    m_formats[iFormat] = Content{{}, {}, std::move(bytes)};
}

void DataObject::SetFormat(std::int16_t iFormat) {
    m_formats[iFormat] = std::nullopt;
}

std::u16string DataObject::GetText(std::int16_t iFormat) const {
    const std::optional<Content> content = Fetch(iFormat);
    return content ? content->sText : std::u16string();
}

std::vector<std::u16string> DataObject::Files() const {
    const std::optional<Content> content = Fetch(kFormatFiles);
    return content ? content->files : std::vector<std::u16string>();
}

PropertyBytes DataObject::GetBytes(std::int16_t iFormat) const {
    const std::optional<Content> content = Fetch(iFormat);
    return content ? content->bytes : PropertyBytes();
}

std::vector<std::int16_t> DataObject::Formats() const {
    std::vector<std::int16_t> formats;
    formats.reserve(m_formats.size());
    for (const auto& [iFormat, content] : m_formats)
        formats.push_back(iFormat);
    return formats;
}

std::optional<DataObject::Content> DataObject::Fetch(std::int16_t iFormat) const {
    std::optional<Content> content = Stored(iFormat);
    if (content || !GetFormat(iFormat) || !m_source) return content;
    // A copy, for who brings the data may replace it.
    const Source source = m_source;
    return source(iFormat);
}

std::optional<DataObject::Content> DataObject::Stored(std::int16_t iFormat) const {
    const auto found = m_formats.find(iFormat);
    return found == m_formats.end() ? std::nullopt : found->second;
}

} // namespace orvanta
