#include "engine/ProjectIntake.h"

#include "base/Text.h"
#include "files/PathRules.h"

#include <cstddef>

namespace orvanta {

namespace {

bool NamesLibrary(std::u16string_view sLine) {
    return LowerAscii(sLine).find(u"orvanta") != std::u16string_view::npos;
}

} // namespace

void ReadProject(EngineWorld& world, std::u16string_view sPathFileName, Collection<std::u16string>& oCollRelFiles,
                 bool& bLibraryReferenced) {
    oCollRelFiles.Clear();
    bLibraryReferenced = false;
    std::u16string sText;
    if (!world.st_FileExist(sPathFileName) || !world.st_TextFileToString(sPathFileName, sText, false)) return;
    for (const std::u16string_view sLine : Split(sText, u"\r\n")) {
        if (sLine.starts_with(u"UserControl=") || sLine.starts_with(u"Form=")) {
            oCollRelFiles.Add(ResolveProjectPath(sPathFileName, sLine.substr(sLine.find(u'=') + 1)));
        } else if (NamesLibrary(sLine)) {
            bLibraryReferenced = true;
        }
    }
}

std::u16string ResolveProjectPath(std::u16string_view sProjectPathFileName, std::u16string_view sRelPath) {
    std::u16string s = NormalizePath(sRelPath);
    if (s.size() >= 2 && s[1] == u':') return s;
    if (s.empty()) return CollapseDots(ufu_FilePath(sProjectPathFileName, false));
    return CollapseDots(ufu_FilePath(sProjectPathFileName, true) + s);
}

std::u16string NormalizePath(std::u16string_view sPath) {
    std::u16string s(sPath);
    if (LowerAscii(s).find(u"file://") != std::u16string_view::npos) s.erase(0, s.find(u"://") + 3);
    s = ReplaceAll(s, u"/", u"\\");
    s = ReplaceAll(s, u"|", u":");
    s = ReplaceAll(s, u"%20", u" ");
    s = ReplaceAll(s, u"\\\\", u"\\");
    if (s.size() >= 2 && s.front() == u'\\') s.erase(0, 1);
    return s;
}

std::u16string CollapseDots(std::u16string_view sPath) {
    const std::u16string sJoined = ReplaceAll(sPath, u"\\.\\", u"");
    std::u16string_view sRest = sJoined;
    std::u16string s; // what stands in front of sRest and holds no two dots in a row
    for (;;) {
        // Two dots may meet where a step up was cut out.
        const bool bMeet = s.ends_with(u'.') && sRest.starts_with(u'.');
        const std::size_t nInRest = bMeet ? 0 : sRest.find(u"..");
        if (nInRest == std::u16string_view::npos) return s.append(sRest);
        const std::size_t nTaken = bMeet ? 1 : nInRest + 2;
        s.append(sRest.substr(0, nTaken));
        sRest.remove_prefix(nTaken);
        const std::size_t nDots = s.size() - 2;
        // The backslash of the segment that is stepped out of. Behind a backslash the step starts one segment up;
        // behind any other character the dots end a name, and the segment in front of that name goes as well.
        const bool bSegment = nDots > 0 && s[nDots - 1] == u'\\';
        const std::size_t nReach = bSegment ? 2 : 3;
        const std::size_t nUp = nDots < nReach ? std::u16string_view::npos : s.rfind(u'\\', nDots - nReach);
        if (nUp == std::u16string_view::npos) return ReplaceAll(s.append(sRest), u"\\..", u"");
        s.resize(nUp);
    }
}

} // namespace orvanta
