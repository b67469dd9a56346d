// The question of SharedColors.h to the platform.
#include "plumbing/SharedColors.h"

#include <windows.h>

namespace orvanta {

OleColor SystemColor(std::int32_t iIndex) {
    return static_cast<OleColor>(GetSysColor(iIndex));
}

} // namespace orvanta
