#include "files/PathRules.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace orvanta {

namespace {

constexpr std::u16string_view kNotLocal = u"Not a local path";
constexpr std::u16string_view kNotWeb = u"Not a web path";

constexpr std::array<std::u16string_view, 11> kLinkSchemes = {
    u"http://", u"https://",    u"ftp://",     u"gopher://", u"mailto:", u"news:",
    u"telnet:", u"javascript:", u"project://", u"file:///",  u"file://",
};
constexpr std::size_t kFirstFileScheme = 9;

bool BeginsFolded(std::u16string_view s, std::u16string_view sLowerPrefix) {
    return EqualsAsciiFolded(s.substr(0, sLowerPrefix.size()), sLowerPrefix);
}

// A position as the path rules keep it: counted from 1, 0 for "not found", 16 bits wide.
std::int16_t PathPosition(std::size_t nFound) {
    if (nFound == std::u16string_view::npos) return 0;
    if (nFound >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) throw Overflow();
    return static_cast<std::int16_t>(nFound + 1);
}

std::size_t CharactersBefore(std::int16_t iPosition) {
    return static_cast<std::size_t>(iPosition - 1);
}

std::u16string_view WithoutTrailing(std::u16string_view s, char16_t cSeparator) {
    return s.substr(0, s.find_last_not_of(cSeparator) + 1);
}

std::u16string WithOne(std::u16string_view s, char16_t cSeparator) {
    std::u16string sResult(WithoutTrailing(s, cSeparator));
    if (!sResult.empty()) sResult += cSeparator;
    return sResult;
}

} // namespace

bool ufu_IsLocalPath(std::u16string_view s) {
    return s.find(u'\\') != std::u16string_view::npos;
}

bool ufu_IsWebPath(std::u16string_view s) {
    return s.find(u'/') != std::u16string_view::npos;
}

bool IsLinkUrl(std::u16string_view s) {
    return std::any_of(kLinkSchemes.begin(), kLinkSchemes.end(),
                       [s](std::u16string_view sScheme) { return BeginsFolded(s, sScheme); });
}

bool IsFileUrl(std::u16string_view s) {
    return std::any_of(kLinkSchemes.begin() + kFirstFileScheme, kLinkSchemes.end(),
                       [s](std::u16string_view sScheme) { return BeginsFolded(s, sScheme); });
}

std::u16string ufu_NoBackSlash(std::u16string_view s) {
    if (ufu_IsWebPath(s)) throw OwnFailure(u"ufu_NoBackSlash", kNotLocal);
    return std::u16string(WithoutTrailing(s, u'\\'));
}

std::u16string ufu_OneBackSlash(std::u16string_view s) {
    if (ufu_IsWebPath(s)) throw OwnFailure(u"ufu_OneBackSlash", kNotLocal);
    return WithOne(s, u'\\');
}

std::u16string ufu_NoSlashWeb(std::u16string_view s) {
    if (ufu_IsLocalPath(s)) throw OwnFailure(u"ufu_NoSlashWeb", kNotWeb);
    return std::u16string(WithoutTrailing(s, u'/'));
}

std::u16string ufu_OneSlashWeb(std::u16string_view s) {
    if (ufu_IsLocalPath(s)) throw OwnFailure(u"ufu_OneSlashWeb", kNotWeb);
    return WithOne(s, u'/');
}

std::u16string ufu_LocalizePath(std::u16string_view s, bool bRaise) {
    if (IsFileUrl(s)) {
        std::u16string_view sMark = u":///";
        std::int16_t iMark = PathPosition(s.find(sMark));
        if (iMark == 0) {
            sMark = u"://";
            iMark = PathPosition(s.find(sMark));
        }
        s.remove_prefix(CharactersBefore(iMark) + sMark.size());
    } else if (bRaise && IsLinkUrl(s)) {
        throw OwnFailure(u"ufu_LocalizePath", u"Cannot Localize Link!");
    }
    std::u16string sResult(s);
    std::replace(sResult.begin(), sResult.end(), u'/', u'\\');

    // The smaller of two positions, where an absent mark counts as 0: so a lone "?" or "#" keeps its tail.
    const std::int16_t iQuestion = PathPosition(sResult.find(u'?'));
    const std::int16_t iHash = PathPosition(sResult.find(u'#'));
    const std::int16_t iCut = std::min(iQuestion, iHash);
    if (iCut > 0) sResult.resize(CharactersBefore(iCut));

    std::replace(sResult.begin(), sResult.end(), u'|', u':');
    return ReplaceAll(ReplaceAll(sResult, u"%20", u" "), u"&amp;", u"&");
}

std::u16string ufu_FilePath(std::u16string_view sPathFileName, bool bFinalBackSlash) {
    if (ufu_IsWebPath(sPathFileName)) throw OwnFailure(u"ufu_FilePath", kNotLocal);
    const std::int16_t iLast = PathPosition(sPathFileName.rfind(u'\\'));
    const std::u16string_view sFolder = sPathFileName.substr(0, static_cast<std::size_t>(iLast));
    return bFinalBackSlash ? ufu_OneBackSlash(sFolder) : ufu_NoBackSlash(sFolder);
}

std::u16string ufu_FileName(std::u16string_view sPathFileName) {
    std::u16string sName = ufu_LocalizePath(sPathFileName, false);
    sName.erase(0, static_cast<std::size_t>(PathPosition(sName.rfind(u'\\'))));
    return sName;
}

std::u16string ufu_FileExt(std::u16string_view sPathFileName) {
    const std::u16string sPath = ufu_LocalizePath(sPathFileName, false);
    const std::int16_t iDot = PathPosition(sPath.rfind(u'.'));
    const std::int16_t iLast = PathPosition(sPath.rfind(u'\\'));
    if (iDot == 0 || iLast > iDot) return {};
    return sPath.substr(static_cast<std::size_t>(iDot));
}

std::u16string ufu_FileNameNoExt(std::u16string_view sPathFileName) {
    std::u16string sName = ufu_FileName(sPathFileName);
    const std::int16_t iDot = PathPosition(sName.rfind(u'.'));
    if (iDot > 0) sName.resize(CharactersBefore(iDot));
    return sName;
}

PathLevels SplitPathLevels(std::u16string_view sAbsPath) {
    PathLevels levels;
    if (sAbsPath.starts_with(u"\\\\")) {
        const std::int16_t iNext = PathPosition(sAbsPath.find(u'\\', 2));
        const std::size_t nPrefix = iNext > 0 ? static_cast<std::size_t>(iNext) : 2;
        levels.sPrefix = sAbsPath.substr(0, nPrefix);
        sAbsPath.remove_prefix(nPrefix);
    }
    for (std::u16string_view sPart : Split(sAbsPath, u"\\")) {
        if (sPart.empty()) break;
        levels.vParts.emplace_back(sPart);
    }
    return levels;
}

std::u16string ArgumentsOfCommandLine(std::u16string_view sLine) {
    if (sLine.starts_with(u'"')) {
        const std::size_t nClosing = sLine.find(u'"', 1);
        sLine.remove_prefix(nClosing == std::u16string_view::npos ? sLine.size() : nClosing + 1);
    } else {
        const std::size_t nBlank = sLine.find(u' ');
        if (nBlank == std::u16string_view::npos) throw InvalidProcedureCall();
        sLine.remove_prefix(nBlank);
    }
    return std::u16string(TrimBlanksLeft(sLine));
}

} // namespace orvanta
