#pragma once

#include "engine/EngineWorld.h"
#include "engine/RunLog.h"

#include <string_view>

namespace orvanta {

// Moves one file from an older version of the library to the current one: its reference to the library, types that the
// library has since replaced, one renamed property. The file is written, in the ANSI code page and with one empty line
// more, only if a line was rewritten; a reference that is current already is rewritten all the same.
void UpgradeFile(std::u16string_view sPathFileName, bool bIsProjectFile, EngineWorld& world, RunLog& log);

} // namespace orvanta
