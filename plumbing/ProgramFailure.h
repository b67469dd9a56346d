#pragma once

#include "base/Failure.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// The file name of the running program, without folder and without ".exe".
std::u16string ExecutableName();

// The failures of the message layer. A code above 1,000 gets the number 0x80040000 ored with the code, the program's
// name and ".WindowProc" as source, and the given description. A code up to 1,000 is a number of the run-time system
// and gets its standard text.
Failure PlumbingFailure(std::uint32_t lCode, std::u16string_view sDescription);

} // namespace orvanta
