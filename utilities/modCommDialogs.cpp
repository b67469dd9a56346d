#include "utilities/modCommDialogs.h"

#include "base/Failure.h"
#include "plumbing/SystemAnsiCodePage.h"
#include "plumbing/WideText.h"
#include "plumbing/WindowsVersion.h"

#include <commctrl.h>
#include <commdlg.h>
#include <ole2.h>
#include <shlobj.h>

#include <array>
#include <memory>

namespace orvanta {

namespace {

constexpr std::size_t kFileCharacters = 2047;
constexpr std::size_t kFileTitleCharacters = 259;

const wchar_t* NullForEmpty(const std::u16string& s) {
    return s.empty() ? nullptr : WideOf(s);
}

void RefuseOutputFlags(std::int32_t lFlags, std::u16string_view sSource) {
    // The flag 0x8000 as a signed 16-bit constant is -32768: it is refused only together with all bits above it, so
    // that the flag alone passes. Keep it so.
    constexpr std::int32_t kNoReadOnlyReturn = static_cast<std::int16_t>(OFN_NOREADONLYRETURN);
    if ((lFlags & OFN_EXTENSIONDIFFERENT) == 0 && (lFlags & kNoReadOnlyReturn) != kNoReadOnlyReturn) return;
    throw OwnFailure(sSource, u"Flags OFN_EXTENSIONDIFFERENT and OFN_NOREADONLYRETURN \r\n"
                              u"are used only in OUTPUT, you can test them after the \r\n"
                              u"dialog box closes by checking the lFlags value");
}

struct FileDialog {
    BOOL(WINAPI* show)(OPENFILENAMEW*);
    HWND hwndParent;
    const std::u16string& sFilter;
    const std::u16string& sTitle;
    const std::u16string& sStartDir;
    const std::u16string& sDefExt;
    const std::u16string& sDefaultFile;
    std::int32_t iFilterIndex;
};

std::u16string RunFileDialog(const FileDialog& dialog, std::int32_t& lFlags) {
    std::u16string sFile = dialog.sDefaultFile;
    sFile.resize(kFileCharacters);
    std::u16string sFileTitle(kFileTitleCharacters, u'\0');
    // The platform reads pairs up to an empty one: two NULs more than a careless caller gave.
    std::u16string sFilter = dialog.sFilter;
    if (!sFilter.empty()) sFilter += u'\0';

    OPENFILENAMEW record{};
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    record.hwndOwner = dialog.hwndParent;
    record.lpstrFilter = NullForEmpty(sFilter);
    record.nFilterIndex = static_cast<DWORD>(dialog.iFilterIndex);
    record.lpstrFile = WideBuffer(sFile);
    record.nMaxFile = kFileCharacters + 1;
    record.lpstrFileTitle = WideBuffer(sFileTitle);
    record.nMaxFileTitle = kFileTitleCharacters + 1;
    record.lpstrInitialDir = NullForEmpty(dialog.sStartDir);
    record.lpstrTitle = NullForEmpty(dialog.sTitle);
    record.lpstrDefExt = NullForEmpty(dialog.sDefExt);
    record.Flags = static_cast<DWORD>(lFlags) | OFN_EXPLORER;
    if (!dialog.show(&record)) return {};
    lFlags = static_cast<std::int32_t>(record.Flags);
    return sFile.substr(0, sFile.find(u'\0'));
}

class OleSession {
public:
    OleSession() : m_result(OleInitialize(nullptr)) {}
    OleSession(const OleSession&) = delete;
    OleSession& operator=(const OleSession&) = delete;
    ~OleSession() {
        if (SUCCEEDED(m_result)) OleUninitialize();
    }

private:
    HRESULT m_result;
};

using OwnedItemList = std::unique_ptr<void, decltype(&CoTaskMemFree)>;

constexpr UINT kFolderFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;

template<UINT lSetSelection>
int CALLBACK SelectStartFolder(HWND hwnd, UINT uMsg, LPARAM, LPARAM lStartFolder) {
    if (uMsg == BFFM_INITIALIZED && lStartFolder) SendMessageW(hwnd, lSetSelection, TRUE, lStartFolder);
    return 0;
}

std::u16string ShowDirWide(HWND hwndParent, const std::u16string& sStartFolder, const std::u16string& sTitle) {
    std::array<wchar_t, MAX_PATH> buffer{};
    BROWSEINFOW info{};
    info.hwndOwner = hwndParent;
    info.pszDisplayName = buffer.data();
    info.lpszTitle = WideOf(sTitle);
    info.ulFlags = kFolderFlags;
    info.lpfn = SelectStartFolder<BFFM_SETSELECTIONW>;
    info.lParam = reinterpret_cast<LPARAM>(NullForEmpty(sStartFolder));
    const OwnedItemList items(SHBrowseForFolderW(&info), &CoTaskMemFree);
    if (!items || !SHGetPathFromIDListW(static_cast<ITEMIDLIST*>(items.get()), buffer.data())) return {};
    return TextOfWide(buffer.data());
}

std::u16string ShowDirAnsi(HWND hwndParent, const std::u16string& sStartFolder, const std::u16string& sTitle) {
    const SystemAnsiCodePage& codePage = SystemAnsiCodePage::Instance();
    const std::string sTitleBytes = codePage.TextToBytes(sTitle);
    const std::string sStartBytes = codePage.TextToBytes(sStartFolder);
    std::array<char, MAX_PATH> buffer{};
    BROWSEINFOA info{};
    info.hwndOwner = hwndParent;
    info.pszDisplayName = buffer.data();
    info.lpszTitle = sTitleBytes.c_str();
    info.ulFlags = kFolderFlags;
    info.lpfn = SelectStartFolder<BFFM_SETSELECTIONA>;
    info.lParam = sStartBytes.empty() ? 0 : reinterpret_cast<LPARAM>(sStartBytes.c_str());
    const OwnedItemList items(SHBrowseForFolderA(&info), &CoTaskMemFree);
    if (!items || !SHGetPathFromIDListA(static_cast<ITEMIDLIST*>(items.get()), buffer.data())) return {};
    return codePage.BytesToText(buffer.data());
}

} // namespace

void InitDialogs() {
    InitCommonControls();
}

std::u16string ShowOpen(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                        std::int32_t& lFlags, const std::u16string& sStartDir, const std::u16string& sDefExt,
                        const std::u16string& sDefaultFile) {
    RefuseOutputFlags(lFlags, u"ShowOpen");
    return RunFileDialog({GetOpenFileNameW, hwndParent, sFilter, sTitle, sStartDir, sDefExt, sDefaultFile, 0}, lFlags);
}

std::u16string ShowSave(HWND hwndParent, const std::u16string& sFilter, const std::u16string& sTitle,
                        std::int32_t& lFlags, const std::u16string& sStartDir, const std::u16string& sDefaultFile,
                        std::int32_t iFilterIndex, const std::u16string& sDefExt) {
    RefuseOutputFlags(lFlags, u"ShowSave");
    return RunFileDialog(
        {GetSaveFileNameW, hwndParent, sFilter, sTitle, sStartDir, sDefExt, sDefaultFile, iFilterIndex}, lFlags);
}

std::u16string ShowDir(HWND hwndParent, const std::u16string& sStartFolder, const std::u16string& sTitle) {
    const OleSession ole;
    return IsWin2000OrLater() ? ShowDirWide(hwndParent, sStartFolder, sTitle)
                              : ShowDirAnsi(hwndParent, sStartFolder, sTitle);
}

} // namespace orvanta
