#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta {

// How ReplaceString compares: code unit by code unit, or with upper and lower case alike.
enum class CompareMode { Binary, Text };

// Collects text piece by piece. The value is the long part followed by the recent part; a piece goes onto the recent
// part, which is folded into the long one when it has grown: short pieces fold at 1,024 code units, long ones at 8,192.
class cStringBuilder2 {
public:
    std::size_t Length() const { return m_sMain.size() + m_sTail.size(); }
    std::u16string ToString() const;
    void TheString(std::u16string_view sThis);

    void Append(std::u16string_view sThis);
    void AppendWithNewLine(std::u16string_view sThis);
    // Replaces every occurrence, searched from left to right behind the previous one. An empty sFind changes nothing.
    void ReplaceString(std::u16string_view sFind, std::u16string_view sReplace, CompareMode Compare);

private:
    friend struct cStringBuilder2Parts; // the tests measure the two parts

    std::u16string m_sMain;
    std::u16string m_sTail;
};

} // namespace orvanta
