#pragma once

#include <string>
#include <string_view>

namespace orvanta::testing {

// Real UTF-8, for what meets the world outside: command lines, JSON, test output. Surrogate pairs are one character; a
// lone surrogate, or a byte sequence that is no UTF-8, becomes U+FFFD.
std::string ToUtf8(std::u16string_view s);
std::u16string FromUtf8(std::string_view s);

} // namespace orvanta::testing
