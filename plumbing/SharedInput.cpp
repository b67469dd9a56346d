#include "plumbing/SharedInput.h"

#include <cstddef>
#include <iterator>

namespace orvanta {

std::int32_t MousePointerToCursorId(std::int32_t i) {
    constexpr std::int32_t kIds[] = {32512, 32512, 32515, 32513, 32641, 32640, 32643, 32645,
                                     32642, 32644, 32516, 32514, 32648, 32650, 32651, 32646};
    if (i < 0 || static_cast<std::size_t>(i) >= std::size(kIds)) return 0;
    return kIds[i];
}

} // namespace orvanta
