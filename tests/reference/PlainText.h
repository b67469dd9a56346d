#pragma once

#include "tests/reference/PlainEngine.h"

#include <string>

// Text helpers of the plain engine. A blank is U+0020 and nothing else; a tab is no blank. Lower case is that of ASCII.
namespace orvanta::reference {

bool StartsWith(const std::u16string& text, const std::u16string& start);
bool Contains(const std::u16string& text, const std::u16string& part);
std::u16string Left(const std::u16string& text, std::size_t count);
std::u16string TrimStart(const std::u16string& text);
std::u16string Trim(const std::u16string& text);
std::u16string Lower(const std::u16string& text);

// Every occurrence, found from left to right, none of them overlapping.
std::u16string ReplaceAll(const std::u16string& text, const std::u16string& find, const std::u16string& by);

// An empty text has no pieces.
PlainLines SplitAt(const std::u16string& text, const std::u16string& separator);

// Each line and CR LF, also behind the last.
std::u16string JoinLines(const PlainLines& lines);

// Cells of a log row: split at tabs, filled up or cut to the number of columns.
PlainLogRow LogRow(const std::u16string& rowText, std::size_t columns, int fore = -1, int back = -1);

} // namespace orvanta::reference
