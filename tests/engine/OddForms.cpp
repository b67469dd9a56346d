#include "tests/engine/OddForms.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace orvanta::testing {

namespace {

template<typename Range>
const auto& OneFrom(Random& random, const Range& range) {
    return range[Pick(random, std::size(range))];
}

std::vector<std::string> SplitLines(std::string_view sFile) {
    std::vector<std::string> lines;
    for (;;) {
        const std::size_t nAt = sFile.find("\r\n");
        lines.emplace_back(sFile.substr(0, nAt));
        if (nAt == std::string_view::npos) return lines;
        sFile.remove_prefix(nAt + 2);
    }
}

constexpr std::array<std::string_view, 8> kStructureLines = {
    "End",        "EndProperty", "Begin ",         "BeginProperty Font ",
    "EndCap = 1", "End Sub",     "Begin VB.Label", "  Begin VB.CheckBox c"};

void MutateOnce(std::vector<std::string>& lines, Random& random) {
    if (lines.empty()) return;
    const std::size_t n = Pick(random, lines.size());
    std::string& sLine = lines[n];
    switch (Pick(random, 10)) {
    case 0: std::swap(sLine, lines[Pick(random, lines.size())]); break;
    case 1:
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(Pick(random, lines.size())), std::string(sLine));
        break;
    case 2: lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(n)); break;
    case 3: sLine.resize(Pick(random, sLine.size() + 1)); break;
    case 4: sLine.insert(0, Pick(random, 2) ? "\t" : "  "); break;
    case 5:
        if (const std::size_t nBlank = sLine.find(' '); nBlank != std::string::npos) sLine.insert(nBlank, " ");
        break;
    case 6:
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(n), std::string(OneFrom(random, kStructureLines)));
        break;
    case 7: sLine.erase(0, sLine.find_first_not_of(' ')); break;
    case 8: sLine.append(Pick(random, 2) ? "\r" : "\n"); break;
    default: {
        const std::size_t nTo = std::min(lines.size(), n + Pick(random, 12));
        std::shuffle(lines.begin() + static_cast<std::ptrdiff_t>(n),
                     lines.begin() + static_cast<std::ptrdiff_t>(std::max(n, nTo)), random);
    }
    }
}

constexpr std::array<std::string_view, 36> kTypes = {"VB.Form",
                                                     "VB.TextBox",
                                                     "VB.TextBox",
                                                     "MSForms.TextBox",
                                                     "VB.Label",
                                                     "VB.Frame",
                                                     "MSForms.Frame",
                                                     "VB.CheckBox",
                                                     "MSForms.CheckBox",
                                                     "VB.OptionButton",
                                                     "VB.ComboBox",
                                                     "MSForms.ComboBox",
                                                     "VB.ListBox",
                                                     "VB.DriveListBox",
                                                     "VB.DirListBox",
                                                     "VB.FileListBox",
                                                     "VB.CommandButton",
                                                     "VB.Menu",
                                                     "MSComctlLib.TabStrip",
                                                     "MSComctlLib.StatusBar",
                                                     "VB.PictureBox",
                                                     "MSComctlLib.TreeView",
                                                     "MSComctlLib.Toolbar",
                                                     "MSComctlLib.ImageCombo",
                                                     "MSComctlLib.ProgressBar",
                                                     "VB.UserControl",
                                                     "Orvanta.ctlUniLabel",
                                                     "Orvanta.ctlUTF8Menu",
                                                     "Orvanta.ctlUniButtonXP",
                                                     "Orvanta.ctlUniComboBoxXP",
                                                     "vb.label",
                                                     "MSForms.Label",
                                                     "MSForms.ListBox",
                                                     "",
                                                     "Orvanta.ctlUniLabelNoFlick",
                                                     "MSForms.OptionButton"};
constexpr std::array<std::string_view, 12> kKeys = {"Value",       "Style",   "ToolTipText", "BackStyle",
                                                    "UTF8Strings", "Caption", "value",       "STYLE",
                                                    "tooltiptext", "Value\t", "Values",      "EndCap"};
constexpr std::array<std::string_view, 14> kValues = {"",     "0",     "1",  "2",         "3",   "-1",    "-1  'True",
                                                      "\"\"", "\"t\"", " 1", "0  'False", "= 1", "2  'x", "\t1"};
constexpr std::array<std::string_view, 8> kNames = {"Text1", "Text10", "1", "MyText1", "a", "", "0)Text1", "Te'xt"};
constexpr std::array<std::string_view, 7> kIndents = {"", "", "", "   ", "      ", "\t", " \t"};
constexpr std::array<std::string_view, 14> kPlainLines = {"",
                                                          "VERSION 5.00",
                                                          "Object = \"{0}#1.0#0\"; \"Orvanta28.ocx\"",
                                                          "Object={0}#1.0#0; Orvanta28.ocx",
                                                          "Attribute VB_Name = \"F\"",
                                                          "Dim x As TextBox",
                                                          "Dim y As VB.Label, z As Long",
                                                          "Sub A(x As Combobox)",
                                                          "End Sub",
                                                          "End Function",
                                                          "Begin ",
                                                          "Begin",
                                                          "Beginning = 1",
                                                          "\xFC\x80\x81"};
constexpr std::array<std::string_view, 6> kSignatures = {"_KeyPress(KeyAscii As Integer)",
                                                         "_Click()",
                                                         "_DblClick()",
                                                         "_KeyPress(Index As Integer, KeyAscii As Integer)",
                                                         "_Click(Index As Integer)",
                                                         "_DblClick(Index As Integer)"};
constexpr std::array<std::string_view, 7> kEvents = {"_KeyPress",   "_Click",       "_DblClick", "_Click(",
                                                     "_DblClick()", "_KeyPress(1)", "_click"};
constexpr std::array<std::string_view, 7> kHeads = {"Private Sub ", "Sub ",  "Public Function ", "' Function ",
                                                    "xSub ",        " Sub ", "Property Get "};
constexpr std::array<std::string_view, 10> kTails = {"",      " ' again", " 1, 2", "(a(b), c)", " Sub",
                                                     " Sub ", "\"'",      "()",    " Function", "(1"};
constexpr std::array<std::string_view, 7> kEnds = {"End Sub",  "End Function", "   End Sub",  "End Sub ' note",
                                                   "End Subs", "End Sub ",     "End Property"};

std::string CodeText(Random& random, std::string_view sName) {
    std::string sLine;
    switch (Pick(random, 5)) {
    case 0:
        sLine.append(OneFrom(random, kHeads)).append(sName).append(OneFrom(random, kSignatures));
        if (Pick(random, 4) == 0) sLine.append(" ' ").append(sName).append(OneFrom(random, kSignatures));
        break;
    case 1: sLine.append(OneFrom(random, kEnds)); break;
    default:
        if (Pick(random, 3) == 0) sLine.append(Pick(random, 2) ? "Call " : "    ");
        for (std::size_t nCalls = 1 + Pick(random, 3); nCalls > 0; --nCalls)
            sLine.append(sName).append(OneFrom(random, kEvents)).append(OneFrom(random, kTails));
    }
    return sLine;
}

} // namespace

std::size_t Pick(Random& random, std::size_t nCount) {
    return static_cast<std::size_t>(random() % nCount);
}

std::string Mutated(std::string_view sFile, Random& random) {
    std::vector<std::string> lines = SplitLines(sFile);
    for (std::size_t nTimes = 1 + Pick(random, 12); nTimes > 0; --nTimes)
        MutateOnce(lines, random);
    std::string sOut;
    for (std::size_t n = 0; n < lines.size(); ++n)
        sOut.append(n > 0 ? "\r\n" : "").append(lines[n]);
    if (Pick(random, 8) == 0) sOut.resize(Pick(random, sOut.size() + 1));
    return sOut;
}

std::string RandomForm(Random& random, std::size_t nLines) {
    std::string sForm;
    for (std::size_t n = 0; n < nLines; ++n) {
        sForm += OneFrom(random, kIndents);
        switch (Pick(random, 12)) {
        case 0:
        case 1:
        case 2:
            sForm.append("Begin ").append(OneFrom(random, kTypes)).append(" ").append(OneFrom(random, kNames));
            break;
        case 3:
        case 4:
        case 5:
        case 6: sForm.append(OneFrom(random, kKeys)).append(" = ").append(OneFrom(random, kValues)); break;
        case 7:
        case 8: sForm += OneFrom(random, kStructureLines); break;
        case 9: sForm += OneFrom(random, kPlainLines); break;
        case 10: sForm += CodeText(random, OneFrom(random, kNames)); break;
        default: sForm += "End";
        }
        sForm += Pick(random, 60) == 0 ? "\n" : "\r\n";
    }
    return sForm;
}

std::vector<std::u16string> OddNames(Random& random) {
    std::vector<std::u16string> names;
    for (std::size_t n = 1 + Pick(random, 5); n > 0; --n) {
        const std::string_view sName = OneFrom(random, kNames);
        names.emplace_back(sName.begin(), sName.end());
    }
    return names;
}

std::u16string OddCode(Random& random, const std::vector<std::u16string>& names, std::size_t nLines) {
    std::u16string sCode;
    for (std::size_t n = 0; n < nLines; ++n) {
        const std::u16string& sName = OneFrom(random, names);
        const std::string sLine = CodeText(random, std::string(sName.begin(), sName.end()));
        sCode.append(sLine.begin(), sLine.end()).append(u"\r\n");
    }
    return sCode;
}

} // namespace orvanta::testing
