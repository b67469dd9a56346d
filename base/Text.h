#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// Helpers on text of 16-bit code units. Only the blank (U+0020) is trimmed, never a tab: that is how the system's files
// are read everywhere. Nothing here depends on a locale.

std::u16string_view TrimBlanksLeft(std::u16string_view s);
std::u16string_view TrimBlanksRight(std::u16string_view s);
std::u16string_view TrimBlanks(std::u16string_view s);

constexpr char16_t LowerAscii(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + (u'a' - u'A')) : c;
}
std::u16string LowerAscii(std::u16string_view s);
// True when both are equal with ASCII letters folded.
bool EqualsAsciiFolded(std::u16string_view a, std::u16string_view b);

// One code unit with upper and lower case alike: the letters of the western, central and eastern European, Turkish,
// Baltic, Greek, Cyrillic and Vietnamese code pages, and all of U+0000 to U+017F. Others are left as they are, and so
// is the dotted I.
char16_t FoldCase(char16_t c);
std::u16string FoldCase(std::u16string_view s);

// Every occurrence of sFind, searched from left to right behind the previous one. An empty sFind changes nothing.
std::u16string ReplaceAll(std::u16string_view s, std::u16string_view sFind, std::u16string_view sReplace);
// The same with upper and lower case alike in the search.
std::u16string ReplaceAllTextCompare(std::u16string_view s, std::u16string_view sFind, std::u16string_view sReplace);

// The pieces between the separators, as views into s. An empty s has no piece at all; n separators make n + 1 pieces;
// an empty separator separates nothing.
std::vector<std::u16string_view> Split(std::u16string_view s, std::u16string_view sSeparator);

// The pieces one behind the other.
std::u16string Concat(std::initializer_list<std::u16string_view> pieces);

// The number in decimal digits, with a leading "-" below zero.
std::u16string DecimalText(long long lValue);

} // namespace orvanta
