#pragma once

#include "engine/cVbpMigrator.h"
#include "plumbing/WideText.h"
#include "tests/support/PatchedImport.h"
#include "tests/support/RecordedLog.h"
#include "tests/support/TempFolder.h"
#include "wizard/EngineServices.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// The engine over files in a folder of its own for each test. The message boxes that it asks for are kept and answered
// at once, the log is recorded.
class EngineOnDiskFixture : public ::testing::Test {
protected:
    EngineOnDiskFixture() { Boxes().clear(); }

    // A project with the member a.frm.
    std::u16string Project() {
        return folder.Write(u"App.vbp", "Type=Exe\r\nForm=a.frm\r\nObject={1}#1.0#0; Orvanta31.ocx\r\n");
    }
    std::u16string Project(std::string_view sForm) {
        folder.Write(u"a.frm", sForm);
        return Project();
    }

    // Convert on the members that run intake finds.
    bool Convert(const std::u16string& sProject) {
        const cVbpMigrator migrator(world);
        Collection<std::u16string> files;
        bool bLibraryReferenced = false;
        migrator.GetProjectCollFiles(sProject, files, bLibraryReferenced);
        return migrator.Convert(sProject, files, log, false, false);
    }
    bool Upgrade(const std::u16string& sProject) { return cVbpMigrator(world).Upgrade(sProject, log); }

    std::string FormBytes() const { return TempFolder::Read(folder / u"a.frm"); }

    // The boxes that the program asked for, as "title: text".
    static std::vector<std::u16string>& Boxes() {
        static std::vector<std::u16string> boxes;
        return boxes;
    }

    TempFolder folder;
    std::vector<int> asked; // the kinds, in order
    EngineServices world{[this](int iKind) {
        asked.push_back(iKind);
        return iKind != 11;
    }};
    RecordedLog log;

private:
    static int WINAPI KeepBox(HWND, LPCWSTR text, LPCWSTR title, UINT) {
        Boxes().push_back(TextOfWide(title) + u": " + TextOfWide(text));
        return IDOK;
    }

    const PatchedImport<int WINAPI(HWND, LPCWSTR, LPCWSTR, UINT)> m_boxes{"MessageBoxW", &KeepBox};
};

} // namespace orvanta::testing
