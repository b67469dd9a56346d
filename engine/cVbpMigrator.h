#pragma once

#include "base/Collection.h"
#include "engine/EngineWorld.h"

#include <string>
#include <string_view>

namespace orvanta {

// Moves a Visual Basic 6 project onto the library: Upgrade brings a project that uses an older version to the current
// one, Convert replaces the standard controls of chosen files. Files are rewritten in place, without a backup.
// Everything that happens goes to the log grid, which is kept for the time of the call only.
class cVbpMigrator {
public:
    // The world is used in every call and not owned.
    explicit cVbpMigrator(EngineWorld& world) : m_world(world) {}

    // Full paths of the project's forms and user controls, in the order of its lines, and whether the library is
    // mentioned.
    void GetProjectCollFiles(std::u16string_view sPathFileName, Collection<std::u16string>& oCollRelFiles,
                             bool& bLibraryReferenced) const;

    // True: the run reached its end; what became of each file is in the log. False, after a message box: the project
    // has no members or does not mention the library, and the grid is untouched.
    bool Convert(std::u16string_view sPathFileName, const Collection<std::u16string>& oCollFilesToConvert,
                 LogGrid& fxgrid, bool bUseTextLikeCombos, bool bUseComboImages) const;
    // Likewise. Goes over every member and at last over the project file.
    bool Upgrade(std::u16string_view sPathFileName, LogGrid& fxgrid) const;

private:
    bool pvReadMembers(std::u16string_view sPathFileName, Collection<std::u16string>& oCollRelFiles) const;

    EngineWorld& m_world;
};

} // namespace orvanta
