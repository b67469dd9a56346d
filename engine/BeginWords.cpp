#include "engine/BeginWords.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <cstddef>

namespace orvanta {

namespace {

std::u16string_view Word(std::u16string_view s, std::size_t nWord) {
    for (; nWord > 0; --nWord) {
        const std::size_t nBlank = s.find(u' ');
        if (nBlank == std::u16string_view::npos) throw SubscriptOutOfRange();
        s.remove_prefix(nBlank + 1);
    }
    return s.substr(0, s.find(u' '));
}

} // namespace

void BeginWords::Take(std::u16string_view sLine, RunLog& log) {
    const std::u16string_view sTrimmed = TrimBlanks(sLine);
    log.Step([&] { m_sType = Word(sTrimmed, 1); });
    log.Step([&] { m_sName = Word(sTrimmed, 2); });
}

} // namespace orvanta
