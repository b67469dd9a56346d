#pragma once

#include "drawing/ComReference.h"

#include <windows.h>

#include <oleidl.h>

namespace orvanta {

class FrameObject;
class SiteObject;
class ActiveHostObject;

// A form as the frame and document window of in-place activation: it knows one active object, which is asked first for
// each key.
class InPlaceFrame {
public:
    InPlaceFrame();
    InPlaceFrame(const InPlaceFrame&) = delete;
    InPlaceFrame& operator=(const InPlaceFrame&) = delete;
    ~InPlaceFrame();

    void Attach(HWND window);
    void Detach();

    // Lent.
    IOleInPlaceFrame* Frame() const;

    IOleInPlaceActiveObject* ActiveObject() const;
    // Keeps a reference until the next one comes.
    void SetActiveObject(IOleInPlaceActiveObject* object);
    // Whether the active object is one of this window.
    bool HasObjectOf(HWND window) const;
    // Whether the active object has taken the key.
    bool OfferKey(const MSG& message) const;

private:
    ComReference<FrameObject> m_object;
};

// A control's place in its form, and its own active object: the one that takes no keys. They outlive the host as long
// as somebody holds references, and answer with failures then.
class HostInPlace {
public:
    HostInPlace();
    HostInPlace(const HostInPlace&) = delete;
    HostInPlace& operator=(const HostInPlace&) = delete;
    ~HostInPlace();

    // Lent.
    IOleInPlaceSite* Site() const;
    IOleInPlaceActiveObject* ActiveObject() const;

    // frame must outlive the attachment.
    void Attach(HWND window, InPlaceFrame& frame);
    void Detach();

private:
    ComReference<SiteObject> m_site;
    ComReference<ActiveHostObject> m_active;
};

} // namespace orvanta
