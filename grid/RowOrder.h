#pragma once

#include "grid/clsCtlUniGrid_Column.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace orvanta {

// The order of rows by the cells of one column. Rows with equal cells end in the order that the steps of these sorts
// leave, which is in general neither their earlier order nor any other: the steps are part of the result.

// Old row numbers in ascending order. Texts compare by the user's language without case; numbers by size, true as -1,
// any number before any text, as empty number cells are. lRows are the rows of the grid.
std::vector<std::int32_t> AscendingRows(const clsCtlUniGrid_Column& column, std::int32_t lRows);

// Exchanges rows until the owner is content. isBehind(iRow1, iRow2, bAnswer) is asked whether iRow1 is to stand after
// iRow2; bAnswer comes in as the previous answer left it. Either callback may end the sort by answering false.
using AskOwner = std::function<bool(std::int32_t iRow1, std::int32_t iRow2, bool& bAnswer)>;
using ExchangeRows = std::function<bool(std::int32_t iRow1, std::int32_t iRow2)>;
bool SortByOwner(std::int32_t lRows, const AskOwner& isBehind, const ExchangeRows& exchange);

} // namespace orvanta
