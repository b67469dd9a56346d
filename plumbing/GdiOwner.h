#pragma once

#include <windows.h>

#include <utility>

namespace orvanta {

// Owners of GDI handles. Each holds one handle or none, releases it in its destructor, and can be moved, not copied.
// An object must not be selected into a DC when its owner goes: declare the owner before the Selection that uses it.
// None of them raises anything; a failed creation is an owner that is false.

template<typename Handle, auto Close>
class GdiOwner {
public:
    GdiOwner() = default;
    explicit GdiOwner(Handle handle) : m_handle(handle) {}
    GdiOwner(GdiOwner&& other) noexcept : m_handle(other.Release()) {}
    GdiOwner& operator=(GdiOwner&& other) noexcept {
        if (this != &other) Reset(other.Release());
        return *this;
    }
    ~GdiOwner() { Reset(); }

    Handle Get() const { return m_handle; }
    explicit operator bool() const { return m_handle != nullptr; }

    // Gives the handle away; the caller owns it then.
    Handle Release() { return std::exchange(m_handle, nullptr); }
    // Releases the present handle and takes over another one.
    void Reset(Handle handle = nullptr) {
        if (m_handle) Close(m_handle);
        m_handle = handle;
    }

private:
    Handle m_handle = nullptr;
};

inline void CloseGdiObject(HGDIOBJ object) {
    DeleteObject(object);
}
inline void CloseMemoryDc(HDC dc) {
    DeleteDC(dc);
}

using OwnedPen = GdiOwner<HPEN, CloseGdiObject>;
using OwnedBrush = GdiOwner<HBRUSH, CloseGdiObject>;
using OwnedBitmap = GdiOwner<HBITMAP, CloseGdiObject>;
using OwnedFont = GdiOwner<HFONT, CloseGdiObject>;
using OwnedRegion = GdiOwner<HRGN, CloseGdiObject>;
using OwnedPalette = GdiOwner<HPALETTE, CloseGdiObject>;
// What CreateDC, CreateIC and CreateCompatibleDC give.
using OwnedDc = GdiOwner<HDC, CloseMemoryDc>;

// The DC of a window's client area for as long as the object lives; of the whole screen for no window.
class WindowDc {
public:
    explicit WindowDc(HWND window) : m_window(window), m_dc(GetDC(window)) {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() {
        if (m_dc) ReleaseDC(m_window, m_dc);
    }

    HDC Get() const { return m_dc; }
    explicit operator bool() const { return m_dc != nullptr; }

private:
    HWND m_window;
    HDC m_dc;
};

// Selects a pen, brush, bitmap or font into a DC and puts the previous one back at its end. False when the selection
// failed; nothing is put back then.
class Selection {
public:
    Selection(HDC dc, HGDIOBJ object) : m_dc(dc), m_previous(dc && object ? SelectObject(dc, object) : nullptr) {
        if (m_previous == HGDI_ERROR) m_previous = nullptr;
    }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() {
        if (m_previous) SelectObject(m_dc, m_previous);
    }

    explicit operator bool() const { return m_previous != nullptr; }

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

} // namespace orvanta
