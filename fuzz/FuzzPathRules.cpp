// Arbitrary text as a path: the parts of a path fit together, what is normalized stays as it is, and only failures that
// the rules name are raised.
#include "base/Failure.h"
#include "files/PathRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

using namespace orvanta;

namespace {

void Require(bool bHolds) {
    if (!bHolds) std::abort();
}

void CheckLocalPath(const std::u16string& s) {
    const std::u16string sNone = ufu_NoBackSlash(s);
    Require(s.starts_with(sNone) && (sNone.empty() || sNone.back() != u'\\'));
    Require(ufu_OneBackSlash(s) == (sNone.empty() ? u"" : sNone + u'\\'));
    Require(s.starts_with(ufu_FilePath(s, true)) && ufu_NoBackSlash(ufu_FilePath(s, true)) == ufu_FilePath(s, false));

    const PathLevels levels = SplitPathLevels(s);
    std::u16string sAgain = levels.sPrefix;
    for (const std::u16string& sPart : levels.vParts) {
        Require(!sPart.empty() && !ufu_IsLocalPath(sPart));
        sAgain += sPart + u'\\';
    }
    Require((s + u'\\').starts_with(sAgain));
}

void CheckName(const std::u16string& s) {
    const std::u16string sName = ufu_FileName(s);
    const std::u16string sExt = ufu_FileExt(s);
    const std::u16string sBare = ufu_FileNameNoExt(s);
    Require(!ufu_IsLocalPath(sName) && !ufu_IsWebPath(sName) && sName.ends_with(sExt) && sName.starts_with(sBare));
    Require(IsLinkUrl(s) || !IsFileUrl(s));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::u16string s(size / 2, u'\0');
    if (!s.empty()) std::memcpy(s.data(), data, s.size() * 2);
    try {
        if (!ufu_IsWebPath(s)) CheckLocalPath(s);
        if (!ufu_IsLocalPath(s)) Require(ufu_OneSlashWeb(s).size() <= s.size() + 1);
        ArgumentsOfCommandLine(s.empty() ? u" " : s + u' ');
        CheckName(s);
    } catch (const Failure& failure) {
        Require(failure.Number() == Overflow().Number() && s.size() > 32767);
    }
    return 0;
}
