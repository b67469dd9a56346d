#include "tests/reference/PlainText.h"

namespace orvanta::reference {

bool StartsWith(const std::u16string& text, const std::u16string& start) {
    return text.size() >= start.size() && text.substr(0, start.size()) == start;
}

bool Contains(const std::u16string& text, const std::u16string& part) {
    return text.find(part) != std::u16string::npos;
}

std::u16string Left(const std::u16string& text, std::size_t count) {
    return text.substr(0, count);
}

std::u16string TrimStart(const std::u16string& text) {
    std::size_t first = 0;
    while (first < text.size() && text[first] == u' ')
        ++first;
    return text.substr(first);
}

std::u16string Trim(const std::u16string& text) {
    std::u16string trimmed = TrimStart(text);
    while (!trimmed.empty() && trimmed.back() == u' ')
        trimmed.pop_back();
    return trimmed;
}

std::u16string Lower(const std::u16string& text) {
    std::u16string lower;
    for (const char16_t unit : text) {
        if (unit >= u'A' && unit <= u'Z')
            lower += static_cast<char16_t>(unit - u'A' + u'a');
        else
            lower += unit;
    }
    return lower;
}

std::u16string ReplaceAll(const std::u16string& text, const std::u16string& find, const std::u16string& by) {
    if (find.empty()) return text;
    std::u16string replaced;
    std::size_t from = 0;
    while (true) {
        const std::size_t at = text.find(find, from);
        if (at == std::u16string::npos) return replaced + text.substr(from);
        replaced += text.substr(from, at - from) + by;
        from = at + find.size();
    }
}

PlainLines SplitAt(const std::u16string& text, const std::u16string& separator) {
    PlainLines pieces;
    if (text.empty()) return pieces;
    std::size_t from = 0;
    while (true) {
        const std::size_t at = text.find(separator, from);
        if (at == std::u16string::npos) {
            pieces.push_back(text.substr(from));
            return pieces;
        }
        pieces.push_back(text.substr(from, at - from));
        from = at + separator.size();
    }
}

std::u16string JoinLines(const PlainLines& lines) {
    std::u16string text;
    for (const std::u16string& line : lines) {
        text += line;
        text += u"\r\n";
    }
    return text;
}

PlainLogRow LogRow(const std::u16string& rowText, std::size_t columns, int fore, int back) {
    PlainLogRow row{SplitAt(rowText, u"\t"), fore, back};
    row.cells.resize(columns);
    return row;
}

} // namespace orvanta::reference
