#pragma once

#include "engine/ControlRules.h"
#include "engine/EngineWorld.h"
#include "engine/RunLog.h"

#include <string_view>

namespace orvanta {

// Converts one form or user-control file in place: its control blocks by the catalogue, then the handlers of its text
// boxes in the code. Nothing survives a call: counts, warnings and names are those of the file.
//
// The file is saved in the ANSI code page and with one empty line more, also when nothing was converted. A file that
// cannot be read gets its red row and one box, and is left alone.
void ConvertFile(std::u16string_view sPathFileName, ComboOptions options, EngineWorld& world, RunLog& log);

} // namespace orvanta
