#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// A line as the code pass sees it. A start may be a declaration or a comment as well; an end counts at the first column
// only, and not when the line is a start too (`End Sub ' note` contains " Sub "): the greater kind wins.
enum class CodeLineKind : std::uint8_t { Plain, ProcedureEnd, ProcedureStart };

CodeLineKind KindOfCodeLine(std::u16string_view sLine);
// The same as far as the word at nAt has a say in it. The kind of a line is the greatest that one of its words gives;
// only words that begin as "Sub" and "Function" do can give one.
CodeLineKind KindByWordAt(std::u16string_view sLine, std::size_t nAt);

// The line with one argument more in the call that starts at nCall, which is the first occurrence of sHandler in the
// line. With a
// "(" directly behind some occurrence, the argument goes before the bracket that closes the call, and an unclosed call
// stays as it is; otherwise before a comment, or at the end of the line. bHasArgs: the call already has an argument.
std::u16string WithArgument(std::u16string_view sLine, std::u16string_view sHandler, std::size_t nCall, bool bHasArgs);

} // namespace orvanta
