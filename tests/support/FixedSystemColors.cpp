// The system colours of the native tests.
#include "plumbing/SharedColors.h"

namespace orvanta {

OleColor SystemColor(std::int32_t iIndex) {
    return iIndex == 0x11 ? 0xA0A0A0 : MakeColor(iIndex, 2 * iIndex, 3 * iIndex);
}

} // namespace orvanta
