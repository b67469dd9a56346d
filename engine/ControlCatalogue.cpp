#include "engine/ControlCatalogue.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace orvanta {

namespace {

using enum TypeRule;

constexpr std::array kSourceTypes = {
    SourceType{u"MSComctlLib.ProgressBar", kKindProgressBar, u"Orvanta.ctlProgressXP", ProgressBar},
    SourceType{u"VB.Menu", -1, u"", CountMenu},
    SourceType{u"MSComctlLib.TabStrip", -1, u"", CountTabStrip},
    SourceType{u"MSComctlLib.StatusBar", -1, u"", CountStatusBar},
    SourceType{u"VB.Frame", kKindFrame, u"Orvanta.ctlUniFrameXP", Plain},
    SourceType{u"MSForms.Frame", kKindFrame, u"Orvanta.ctlUniFrameXP", Plain},
    SourceType{u"VB.CommandButton", kKindCommandButton, u"Orvanta.ctlUniButtonImageXP", Plain},
    SourceType{u"MSForms.CommandButton", kKindCommandButton, u"Orvanta.ctlUniButtonImageXP", Plain},
    SourceType{u"Orvanta.ctlUniButtonXP", kKindCommandButton, u"Orvanta.ctlUniButtonImageXP", Plain},
    SourceType{u"VB.TextBox", kKindTextBox, u"Orvanta.ctlUniTextBoxXP", TextBox},
    SourceType{u"MSForms.TextBox", kKindTextBox, u"Orvanta.ctlUniTextBoxXP", TextBox},
    SourceType{u"VB.Label", kKindLabel, u"Orvanta.ctlUniLabel", Plain},
    SourceType{u"MSForms.Label", kKindLabel, u"Orvanta.ctlUniLabel", Plain},
    SourceType{u"VB.CheckBox", kKindCheckBox, u"Orvanta.ctlUniCheckXP", Value},
    SourceType{u"MSForms.CheckBox", kKindCheckBox, u"Orvanta.ctlUniCheckXP", Value},
    SourceType{u"VB.ComboBox", kKindComboBox, u"Orvanta.ctlUniComboBoxXP", Combo},
    SourceType{u"MSForms.ComboBox", kKindComboBox, u"Orvanta.ctlUniComboBoxXP", Combo},
    SourceType{u"Orvanta.ctlUniComboBoxXP", -1, u"Orvanta.ctlUniComboBoxXP", LibraryCombo},
    SourceType{u"VB.OptionButton", kKindOptionButton, u"Orvanta.ctlUniRadioXP", Value},
    SourceType{u"MSForms.OptionButton", kKindOptionButton, u"Orvanta.ctlUniRadioXP", Value},
    SourceType{u"VB.ListBox", kKindListBox, u"Orvanta.ctlUniListBoxXP", Plain},
    SourceType{u"MSForms.ListBox", kKindListBox, u"Orvanta.ctlUniListBoxXP", Plain},
    SourceType{u"MSComctlLib.TreeView", -1, u"", CountTreeView},
    SourceType{u"MSComctlLib.Toolbar", -1, u"", CountToolbar},
    SourceType{u"VB.DriveListBox", kKindDriveListBox, u"Orvanta.ctlUniDriveBoxXP", Plain},
    SourceType{u"MSComctlLib.ImageCombo", -1, u"", CountImageCombo},
    SourceType{u"VB.FileListBox", kKindFileListBox, u"Orvanta.ctlUniFileBoxXP", FileBox},
    SourceType{u"VB.DirListBox", kKindDirListBox, u"Orvanta.ctlUniFileBoxXP", DirBox},
};

constexpr std::array<std::u16string_view, kKindCount> kKindCaptions = {
    u"TextBox",  u"Label",   u"Frame",        u"CommandButton", u"CheckBox",    u"OptionButton",
    u"ComboBox", u"ListBox", u"DriveListBox", u"DirListBox",    u"FileListBox", u"MSComctlLib.ProgressBar"};

constexpr std::array<std::u16string_view, kWarningCount> kWarningTexts = {
    u"Tips Found, please add a ctlUniTooltipManager control to the starting form of your application",
    u"Menus Found, please add a ctlUTF8Menu control to the form and call the .Attach method",
    u"Status Bar Found, please add a ctlUniStatusBar control to the form and check your code",
    u"TabStrip Found, please add a ctlUniTabbedXP control to the form and check your code",
    u"TreeView Found, please add an ucTreeView control to the form and check your code",
    u"Toolbar Found, please add an ctlUniToolBarXP control to the form and check your code",
    u"ProgressBars Found, please check the Min/Max property",
    u"ImageCombo Found, please add an ctlUniComboImageXP control to the form and check your code"};

// The flagged fragments are "as " and one of these, with or without "vb." between.
constexpr std::array<std::u16string_view, 10> kFlaggedTypes = {
    u"frame",    u"commandbutton", u"textbox", u"label",       u"checkbox",
    u"combobox", u"optionbutton",  u"listbox", u"filelistbox", u"dirlistbox"};

bool StartsFolded(std::u16string_view s, std::u16string_view sLower) {
    return s.size() >= sLower.size() && EqualsAsciiFolded(s.substr(0, sLower.size()), sLower);
}

} // namespace

std::u16string_view KindCaption(int iKind) {
    return kKindCaptions.at(static_cast<std::size_t>(iKind));
}

const SourceType* FindSourceType(std::u16string_view sType) {
    static const std::unordered_map<std::u16string_view, const SourceType*> byName = [] {
        std::unordered_map<std::u16string_view, const SourceType*> map;
        for (const SourceType& type : kSourceTypes)
            map.emplace(type.sType, &type);
        return map;
    }();
    const auto found = byName.find(sType);
    return found == byName.end() ? nullptr : found->second;
}

std::u16string_view WarningText(Warning warning) {
    return kWarningTexts.at(static_cast<std::size_t>(warning));
}

bool NamesControlTypeAt(std::u16string_view sLine, std::size_t nAt) {
    std::u16string_view sType = sLine.substr(nAt + 3);
    if (StartsFolded(sType, u"vb.")) sType.remove_prefix(3);
    return std::any_of(kFlaggedTypes.begin(), kFlaggedTypes.end(),
                       [sType](std::u16string_view sFlagged) { return StartsFolded(sType, sFlagged); });
}

} // namespace orvanta
