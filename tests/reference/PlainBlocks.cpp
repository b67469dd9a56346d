#include "tests/reference/PlainBlocks.h"

#include "tests/reference/PlainText.h"

namespace orvanta::reference {

namespace {

struct Match {
    std::size_t index = 0;
    std::u16string value;
};

std::optional<Match> FindBlockProperty(const PlainLines& lines, std::size_t start, const std::u16string& property) {
    int level = 0;
    for (std::size_t j = start; j < lines.size(); ++j) {
        const std::u16string s = TrimStart(lines[j]);
        if (StartsWith(s, u"BeginProperty ") || StartsWith(s, u"Begin ")) {
            ++level;
        } else if (StartsWith(s, u"EndProperty")) {
            --level;
        } else if (StartsWith(s, u"End")) {
            --level;
            if (level == 0) return std::nullopt;
        }
        const std::size_t equals = s.find(u'=');
        if (level == 1 && equals != std::u16string::npos) {
            const std::u16string key = Trim(s.substr(0, equals));
            if (Lower(key) == Lower(property)) return Match{j, Trim(s.substr(equals + 1))};
        }
    }
    return std::nullopt;
}

} // namespace

void BeginWords::Take(const std::u16string& line, std::vector<std::u16string>& boxes) {
    const PlainLines words = SplitAt(Trim(line), u" ");
    if (words.size() > 1)
        type = Trim(words[1]);
    else
        boxes.push_back(kSubscriptOutOfRange);
    if (words.size() > 2)
        name = Trim(words[2]);
    else
        boxes.push_back(kSubscriptOutOfRange);
}

std::u16string GetBlockProperty(const PlainLines& lines, std::size_t start, const std::u16string& property) {
    const std::optional<Match> match = FindBlockProperty(lines, start, property);
    return match ? match->value : std::u16string();
}

bool ChangeBlockProperty(PlainLines& lines, std::size_t start, const std::u16string& property,
                         const std::u16string& newProperty, const std::optional<std::u16string>& newValue) {
    const std::optional<Match> match = FindBlockProperty(lines, start, property);
    if (!match) return false;
    lines[match->index] = newProperty + u"=" + (newValue ? *newValue : match->value);
    return true;
}

} // namespace orvanta::reference
