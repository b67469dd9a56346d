#pragma once

#include "engine/ControlRules.h"

#include <array>
#include <string>
#include <string_view>

namespace orvanta::testing {

// The engine against the plain engine, on one file.

struct PlainCase {
    std::array<bool, 12> kinds = {true, true, true, true, true, true, true, true, true, true, true, true};
    ComboOptions options;
    bool bSaves = true;
};

// Each converts or upgrades a file of these bytes by both engines and compares the bytes that are saved, the rows with
// their colours and the boxes. The result is empty when they agree, otherwise what differs. Bytes that cannot be read
// are compared as an unreadable file.
std::string ConvertDifference(std::string_view sBytes, const PlainCase& plainCase);
std::string UpgradeDifference(std::string_view sBytes, bool bIsProjectFile, bool bSaves);

} // namespace orvanta::testing
