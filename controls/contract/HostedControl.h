#pragma once

#include "controls/contract/DataObject.h"
#include "controls/contract/PropertyBag.h"
#include "controls/contract/PropertyValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// What a control is to its host, fixed for its life.
struct HostTraits {
    bool bCanGetFocus = true;     // takes the focus by mouse and Tab key, and a place in the tab order
    bool bHoldsControls = false;  // other controls may stand on it
    bool bActsLikeButton = false; // while it has the focus Enter is its own, and the default button does not get it
    bool bHasFace = true;         // false: no window at run time is ever visible
};

// A control as its host calls it. Every call is made inside a HostCall. What a call does not override does nothing.
// X and Y are pixels of the client area; Button and Shift are those of MouseEvents. A failure that comes out of a call
// is shown to the user.
class HostedControl {
public:
    virtual ~HostedControl() = default;

    virtual HostTraits Traits() const { return {}; }

    // One of these comes first: the one when the control is put on a form for the first time, the other on each later
    // load. OnResize follows.
    virtual void OnInitProperties() {}
    virtual void OnReadProperties(const PropertyBag&) {}
    // The form is saved.
    virtual void OnWriteProperties(PropertyBag&) {}

    // Draw on the host's hDC. Not called while the host retains its image.
    virtual void OnPaint() {}
    virtual void OnResize() {}
    virtual void OnAmbientChanged(std::u16string_view /*sProperty*/) {}
    virtual void OnShow() {}
    virtual void OnHide() {}
    // The last call; the window and what hangs on it still stand.
    virtual void OnTerminate() {}

    // A press and a release of one and the same button on the control are MouseDown, MouseUp, Click, whichever button
    // it is; the second press of a double click is DblClick alone, with a MouseUp behind it.
    virtual void OnClick() {}
    virtual void OnDblClick() {}
    virtual void OnMouseDown(std::int16_t /*Button*/, std::int16_t /*Shift*/, float /*X*/, float /*Y*/) {}
    virtual void OnMouseMove(std::int16_t /*Button*/, std::int16_t /*Shift*/, float /*X*/, float /*Y*/) {}
    virtual void OnMouseUp(std::int16_t /*Button*/, std::int16_t /*Shift*/, float /*X*/, float /*Y*/) {}

    // A key that the control changes to 0 goes no further.
    virtual void OnKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void OnKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void OnKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    // Alt and one of the host's AccessKeys; 13 for the default and 27 for the cancel button.
    virtual void OnAccessKeyPress(std::int16_t /*KeyAscii*/) {}
    // The focus comes to the control or to a window inside it, or leaves both.
    virtual void OnEnterFocus() {}
    virtual void OnExitFocus() {}

    // The drag family of OleEvents.
    virtual void OnOLEStartDrag(DataObject& /*Data*/, std::int32_t& /*AllowedEffects*/) {}
    virtual void OnOLESetData(DataObject& /*Data*/, std::int16_t& /*DataFormat*/) {}
    virtual void OnOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {}
    virtual void OnOLEDragOver(DataObject& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                               std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/) {}
    virtual void OnOLEDragDrop(DataObject& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                               std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void OnOLECompleteDrag(std::int32_t& /*Effect*/) {}

    // The persisted properties by name, without regard to case. False when there is no such property; setting does what
    // the public setter does.
    virtual std::vector<std::u16string> PropertyNames() const { return {}; }
    virtual bool GetProperty(std::u16string_view /*sName*/, PropertyValue& /*value*/) const { return false; }
    virtual bool PutProperty(std::u16string_view /*sName*/, const PropertyValue& /*value*/) { return false; }
};

} // namespace orvanta
