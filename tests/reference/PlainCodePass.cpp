#include "tests/reference/PlainEngine.h"
#include "tests/reference/PlainText.h"

namespace orvanta::reference {

namespace {

// The counter over the array is a 16-bit one, with 0 for the first element.
constexpr std::size_t kMostElements = 32768;

struct Rewrite {
    const char16_t* found;
    const char16_t* replacedBy;
    const char16_t* handler;
    bool hasArgs;
};

constexpr Rewrite kRewrites[] = {
    {u"_KeyPress(KeyAscii As Integer)", u"_KeyPress(KeyAscii As Integer, Shift As Integer)", u"_KeyPress", true},
    {u"_Click()", u"_Click(Button As Integer)", u"_Click", false},
    {u"_DblClick()", u"_DblClick(Button As Integer)", u"_DblClick", false},
    {u"_KeyPress(Index As Integer, KeyAscii As Integer)",
     u"_KeyPress(Index As Integer, KeyAscii As Integer, Shift As Integer)", u"_KeyPress", true},
    {u"_Click(Index As Integer)", u"_Click(Index As Integer, Button As Integer)", u"_Click", true},
    {u"_DblClick(Index As Integer)", u"_DblClick(Index As Integer, Button As Integer)", u"_DblClick", true},
};

bool IsProcedureStart(const std::u16string& line) {
    return Contains(line, u" Sub ") || StartsWith(line, u"Sub ") || Contains(line, u"Function ");
}

// To be asked of a line that is no procedure start.
bool IsProcedureEnd(const std::u16string& line) {
    return StartsWith(line, u"End Function") || StartsWith(line, u"End Sub");
}

std::u16string Inserted(const std::u16string& line, std::size_t at, const std::u16string& inserted) {
    return line.substr(0, at) + inserted + line.substr(at);
}

// The argument goes before the parenthesis that closes the first one opened from `p` on.
std::u16string CallWithParentheses(const std::u16string& line, std::size_t p, const std::u16string& inserted) {
    int count = 0;
    for (std::size_t at = p; at < line.size(); ++at) {
        if (line[at] == u'(') {
            ++count;
        } else if (line[at] == u')') {
            --count;
            if (count == 0) return Inserted(line, at, inserted);
        }
    }
    return line;
}

// The argument goes before the comment, else to the end of the line.
std::u16string CallWithoutParentheses(const std::u16string& line, std::size_t p, const std::u16string& inserted) {
    bool quoted = false;
    for (std::size_t at = p; at < line.size(); ++at) {
        if (line[at] == u'"') quoted = !quoted;
        if (line[at] == u'\'' && !quoted) return Inserted(line, at, inserted);
    }
    return line + inserted;
}

void FixHandlerCalls(const std::u16string& handler, PlainLines& lines, bool hasArgs) {
    const std::u16string separator = hasArgs ? u", " : u"";
    const std::u16string inserted = separator + u" 0";
    const std::u16string trimmed = Trim(handler);
    int level = 0;
    for (std::u16string& line : lines) {
        if (IsProcedureStart(line)) {
            ++level;
            continue;
        }
        if (IsProcedureEnd(line)) {
            --level;
            continue;
        }
        if (level < 1 || !Contains(line, handler)) continue;
        const std::size_t p = line.find(trimmed);
        if (Contains(line, trimmed + u"("))
            line = CallWithParentheses(line, p, inserted);
        else
            line = CallWithoutParentheses(line, p, inserted);
    }
}

} // namespace

bool PlainFixEventSignatures(const PlainLines& names, PlainLines& lines) {
    for (const std::u16string& name : names) {
        if (lines.size() > kMostElements) return false;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (!IsProcedureStart(lines[i])) continue;
            for (const Rewrite& rewrite : kRewrites) {
                if (!Contains(lines[i], name + rewrite.found)) continue;
                lines[i] = ReplaceAll(lines[i], name + rewrite.found, name + rewrite.replacedBy);
                FixHandlerCalls(name + rewrite.handler, lines, rewrite.hasArgs);
            }
        }
    }
    return true;
}

} // namespace orvanta::reference
