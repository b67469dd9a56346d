#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

using Random = std::mt19937_64;

std::size_t Pick(Random& random, std::size_t nCount);

// A file made from this one by a few mutations: lines shuffled, doubled, dropped, cut, indented by blanks or a tab,
// blanks doubled, ends and openings added or taken away, the text cut anywhere.
std::string Mutated(std::string_view sFile, Random& random);

// A form of lines that the rules care about, in no sensible order: openings, closings, properties, references, code.
std::string RandomForm(Random& random, std::size_t nLines);

// Names and lines of code made to meet each other in every way: names that end each other, empty and odd ones, several
// calls on a line, lines that become procedure starts by an insertion, ends that are none.
std::vector<std::u16string> OddNames(Random& random);
std::u16string OddCode(Random& random, const std::vector<std::u16string>& names, std::size_t nLines);

} // namespace orvanta::testing
