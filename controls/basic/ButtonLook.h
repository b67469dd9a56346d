#pragma once

namespace orvanta {

// What a button looks like, from what it knows of itself and its form.
struct ButtonState {
    bool bEnabled = true;
    bool bMouseDown = false;
    bool bTristate = false;
    bool bPressed = false;
    bool bHasFocus = false;
    bool bShowFocus = true;
    bool bDefault = false;
    bool bCancel = false;
};
struct ButtonLook {
    bool bPressed, bDefault, bCancel, bFocus;
    bool operator==(const ButtonLook&) const = default;
};
constexpr ButtonLook LookOfButton(const ButtonState& s) {
    return {s.bMouseDown || (s.bTristate && s.bPressed), s.bDefault && s.bEnabled, s.bCancel && s.bEnabled,
            s.bHasFocus && !s.bMouseDown && s.bEnabled && s.bShowFocus};
}

} // namespace orvanta
