#pragma once

#include "engine/ControlRules.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/RecordedLog.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// What the engine's tests share: a project with one form, driven through the engine, with everything turned into plain
// strings that read well in an expectation.

inline const std::u16string kProjectPath = u"C:\\Work\\App.vbp";
inline const std::u16string kFormPath = u"C:\\Work\\a.frm";
inline const std::string kProject = "Type=Exe\r\nForm=a.frm\r\nObject={1}#1.0#0; Orvanta28.ocx\r\n";

inline constexpr ComboOptions kNoOptions{};
inline constexpr ComboOptions kTextCombos{true, false};
inline constexpr ComboOptions kComboImages{false, true};
inline constexpr ComboOptions kBothOptions{true, true};

// Each line followed by CR LF.
std::string Lines(std::initializer_list<std::string_view> lines);

// The rows of a log, cells parted by "|", a colour of the description behind it: "a.frm||Error... [fore 255]". A colour
// in another cell shows as "[cell 0]".
std::vector<std::string> RowTexts(const RecordedLog& log);

// The row that counts the converted controls of a form, as RowTexts shows it.
inline constexpr const char* kOneConverted = "||Converted 1 controls [fore 16711680]";

struct Outcome {
    std::string sBytes; // of the form afterwards
    bool bResult = false;
    std::vector<std::string> rows;
    std::vector<std::string> boxes;
};

Outcome OutcomeOf(bool bResult, const FakeWorld& world, const RecordedLog& log);

// The world's project and form (kProjectPath, kFormPath) through Convert and Upgrade; kProject is put in when the world
// has no project.
Outcome ConvertIn(FakeWorld& world, ComboOptions options = kNoOptions);
Outcome UpgradeIn(FakeWorld& world);

// A form of these bytes in a world where all kinds are selected.
Outcome ConvertForm(std::string sForm, ComboOptions options = kNoOptions);
Outcome UpgradeForm(std::string sForm);

// A form with this one control block in it, and the same block as Convert leaves it. The lines of the block start with
// its `Begin ` line, whose index is 1, and end with its "End".
Outcome ConvertBlock(std::initializer_list<std::string_view> block, ComboOptions options = kNoOptions);
std::string InForm(std::initializer_list<std::string_view> block);
std::string InConvertedForm(std::initializer_list<std::string_view> block);

} // namespace orvanta::testing
