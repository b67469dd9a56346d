#include "engine/BeginWords.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <array>
#include <cstddef>

namespace orvanta {

namespace {

// The words at 1 and 2, as many as there are; the word at 0 is "Begin".
struct Words {
    std::array<std::u16string_view, 2> words;
    std::size_t nCount = 0;

    explicit Words(std::u16string_view s) {
        std::size_t nBlank = s.find(u' ');
        while (nBlank != std::u16string_view::npos && nCount < words.size()) {
            s.remove_prefix(nBlank + 1);
            nBlank = s.find(u' ');
            words[nCount++] = s.substr(0, nBlank);
        }
    }
};

} // namespace

void BeginWords::Take(std::u16string_view sLine, RunLog& log) {
    const Words found(TrimBlanks(sLine));
    const auto take = [&](std::size_t nWord, std::u16string& sWord) {
        log.Step([&] {
            if (nWord >= found.nCount) throw SubscriptOutOfRange();
            sWord = found.words[nWord];
        });
    };
    take(0, m_sType);
    take(1, m_sName);
}

} // namespace orvanta
