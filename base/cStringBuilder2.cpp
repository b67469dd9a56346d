#include "base/cStringBuilder2.h"

#include "base/Text.h"

namespace orvanta {

namespace {

constexpr std::size_t kShortPiece = 1024;
constexpr std::size_t kFoldForShort = 1024;
constexpr std::size_t kFoldForLong = 8192;

} // namespace

std::u16string cStringBuilder2::ToString() const {
    std::u16string sAll;
    sAll.reserve(Length());
    sAll.append(m_sMain).append(m_sTail);
    return sAll;
}

void cStringBuilder2::TheString(std::u16string_view sThis) {
    m_sMain.assign(sThis);
    m_sTail.clear();
}

void cStringBuilder2::Append(std::u16string_view sThis) {
    const std::size_t nFold = sThis.size() <= kShortPiece ? kFoldForShort : kFoldForLong;
    if (m_sTail.size() >= nFold) {
        m_sMain.append(m_sTail).append(sThis);
        m_sTail.clear();
    } else {
        m_sTail.append(sThis);
    }
}

void cStringBuilder2::AppendWithNewLine(std::u16string_view sThis) {
    std::u16string sLine;
    sLine.reserve(sThis.size() + 2);
    Append(sLine.append(sThis).append(u"\r\n"));
}

void cStringBuilder2::ReplaceString(std::u16string_view sFind, std::u16string_view sReplace, CompareMode Compare) {
    const std::u16string sAll = ToString();
    TheString(Compare == CompareMode::Binary ? ReplaceAll(sAll, sFind, sReplace)
                                             : ReplaceAllTextCompare(sAll, sFind, sReplace));
}

} // namespace orvanta
