#pragma once

#include "plumbing/GdiOwner.h"

namespace orvanta {

// Owns one GDI object, so that a handle can be kept in a collection or a field, and deletes it at its end.
class clsGdiHandle {
public:
    clsGdiHandle() = default;
    clsGdiHandle(clsGdiHandle&&) = default;
    clsGdiHandle& operator=(clsGdiHandle&&) = default;

    // Lent; 0 when there is none.
    HGDIOBJ Handle() const { return m_handle.Get(); }
    // Deletes what it held and takes over l.
    void Handle(HGDIOBJ l) { m_handle.Reset(l); }

    void Destroy() { m_handle.Reset(); }
    // Gives the object away; the caller owns it then.
    HGDIOBJ ReleaseHandle() { return m_handle.Release(); }

private:
    GdiOwner<HGDIOBJ, CloseGdiObject> m_handle;
};

} // namespace orvanta
