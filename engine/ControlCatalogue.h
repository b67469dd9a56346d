#pragma once

#include "base/UnitScan.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvanta {

// The vocabulary of a conversion: which control types are replaced by which, and which are only reported.

// Control kinds that the user can switch off; the values are positions in the wizard's list of kinds.
inline constexpr int kKindTextBox = 0;
inline constexpr int kKindLabel = 1;
inline constexpr int kKindFrame = 2;
inline constexpr int kKindCommandButton = 3;
inline constexpr int kKindCheckBox = 4;
inline constexpr int kKindOptionButton = 5;
inline constexpr int kKindComboBox = 6;
inline constexpr int kKindListBox = 7;
inline constexpr int kKindDriveListBox = 8;
inline constexpr int kKindDirListBox = 9;
inline constexpr int kKindFileListBox = 10;
inline constexpr int kKindProgressBar = 11;
inline constexpr int kKindCount = 12;

// The entry of each kind in that list, in order.
std::u16string_view KindCaption(int iKind);

// What a type asks for beyond its new name.
enum class TypeRule : std::uint8_t {
    Plain,
    ProgressBar,  // counted for a warning
    TextBox,      // its name goes to the code pass
    Value,        // Value becomes Pressed
    Combo,        // Style is renumbered, the options choose the target
    LibraryCombo, // a combo that is the library's own already: converted only when an option asks for it
    FileBox,      // files and folders share one target and differ by DisplayMode
    DirBox,
    CountMenu, // left as it is and counted for a warning
    CountTabStrip,
    CountStatusBar,
    CountTreeView,
    CountToolbar,
    CountImageCombo,
};

struct SourceType {
    std::u16string_view sType;
    int iKind; // -1: the list of kinds is not asked
    std::u16string_view sTarget;
    TypeRule rule;
};

// The entry of a type, compared exactly; nullptr for a type that the conversion leaves alone.
const SourceType* FindSourceType(std::u16string_view sType);

inline constexpr std::u16string_view kImageComboTarget = u"Orvanta.ctlUniComboImageXP";

// Warnings of a file, in the order in which they are written.
enum class Warning : std::uint8_t {
    Tips,
    Menus,
    StatusBars,
    TabStrips,
    TreeViews,
    Toolbars,
    ProgressBars,
    ImageCombos
};
inline constexpr int kWarningCount = 8;
std::u16string_view WarningText(Warning warning);

// A line of code is flagged when it declares something as a control type: one of twenty fragments such as "as textbox"
// or "as vb.label" stands in it, at any position and in any case. They all begin with "as ", which is what to look for;
// nAt is a place where that stands.
using FlagA = OneOfFolded<u'a'>;
using FlagS = OneOfFolded<u's'>;
using FlagBlank = OneOf<u' '>;
bool NamesControlTypeAt(std::u16string_view sLine, std::size_t nAt);

} // namespace orvanta
