#pragma once

#include "base/Collection.h"
#include "engine/EngineWorld.h"

#include <string>
#include <string_view>

namespace orvanta {

// Reads a project file for two facts: which form and user-control files belong to it, as full paths in the order of its
// lines, and whether any other line names the library. A project that is missing or cannot be read has no member and no
// library.
void ReadProject(EngineWorld& world, std::u16string_view sPathFileName, Collection<std::u16string>& oCollRelFiles,
                 bool& bLibraryReferenced);

// The path rules of a project's member lines. They are looser than a path parser's, and are to stay so: a network path
// loses its first backslashes, "\.\" joins its neighbours, and two dots anywhere are a step up.

// The full path of a member named in the project. A path with a drive stays as it stands.
std::u16string ResolveProjectPath(std::u16string_view sProjectPathFileName, std::u16string_view sRelPath);
// A path or file URL in backslash form.
std::u16string NormalizePath(std::u16string_view sPath);
// The path without its dot segments.
std::u16string CollapseDots(std::u16string_view sPath);

} // namespace orvanta
