#pragma once

#include "engine/RunLog.h"

#include <string>
#include <string_view>

namespace orvanta {

// The type and the name that a `Begin ` line gives. The line is trimmed and split at each single blank, so several
// blanks in a row make empty words, and a name behind two blanks is empty. A word that is missing fails in the run's
// trap ("Subscript out of range", a box for each), and the value of the last line of the file that had the word stays.
class BeginWords {
public:
    void Take(std::u16string_view sLine, RunLog& log);

    const std::u16string& Type() const { return m_sType; }
    const std::u16string& Name() const { return m_sName; }

private:
    std::u16string m_sType;
    std::u16string m_sName;
};

} // namespace orvanta
