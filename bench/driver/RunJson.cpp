#include "bench/driver/RunJson.h"

#include "tests/support/Unicode.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string_view>

namespace orvanta::driver {

namespace {

bool IsPlain(char16_t c) {
    return c >= 0x20 && c < 0x80 && c != u'"' && c != u'\\';
}

void AppendText(std::string& sOut, std::u16string_view s) {
    sOut.push_back('"');
    for (std::size_t n = 0; n < s.size();) {
        const std::size_t nStart = n;
        while (n < s.size() && IsPlain(s[n]))
            ++n;
        const std::size_t nOut = sOut.size();
        sOut.resize(nOut + n - nStart);
        std::transform(s.data() + nStart, s.data() + n, sOut.data() + nOut,
                       [](char16_t c) { return static_cast<char>(c); });
        if (n == s.size()) break;
        if (s[n] >= 0x80) {
            std::size_t nEnd = n + 1;
            while (nEnd < s.size() && s[nEnd] >= 0x80)
                ++nEnd;
            sOut.append(testing::ToUtf8(s.substr(n, nEnd - n)));
            n = nEnd;
            continue;
        }
        const char c = static_cast<char>(s[n++]);
        if (c < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
            sOut.append(escape);
        } else {
            sOut.append({'\\', c});
        }
    }
    sOut.push_back('"');
}

template<typename Range, typename AppendItem>
void AppendList(std::string& sOut, const Range& items, AppendItem&& appendItem) {
    const char* sSeparator = "[";
    for (const auto& item : items) {
        sOut.append(sSeparator);
        appendItem(item);
        sSeparator = ",";
    }
    sOut.append(items.empty() ? "[]" : "]");
}

} // namespace

std::string RunJson(bool bResult, const testing::RecordedLog& log, const std::vector<std::u16string>& boxes) {
    std::string sOut(bResult ? "{\"result\":true" : "{\"result\":false");
    const auto appendText = [&sOut](const std::u16string& s) { AppendText(sOut, s); };
    sOut.append(",\n\"columns\":");
    AppendList(sOut, log.Columns(), [&](const testing::RecordedLog::Column& column) { appendText(column.sText); });
    sOut.append(",\n\"rows\":");
    AppendList(sOut, log.Rows(), [&](const testing::RecordedLog::LogRow& row) {
        const testing::RecordedLog::Colors colors = row.ColorsOf(row.cells.size() - 1);
        sOut.append("\n{\"cells\":");
        AppendList(sOut, row.cells, appendText);
        sOut.append(",\"fore\":").append(std::to_string(colors.lFore));
        sOut.append(",\"back\":").append(std::to_string(colors.lBack)).append("}");
    });
    sOut.append(",\n\"boxes\":");
    AppendList(sOut, boxes, appendText);
    return sOut.append("}\n");
}

} // namespace orvanta::driver
