#include "tests/reference/PlainBlocks.h"
#include "tests/reference/PlainEngine.h"
#include "tests/reference/PlainText.h"

namespace orvanta::reference {

namespace {

constexpr int kRed = 255;
constexpr std::size_t kColumns = 2;

constexpr const char16_t* kFormReference =
    u"Object = \"{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0\"; \"Orvanta31.ocx\"";
constexpr const char16_t* kProjectReference = u"Object={7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0; Orvanta31.ocx";

// The library's word behind the first character; at the first one it does not count.
bool NamesLibrary(const std::u16string& line) {
    const std::size_t at = line.find(u"Orvanta");
    return at != std::u16string::npos && at > 0;
}

bool ProjectWalk(PlainLines& lines) {
    for (std::u16string& line : lines) {
        if (NamesLibrary(line) && StartsWith(line, u"Object=")) {
            line = kProjectReference;
            return true;
        }
    }
    return false;
}

// Changes what stands at the `Begin ` line `i` of a control of this type; true when something was changed.
bool UpgradeControl(PlainLines& lines, std::size_t i, const std::u16string& type) {
    if (type == u"Orvanta.ctlUTF8Menu") {
        const std::u16string value = GetBlockProperty(lines, i, u"UTF8Strings");
        if (value.empty() || Left(Trim(value), 2) != u"-1") return false;
        ChangeBlockProperty(lines, i, u"UTF8Strings", u"StringMode", u"1");
        return true;
    }
    if (type == u"Orvanta.ctlUniLabel") {
        const std::u16string value = GetBlockProperty(lines, i, u"BackStyle");
        if (value.empty() || Left(Trim(value), 1) != u"0") return false;
        lines[i] = ReplaceAll(lines[i], u".ctlUniLabel", u".ctlUniLabelNoFlick");
        return true;
    }
    if (type == u"Orvanta.ctlUniButtonXP") {
        lines[i] = ReplaceAll(lines[i], u".ctlUniButtonXP", u".ctlUniButtonImageXP");
        return true;
    }
    return false;
}

bool FormWalk(PlainLines& lines, std::vector<std::u16string>& boxes) {
    bool lookForObject = true;
    bool fileChanged = false;
    bool codeReached = false;
    int depth = 0;
    BeginWords words;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::u16string line = lines[i];
        if (lookForObject) {
            if (StartsWith(Trim(line), u"Begin ")) {
                lookForObject = false;
            } else if (NamesLibrary(line) && StartsWith(line, u"Object = ")) {
                lines[i] = kFormReference;
                lookForObject = false;
                fileChanged = true;
            }
        }
        if (codeReached) continue;
        const std::u16string s = TrimStart(line);
        if (StartsWith(s, u"BeginProperty ") || StartsWith(s, u"EndProperty")) continue;
        if (StartsWith(s, u"Begin ")) {
            ++depth;
            words.Take(line, boxes);
            if (UpgradeControl(lines, i, words.type)) fileChanged = true;
        } else if (StartsWith(s, u"End")) {
            --depth;
            if (depth == 0) codeReached = true;
        }
    }
    return fileChanged;
}

} // namespace

PlainResult PlainUpgradeText(const std::u16string& fileName, const std::u16string& text, bool isProject, bool saves) {
    PlainResult result;
    PlainLines lines = SplitAt(text, u"\r\n");
    result.written = isProject ? ProjectWalk(lines) : FormWalk(lines, result.boxes);
    result.text = result.written ? JoinLines(lines) : text;
    if (!result.written)
        result.rows.push_back(LogRow(fileName + u"\tSkipped...", kColumns));
    else if (saves)
        result.rows.push_back(LogRow(fileName + u"\tUpgraded...", kColumns));
    else
        result.rows.push_back(LogRow(fileName + u"\tError saving this file...", kColumns, kRed));
    return result;
}

PlainResult PlainUpgradeUnreadable(const std::u16string& fileName) {
    PlainResult result;
    result.rows.push_back(LogRow(fileName + u"\tError while reading file...", kColumns, kRed));
    return result;
}

} // namespace orvanta::reference
