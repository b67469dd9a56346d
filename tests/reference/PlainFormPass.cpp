#include "tests/reference/PlainBlocks.h"
#include "tests/reference/PlainEngine.h"
#include "tests/reference/PlainText.h"

namespace orvanta::reference {

namespace {

constexpr int kRed = 255;
constexpr int kDarkGreen = 32768;
constexpr int kBrightGreen = 65280;
constexpr int kYellow = 65535;
constexpr int kBlue = 16711680;
constexpr int kNone = -1;
constexpr std::size_t kColumns = 3;

constexpr const char16_t* kReferences[] = {
    u"as frame",       u"as commandbutton",    u"as textbox",    u"as label",          u"as checkbox",
    u"as combobox",    u"as optionbutton",     u"as listbox",    u"as filelistbox",    u"as dirlistbox",
    u"as vb.frame",    u"as vb.commandbutton", u"as vb.textbox", u"as vb.label",       u"as vb.checkbox",
    u"as vb.combobox", u"as vb.optionbutton",  u"as vb.listbox", u"as vb.filelistbox", u"as vb.dirlistbox",
};

std::u16string Number(std::size_t number) {
    std::u16string text;
    for (const char digit : std::to_string(number))
        text += static_cast<char16_t>(digit);
    return text;
}

// One conversion of one file.
struct FormPass {
    FormPass(const PlainOptions& runOptions, const std::u16string& text)
        : options(runOptions), lines(SplitAt(text, u"\r\n")) {}

    const PlainOptions& options;
    PlainLines lines;
    PlainResult result;
    PlainLines textBoxes;
    BeginWords words;

    std::size_t converted = 0;
    int tips = 0;
    int menus = 0;
    int statusBars = 0;
    int tabStrips = 0;
    int treeViews = 0;
    int toolbars = 0;
    int progressBars = 0;
    int imageCombos = 0;

    // For the `Begin ` line at hand.
    bool isConverted = false;
    std::u16string target;
    std::u16string extraLines;

    void Row(const std::u16string& text, int fore = kNone, int back = kNone) {
        result.rows.push_back(LogRow(text, kColumns, fore, back));
    }

    void Warn(int counter, const std::u16string& text) {
        if (counter > 0) Row(u"\t\t" + text, kNone, kYellow);
    }

    void AddLine(const std::u16string& line) { extraLines += u"\r\n" + line; }

    std::u16string Get(std::size_t i, const std::u16string& property) const {
        return GetBlockProperty(lines, i, property);
    }

    std::u16string First(std::size_t i, const std::u16string& property) const {
        return Left(Trim(Get(i, property)), 1);
    }

    // True when the type at hand is one of `types` and its kind is selected; it then becomes `newType`.
    bool Becomes(const PlainLines& types, int kind, const std::u16string& newType) {
        for (const std::u16string& type : types) {
            if (words.type == type && options.kinds[kind]) {
                isConverted = true;
                target = newType;
                return true;
            }
        }
        return false;
    }

    void ValueRule(std::size_t i) {
        const std::u16string value = Get(i, u"Value");
        if (value.empty()) {
            AddLine(u"Pressed = 0");
            return;
        }
        Row(u"\t" + Number(i) + u"\t" + words.name + u"> Value>>Pressed", kDarkGreen);
        const bool pressed = Left(Trim(value), 1) == u"1" || Left(Trim(value), 2) == u"-1";
        ChangeBlockProperty(lines, i, u"Value", u"Pressed", pressed ? u"-1" : u"0");
    }

    void ComboRule(std::size_t i) {
        const std::u16string style = First(i, u"Style");
        if (style.empty()) {
            AddLine(options.textCombos ? u"Style = 4" : u"Style = 2");
            return;
        }
        if (style == u"0")
            ChangeBlockProperty(lines, i, u"Style", u"Style", u"2");
        else if (style == u"2")
            ChangeBlockProperty(lines, i, u"Style", u"Style", u"1");
        if (options.comboImages) {
            if (First(i, u"Style") == u"1") target = u"Orvanta.ctlUniComboImageXP";
        } else if (options.textCombos) {
            if (First(i, u"Style") == u"1") ChangeBlockProperty(lines, i, u"Style", u"Style", u"3");
        }
    }

    void SecondComboRule(std::size_t i) {
        if (options.comboImages) {
            isConverted = true;
            if (First(i, u"Style") == u"1" || First(i, u"Style") == u"3") target = u"Orvanta.ctlUniComboImageXP";
        } else if (options.textCombos) {
            isConverted = true;
            if (First(i, u"Style") == u"1") ChangeBlockProperty(lines, i, u"Style", u"Style", u"3");
        }
    }

    void Chain(std::size_t i) {
        if (Becomes({u"MSComctlLib.ProgressBar"}, 11, u"Orvanta.ctlProgressXP")) ++progressBars;
        if (words.type == u"VB.Menu") ++menus;
        if (words.type == u"MSComctlLib.TabStrip") ++tabStrips;
        if (words.type == u"MSComctlLib.StatusBar") ++statusBars;
        Becomes({u"VB.Frame", u"MSForms.Frame"}, 2, u"Orvanta.ctlUniFrameXP");
        Becomes({u"VB.CommandButton", u"MSForms.CommandButton", u"Orvanta.ctlUniButtonXP"}, 3,
                u"Orvanta.ctlUniButtonImageXP");
        if (Becomes({u"VB.TextBox", u"MSForms.TextBox"}, 0, u"Orvanta.ctlUniTextBoxXP"))
            textBoxes.push_back(words.name);
        Becomes({u"VB.Label", u"MSForms.Label"}, 1, u"Orvanta.ctlUniLabel");
        if (Becomes({u"VB.CheckBox", u"MSForms.CheckBox"}, 4, u"Orvanta.ctlUniCheckXP")) ValueRule(i);
        if (Becomes({u"VB.ComboBox", u"MSForms.ComboBox"}, 6, u"Orvanta.ctlUniComboBoxXP")) ComboRule(i);
        if (words.type == u"Orvanta.ctlUniComboBoxXP") SecondComboRule(i);
        if (Becomes({u"VB.OptionButton", u"MSForms.OptionButton"}, 5, u"Orvanta.ctlUniRadioXP")) ValueRule(i);
        Becomes({u"VB.ListBox", u"MSForms.ListBox"}, 7, u"Orvanta.ctlUniListBoxXP");
        if (words.type == u"MSComctlLib.TreeView") ++treeViews;
        if (words.type == u"MSComctlLib.Toolbar") ++toolbars;
        Becomes({u"VB.DriveListBox"}, 8, u"Orvanta.ctlUniDriveBoxXP");
        if (words.type == u"MSComctlLib.ImageCombo") ++imageCombos;
        if (Becomes({u"VB.FileListBox"}, 10, u"Orvanta.ctlUniFileBoxXP")) AddLine(u"DisplayMode = 1");
        if (Becomes({u"VB.DirListBox"}, 9, u"Orvanta.ctlUniFileBoxXP")) AddLine(u"DisplayMode = 2");
    }

    void BeginLine(std::size_t i) {
        words.Take(lines[i], result.boxes);
        isConverted = false;
        target = words.type;
        Chain(i);
        if (!isConverted) return;
        ++converted;
        lines[i] = u"Begin " + target + u" " + words.name + extraLines;
        const std::u16string tip = Get(i, u"ToolTipText");
        if (tip.empty()) return;
        ++tips;
        Row(u"\t" + Number(i) + u"\t" + words.name + u"> ToolTipText>>Tip", kDarkGreen);
        ChangeBlockProperty(lines, i, u"ToolTipText", u"Tip");
    }

    void CodeLine(std::size_t i) {
        const std::u16string lower = Lower(lines[i]);
        for (const char16_t* reference : kReferences) {
            if (!Contains(lower, reference)) continue;
            Row(u"\t" + Number(i) + u"\tCheck this line, control reference found >> " + lines[i], kNone, kBrightGreen);
            return;
        }
    }

    void Scan() {
        bool codeReached = false;
        int depth = 0;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (codeReached) {
                CodeLine(i);
                continue;
            }
            extraLines.clear();
            const std::u16string s = TrimStart(lines[i]);
            if (StartsWith(s, u"BeginProperty ") || StartsWith(s, u"EndProperty")) continue;
            if (StartsWith(s, u"Begin ")) {
                ++depth;
                BeginLine(i);
            } else if (StartsWith(s, u"End")) {
                --depth;
                if (depth == 0) codeReached = true;
            }
        }
    }

    void Warnings() {
        Warn(tips, u"Tips Found, please add a ctlUniTooltipManager control to the starting form of your application");
        Warn(menus, u"Menus Found, please add a ctlUTF8Menu control to the form and call the .Attach method");
        Warn(statusBars, u"Status Bar Found, please add a ctlUniStatusBar control to the form and check your code");
        Warn(tabStrips, u"TabStrip Found, please add a ctlUniTabbedXP control to the form and check your code");
        Warn(treeViews, u"TreeView Found, please add an ucTreeView control to the form and check your code");
        Warn(toolbars, u"Toolbar Found, please add an ctlUniToolBarXP control to the form and check your code");
        Warn(progressBars, u"ProgressBars Found, please check the Min/Max property");
        Warn(imageCombos,
             u"ImageCombo Found, please add an ctlUniComboImageXP control to the form and check your code");
    }
};

} // namespace

PlainResult PlainConvertText(const std::u16string& fileName, const std::u16string& text, const PlainOptions& options,
                             bool saves) {
    FormPass pass(options, text);
    pass.Row(fileName + u"\t\tReading...");
    pass.Scan();
    pass.Row(u"\t\tConverted " + Number(pass.converted) + u" controls", pass.converted > 0 ? kBlue : kNone);
    pass.Warnings();
    if (!PlainFixEventSignatures(pass.textBoxes, pass.lines)) pass.result.boxes.push_back(kOverflow);
    pass.result.text = JoinLines(pass.lines);
    pass.result.written = true;
    if (saves)
        pass.Row(u"\t\tSaved...");
    else
        pass.Row(u"\t\tError saving this file...", kRed);
    pass.Row(u"");
    return pass.result;
}

// There is no line array to go over, and nothing to save: the file is left after one box.
PlainResult PlainConvertUnreadable(const std::u16string& fileName) {
    PlainResult result;
    result.rows.push_back(LogRow(fileName + u"\t\tError while reading file...", kColumns, kRed));
    result.boxes.push_back(kSubscriptOutOfRange);
    return result;
}

} // namespace orvanta::reference
