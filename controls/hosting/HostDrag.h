#pragma once

#include "controls/contract/DataObject.h"
#include "drawing/ComReference.h"

#include <windows.h>

#include <oleidl.h>

#include <cstdint>

namespace orvanta {

class DropTarget;
class HostedControl;

// Drag and drop of one control by the platform's own drag loop. The interface thread initialises OLE once, with the
// first control that needs it.
class HostDrag {
public:
    HostDrag();
    HostDrag(const HostDrag&) = delete;
    HostDrag& operator=(const HostDrag&) = delete;
    ~HostDrag();

    // Makes the window a target, or no longer. The control must stand as long as it is one.
    void Accept(HWND window, HostedControl& control);
    void Refuse();

    // Runs a drag from the control until it ends.
    static void Run(HostedControl& control);

private:
    HWND m_window = nullptr;
    ComReference<DropTarget> m_target;
};

} // namespace orvanta
