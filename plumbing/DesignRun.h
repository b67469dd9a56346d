#pragma once

namespace orvanta {

// Marks the places where a program that runs inside a development environment would go another way. The built system
// never does.
constexpr bool IsDesignRun() {
    return false;
}

} // namespace orvanta
