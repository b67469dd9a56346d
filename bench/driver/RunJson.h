#pragma once

#include "tests/support/RecordedLog.h"

#include <string>
#include <vector>

namespace orvanta::driver {

// One object: "result", "columns" (header texts), "rows" (objects with "cells", and "fore" and "back", the colours of
// the description cell as numbers, -1 for none) and "boxes" (texts of the message boxes in order).
std::string RunJson(bool bResult, const testing::RecordedLog& log, const std::vector<std::u16string>& boxes);

} // namespace orvanta::driver
