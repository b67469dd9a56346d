#pragma once

#include "base/Event.h"
#include "controls/contract/DataObject.h"

#include <cstdint>

namespace orvanta {

// The events of the control contract, in groups. A control takes over the groups that it raises. A handler may change
// every argument that is a reference; what comes of it is the control's matter.

// X and Y are pixels of the control's client area. Button: 1 left, 2 right, 4 middle (a sum of them in MouseMove).
// Shift: 1 Shift, 2 Ctrl, 4 Alt.
struct MouseEvents {
    using MouseEvent = Event<std::int16_t&, std::int16_t&, float&, float&>;

    Event<> Click;
    Event<> DblClick;
    MouseEvent MouseDown; // Button, Shift, X, Y
    MouseEvent MouseMove;
    MouseEvent MouseUp;
};

// KeyCode is a virtual key code, KeyAscii a UTF-16 code unit.
struct KeyEvents {
    Event<std::int16_t&, std::int16_t&> KeyDown; // KeyCode, Shift
    Event<std::int16_t&> KeyPress;               // KeyAscii
    Event<std::int16_t&, std::int16_t&> KeyUp;   // KeyCode, Shift
};

struct ResizeEvents {
    Event<> Resize;
};

// Effects and states are those of DataObject.h.
struct OleEvents {
    Event<DataObject&, std::int32_t&> OLEStartDrag; // Data, AllowedEffects
    Event<DataObject&, std::int16_t&> OLESetData;   // Data, DataFormat
    Event<std::int32_t&, bool&> OLEGiveFeedback;    // Effect, DefaultCursors
    Event<DataObject&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&, std::int16_t&>
        OLEDragOver; // Data, Effect, Button, Shift, X, Y, State
    Event<DataObject&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&>
        OLEDragDrop;                      // Data, Effect, Button, Shift, X, Y
    Event<std::int32_t&> OLECompleteDrag; // Effect
};

} // namespace orvanta
