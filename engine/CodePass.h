#pragma once

#include "engine/LineArray.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta {

// The pass counts lines in 16 bits: a file of more lines than this cannot be worked on.
inline constexpr std::size_t kMostCodeLines = 32768;

// The library's text box fires KeyPress, Click and DblClick with one argument more than the standard one. For each
// name, in order, this rewrites the first lines of its handlers (plain or of a control array) and adds an argument to
// direct calls of a rewritten handler, in all lines of the file, description included. It is a matter of text search
// without any context: a call is whatever contains the handler's name inside a procedure, and only the first occurrence
// in a line is served.
//
// Raises Overflow, with nothing changed, when there is a name and the file has more than kMostCodeLines lines.
void FixEventSignatures(const std::vector<std::u16string>& oCollTextBoxes, LineArray& aLines);

} // namespace orvanta
