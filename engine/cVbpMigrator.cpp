#include "engine/cVbpMigrator.h"

#include "engine/FormPass.h"
#include "engine/ProjectIntake.h"
#include "engine/RunLog.h"
#include "engine/UpgradePass.h"

#include <cstddef>
#include <cstdint>

namespace orvanta {

namespace {

void AddLogColumn(LogGrid& fxgrid, std::u16string_view sText, const char16_t* sKey) {
    constexpr std::int32_t kAutomaticWidth = -1;
    constexpr std::int32_t kLeft = 0;
    constexpr std::int32_t kCentre = 2;
    constexpr std::int32_t kTextType = 0;
    fxgrid.AddColumn(sText, kAutomaticWidth, kLeft, TaggedValue(sKey), true, kCentre, false, false, false, kTextType,
                     true);
}

} // namespace

void cVbpMigrator::GetProjectCollFiles(std::u16string_view sPathFileName, Collection<std::u16string>& oCollRelFiles,
                                       bool& bLibraryReferenced) const {
    ReadProject(m_world, sPathFileName, oCollRelFiles, bLibraryReferenced);
}

bool cVbpMigrator::pvReadMembers(std::u16string_view sPathFileName, Collection<std::u16string>& oCollRelFiles) const {
    bool bLibraryReferenced = false;
    GetProjectCollFiles(sPathFileName, oCollRelFiles, bLibraryReferenced);
    if (oCollRelFiles.Empty()) {
        m_world.UniMsgError(u"An error occured while reading the project files, no files found.");
        return false;
    }
    if (!bLibraryReferenced) {
        m_world.UniMsgError(u"Library \"Orvanta\" not referenced, please add the reference to the project first.");
        return false;
    }
    return true;
}

bool cVbpMigrator::Convert(std::u16string_view sPathFileName, const Collection<std::u16string>& oCollFilesToConvert,
                           LogGrid& fxgrid, bool bUseTextLikeCombos, bool bUseComboImages) const {
    Collection<std::u16string> oMembers;
    if (!pvReadMembers(sPathFileName, oMembers)) return false;
    fxgrid.Clear(true);
    AddLogColumn(fxgrid, u"Source", u"src");
    AddLogColumn(fxgrid, u"Line", u"line");
    AddLogColumn(fxgrid, u"Description", u"descr");
    RunLog log(m_world, fxgrid, RunLog::Columns::SourceLineDescription);
    for (std::size_t n = 1; n <= oCollFilesToConvert.Count(); ++n) {
        ConvertFile(oCollFilesToConvert.Item(n), {bUseTextLikeCombos, bUseComboImages}, m_world, log);
    }
    return true;
}

bool cVbpMigrator::Upgrade(std::u16string_view sPathFileName, LogGrid& fxgrid) const {
    Collection<std::u16string> oMembers;
    if (!pvReadMembers(sPathFileName, oMembers)) return false;
    fxgrid.Clear(true);
    AddLogColumn(fxgrid, u"Source", u"src");
    AddLogColumn(fxgrid, u"Description", u"descr");
    RunLog log(m_world, fxgrid, RunLog::Columns::SourceDescription);
    for (std::size_t n = 1; n <= oMembers.Count(); ++n)
        UpgradeFile(oMembers.Item(n), false, m_world, log);
    UpgradeFile(sPathFileName, true, m_world, log);
    return true;
}

} // namespace orvanta
