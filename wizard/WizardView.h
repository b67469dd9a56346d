#pragma once

#include "base/TaggedValue.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// What the wizard's logic needs of its window. The window plugs in its controls; a test plugs in a record of them.

// A list box with a check mark at each item. Positions count from 0; Selected is the check state.
class WizardList {
public:
    virtual ~WizardList() = default;

    virtual void BeginUpdate() = 0;
    virtual void EndUpdate() = 0;
    virtual void Clear() = 0;
    // At Index, -1 for the end, with a tag that the list only keeps.
    virtual void AddItem(std::u16string_view s, std::int32_t Index, std::u16string_view vItemTag,
                         bool bItemChecked) = 0;
    virtual std::int32_t ListCount() const = 0;
    virtual std::u16string ListTag(std::int32_t Index) const = 0;
    virtual bool Selected(std::int32_t Index) const = 0;
    virtual void Selected(std::int32_t Index, bool bNewValue) = 0;
};

// The log grid as a saved log shows it. Columns and rows count from 1; widths are in pixels.
class LogTable {
public:
    virtual ~LogTable() = default;

    virtual std::int32_t Cols() const = 0;
    virtual std::int32_t Rows() const = 0;
    virtual std::u16string ColText(std::int32_t iCol) const = 0;
    virtual std::int32_t ColWidth(std::int32_t iCol) const = 0;
    virtual TaggedValue CellValue(std::int32_t iRow, std::int32_t iCol) const = 0;
};

// The controls whose visibility changes from step to step.
enum class StepControl : std::uint8_t { frmChooseProject, frmGrid, btnClose, frmFiles, btnSaveToLog };

// The members are called after the control that they reach.
class WizardView {
public:
    virtual ~WizardView() = default;

    virtual void Visible(StepControl control, bool bVisible) = 0;
    virtual void lblInfo(std::u16string_view sText) = 0;
    virtual void btnOpCaption(std::u16string_view sCaption) = 0;
    virtual void btnOpEnabled(bool bEnabled) = 0;
    virtual void frmGridCaption(std::u16string_view sCaption) = 0;
    virtual std::u16string txtProject() const = 0;
    virtual void txtProject(std::u16string_view sText) = 0;
    virtual bool chkUseTextLikeCombosPressed() const = 0;
    virtual bool chkComboImagesPressed() const = 0;
    virtual WizardList& lstFiles() = 0;
    virtual WizardList& lstControls() = 0;
    virtual const LogTable& fxgrid() const = 0;

    // The file dialogs over this window: a path, or the empty text on cancel. Arguments as in modCommDialogs.h.
    virtual std::u16string ShowOpen(const std::u16string& sFilter, const std::u16string& sTitle, std::int32_t& lFlags,
                                    const std::u16string& sStartDir, const std::u16string& sDefExt,
                                    const std::u16string& sDefaultFile) = 0;
    virtual std::u16string ShowSave(const std::u16string& sFilter, const std::u16string& sTitle, std::int32_t& lFlags,
                                    const std::u16string& sStartDir, const std::u16string& sDefaultFile,
                                    std::int32_t iFilterIndex, const std::u16string& sDefExt) = 0;
    // The folder of the running program.
    virtual std::u16string AppPath() const = 0;

    // Closes the window, and with it ends the program.
    virtual void Unload() = 0;
};

} // namespace orvanta
