#pragma once

#include <cstdint>

namespace orvanta {

// Tells clicks from presses and releases. Buttons are 1 left, 2 right, 4 middle.
class MousePresses {
public:
    void Press(std::int16_t iButton) { m_iPressed = iButton; }
    // The second press of a double click: its release is no click of its own.
    void DoublePress() { m_iPressed = 0; }
    // Whether the release completes a click: of the button that was pressed last, and over the control.
    bool Release(std::int16_t iButton, bool bInside) {
        const bool bClick = m_iPressed == iButton && bInside;
        if (m_iPressed == iButton) m_iPressed = 0;
        return bClick;
    }
    void Forget() { m_iPressed = 0; }

private:
    std::int16_t m_iPressed = 0;
};

// The buttons that are down, as a sum, from the key state that mouse messages bring.
constexpr std::int16_t ButtonsOfKeyState(std::uint32_t lKeyState) {
    constexpr std::uint32_t kMiddleKey = 16; // the platform's bit; left and right stand where ours do
    return static_cast<std::int16_t>((lKeyState & 3u) | ((lKeyState & kMiddleKey) != 0 ? 4u : 0u));
}

// Shift 1, Ctrl 2 from the same; Alt is not in it.
constexpr std::int16_t ShiftOfKeyState(std::uint32_t lKeyState) {
    return static_cast<std::int16_t>(((lKeyState & 4u) != 0 ? 1 : 0) | ((lKeyState & 8u) != 0 ? 2 : 0));
}

} // namespace orvanta
