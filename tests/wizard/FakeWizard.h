#pragma once

#include "engine/EngineWorld.h"
#include "tests/support/FakeWorld.h"
#include "tests/support/RecordedLog.h"
#include "wizard/WizardSteps.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// The wizard's window as a record: what each control shows now, and every call in order.

class FakeList final : public WizardList {
public:
    struct Item {
        std::u16string sText;
        std::u16string sTag;
        bool bSelected;
        bool operator==(const Item&) const = default;
    };

    void BeginUpdate() override { calls.emplace_back(u"BeginUpdate"); }
    void EndUpdate() override { calls.emplace_back(u"EndUpdate"); }
    void Clear() override {
        calls.emplace_back(u"Clear");
        items.clear();
    }
    void AddItem(std::u16string_view s, std::int32_t Index, std::u16string_view vItemTag, bool bItemChecked) override {
        calls.push_back(u"AddItem " + std::u16string(s));
        places.push_back(Index);
        items.push_back({std::u16string(s), std::u16string(vItemTag), bItemChecked});
    }
    std::int32_t ListCount() const override { return static_cast<std::int32_t>(items.size()); }
    std::u16string ListTag(std::int32_t Index) const override { return items.at(static_cast<std::size_t>(Index)).sTag; }
    bool Selected(std::int32_t Index) const override { return items.at(static_cast<std::size_t>(Index)).bSelected; }
    void Selected(std::int32_t Index, bool bNewValue) override {
        calls.emplace_back(u"Selected");
        items.at(static_cast<std::size_t>(Index)).bSelected = bNewValue;
    }

    std::vector<Item> items;
    std::vector<std::int32_t> places; // the Index of each AddItem
    std::vector<std::u16string> calls;
};

// A recorded log with column widths of the test's own.
class FakeTable final : public LogTable {
public:
    explicit FakeTable(const RecordedLog& log) : m_log(log) {}

    std::int32_t Cols() const override { return static_cast<std::int32_t>(m_log.Columns().size()); }
    std::int32_t Rows() const override { return static_cast<std::int32_t>(m_log.Rows().size()); }
    std::u16string ColText(std::int32_t iCol) const override { return m_log.Columns().at(At(iCol)).sText; }
    std::int32_t ColWidth(std::int32_t iCol) const override { return widths.at(At(iCol)); }
    TaggedValue CellValue(std::int32_t iRow, std::int32_t iCol) const override {
        return m_log.Rows().at(At(iRow)).cells.at(At(iCol));
    }

    std::vector<std::int32_t> widths = {50, 25, 100};

private:
    static std::size_t At(std::int32_t i) { return static_cast<std::size_t>(i - 1); }

    const RecordedLog& m_log;
};

class FakeWizardView final : public WizardView {
public:
    explicit FakeWizardView(const RecordedLog& log) : table(log) {}

    void Visible(StepControl control, bool bVisible) override {
        visible.at(static_cast<std::size_t>(control)) = bVisible;
    }
    void lblInfo(std::u16string_view sText) override { infos.emplace_back(sText); }
    void btnOpCaption(std::u16string_view sCaption) override { sBtnOp = sCaption; }
    void btnOpEnabled(bool bEnabled) override { bBtnOpEnabled = bEnabled; }
    void frmGridCaption(std::u16string_view sCaption) override { sGridCaption = sCaption; }
    std::u16string txtProject() const override { return sProject; }
    void txtProject(std::u16string_view sText) override { sProject = sText; }
    bool chkUseTextLikeCombosPressed() const override { return bTextLikeCombos; }
    bool chkComboImagesPressed() const override { return bComboImages; }
    WizardList& lstFiles() override { return files; }
    WizardList& lstControls() override { return controls; }
    const LogTable& fxgrid() const override {
        if (pTableFailure) throw Failure(*pTableFailure);
        return table;
    }
    std::u16string ShowOpen(const std::u16string& sFilter, const std::u16string& sTitle, std::int32_t& lFlags,
                            const std::u16string& sStartDir, const std::u16string& sDefExt,
                            const std::u16string& sDefaultFile) override {
        dialog = {sFilter, sTitle, lFlags, sStartDir, sDefExt, sDefaultFile, 0};
        ++nDialogs;
        return sDialogAnswer;
    }
    std::u16string ShowSave(const std::u16string& sFilter, const std::u16string& sTitle, std::int32_t& lFlags,
                            const std::u16string& sStartDir, const std::u16string& sDefaultFile,
                            std::int32_t iFilterIndex, const std::u16string& sDefExt) override {
        dialog = {sFilter, sTitle, lFlags, sStartDir, sDefExt, sDefaultFile, iFilterIndex};
        ++nDialogs;
        return sDialogAnswer;
    }
    std::u16string AppPath() const override { return u"C:\\Program"; }
    void Unload() override { bUnloaded = true; }

    // The visible ones among the controls that come and go, in the order of their enumeration.
    std::u16string Shown() const {
        static constexpr std::array<std::u16string_view, 5> kNames = {u"frmChooseProject", u"frmGrid", u"btnClose",
                                                                      u"frmFiles", u"btnSaveToLog"};
        std::u16string s;
        for (std::size_t n = 0; n < kNames.size(); ++n) {
            if (visible[n]) s += (s.empty() ? u"" : u" ") + std::u16string(kNames[n]);
        }
        return s;
    }
    std::u16string Info() const { return infos.empty() ? u"" : infos.back(); }

    struct Dialog {
        std::u16string sFilter, sTitle;
        std::int32_t lFlags;
        std::u16string sStartDir, sDefExt, sDefaultFile;
        std::int32_t iFilterIndex;
    };

    std::array<bool, 5> visible{true, true, true, true, true};
    std::vector<std::u16string> infos; // every text of lblInfo
    std::u16string sBtnOp, sGridCaption, sProject;
    bool bBtnOpEnabled = true, bTextLikeCombos = false, bComboImages = false, bUnloaded = false;
    FakeList files, controls;
    FakeTable table;
    const Failure* pTableFailure = nullptr;
    Dialog dialog{};
    int nDialogs = 0;
    std::u16string sDialogAnswer;
};

// A world of files in memory whose control kinds are those of the window's list, as in the program.
class FakeWizardWorld final : public EngineWorld {
public:
    explicit FakeWizardWorld(const FakeWizardView& view) : m_view(view) {}

    bool st_FileExist(std::u16string_view s) override { return files.st_FileExist(s); }
    bool st_TextFileToString(std::u16string_view s, std::u16string& sText, bool bRaiseError) override {
        return files.st_TextFileToString(s, sText, bRaiseError);
    }
    bool st_StringToTextFile(std::u16string_view s, std::u16string_view sText, FileEncoding iEncoding,
                             bool bRaiseError) override {
        return files.st_StringToTextFile(s, sText, iEncoding, bRaiseError);
    }
    void UniMsgError(std::u16string_view sText) override { files.UniMsgError(sText); }
    bool Selected(int iKind) override { return m_view.controls.Selected(iKind); }

    FakeWorld files;

private:
    const FakeWizardView& m_view;
};

// The log grid with an eye on the window: what it showed when a run emptied the grid.
class WatchedGrid final : public LogGrid {
public:
    explicit WatchedGrid(RecordedLog& log) : m_log(log) {}

    void Clear(bool bClearHeader) override {
        sInfoAtClear = view->Info();
        sCaptionAtClear = view->sGridCaption;
        sBtnOpAtClear = view->sBtnOp;
        m_log.Clear(bClearHeader);
    }
    void AddColumn(std::u16string_view sText, std::int32_t iWidth, std::int32_t iAlign, const TaggedValue& vKey,
                   bool bResizable, std::int32_t iHeaderAlign, bool bSortable, bool bSortWithCustomEvent,
                   bool bRightToLeft, std::int32_t iType, bool bAllowEmptyNumbers) override {
        m_log.AddColumn(sText, iWidth, iAlign, vKey, bResizable, iHeaderAlign, bSortable, bSortWithCustomEvent,
                        bRightToLeft, iType, bAllowEmptyNumbers);
    }
    void AddRow(std::u16string_view sRowText, bool bSelect) override { m_log.AddRow(sRowText, bSelect); }
    std::int32_t Row() const override { return m_log.Row(); }
    void CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) override {
        m_log.CellForeColor(iRow, vColKey, lColor);
    }
    void CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) override {
        m_log.CellBackColor(iRow, vColKey, lColor);
    }

    const FakeWizardView* view = nullptr;
    std::u16string sInfoAtClear, sCaptionAtClear, sBtnOpAtClear;

private:
    RecordedLog& m_log;
};

} // namespace orvanta::testing
