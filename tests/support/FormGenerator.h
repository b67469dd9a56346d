#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvanta::testing {

struct FormPlan {
    std::uint64_t nSeed = 1;
    std::size_t nControls = 100;  // control blocks in the description, frames included
    std::size_t nTextBoxes = 10;  // that many of them are text boxes with handlers in the code
    std::size_t nCodeLines = 500; // lines of code at least
};

// A form file as the IDE would save it, CR LF and code page 1252: nested frames, property lines and font groups, text
// boxes with handlers and calls, code that declares control types now and then. The same plan gives the same bytes.
std::string GenerateForm(const FormPlan& plan);

// A form of about nBytes, most of it description.
std::string GenerateFormOfSize(std::size_t nBytes, std::uint64_t nSeed);

} // namespace orvanta::testing
