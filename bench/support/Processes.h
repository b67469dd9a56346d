#pragma once

#include <string>
#include <vector>

namespace orvanta::bench {

struct ProcessCost {
    double dSeconds;  // from start to end
    double dMegabyte; // most memory held at a time
};

// Runs a program to its end. Raises std::runtime_error when it cannot be started or does not end with 0.
ProcessCost RunProcess(const std::vector<std::string>& arguments);

} // namespace orvanta::bench
