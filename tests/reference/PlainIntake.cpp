#include "tests/reference/PlainEngine.h"
#include "tests/reference/PlainText.h"

namespace orvanta::reference {

namespace {

std::u16string FolderOf(const std::u16string& path, bool finalBackslash) {
    const std::size_t at = path.rfind(u'\\');
    if (at == std::u16string::npos) return u"";
    return path.substr(0, finalBackslash ? at + 1 : at);
}

} // namespace

std::u16string PlainNormalizePath(const std::u16string& path) {
    std::u16string s = path;
    if (Contains(Lower(s), u"file://")) s = s.substr(s.find(u"://") + 3);
    s = ReplaceAll(s, u"/", u"\\");
    s = ReplaceAll(s, u"|", u":");
    s = ReplaceAll(s, u"%20", u" ");
    s = ReplaceAll(s, u"\\\\", u"\\");
    if (s.size() >= 2 && s[0] == u'\\') s = s.substr(1);
    return s;
}

std::u16string PlainCollapseDots(const std::u16string& path) {
    std::u16string s = ReplaceAll(path, u"\\.\\", u"");
    while (true) {
        const std::size_t dots = s.find(u"..");
        if (dots == std::u16string::npos) return s;
        // Positions from here on count from 1. The backslash right before the two dots is not the one sought, and for
        // dots inside a name the character two places before them is not looked at either.
        const std::size_t p = dots + 1;
        const bool afterBackslash = dots > 0 && s[dots - 1] == u'\\';
        std::size_t q = 0;
        for (std::size_t position = 1; position + 2 <= p; ++position) {
            const bool atLimit = position + 2 == p;
            if (s[position - 1] == u'\\' && (afterBackslash || !atLimit)) q = position;
        }
        if (q == 0) return ReplaceAll(s, u"\\..", u"");
        s = s.substr(0, q - 1) + s.substr(p + 1);
    }
}

std::u16string PlainResolveProjectPath(const std::u16string& projectPath, const std::u16string& relPath) {
    std::u16string s = PlainNormalizePath(relPath);
    if (s.size() >= 2 && s[1] == u':') return s;
    if (s.empty()) return PlainCollapseDots(FolderOf(projectPath, false));
    return PlainCollapseDots(FolderOf(projectPath, true) + s);
}

PlainProject PlainReadProject(const std::u16string& projectPath, const std::u16string& text) {
    PlainProject project;
    for (const std::u16string& line : SplitAt(text, u"\r\n")) {
        if (StartsWith(line, u"UserControl=") || StartsWith(line, u"Form="))
            project.members.push_back(PlainResolveProjectPath(projectPath, line.substr(line.find(u'=') + 1)));
        else if (Contains(Lower(line), u"orvanta"))
            project.libraryReferenced = true;
    }
    return project;
}

} // namespace orvanta::reference
