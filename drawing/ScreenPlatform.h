#pragma once

#include "base/PixelRect.h"

#include <cstdint>

namespace orvanta {

// Pixels of the desktop, on which screens left of or above the primary one have negative coordinates.
using ScreenRect = PixelRect;

// The platform's own handles, HMONITOR and HWND.
using MonitorHandle = void*;
using WindowHandle = void*;

struct MonitorData {
    ScreenRect monitor;
    ScreenRect work;
    bool bPrimary = false;
};

// What clsSystemMetrics and clsScreens ask the platform.
class ScreenPlatform {
public:
    virtual std::int32_t Metric(std::int32_t i) const = 0;
    // The primary screen without its task bar.
    virtual ScreenRect WorkArea() const = 0;
    // All zero for a handle that is no monitor.
    virtual MonitorData Monitor(MonitorHandle hMonitor) const = 0;
    // The nearest monitor.
    virtual MonitorHandle MonitorOfPoint(std::int32_t X, std::int32_t Y) const = 0;
    virtual MonitorHandle MonitorOfWindow(WindowHandle hwnd) const = 0;
    virtual MonitorHandle MonitorOfRect(const ScreenRect& rect) const = 0;

    // The real one.
    static const ScreenPlatform& System();

protected:
    ~ScreenPlatform() = default;
};

} // namespace orvanta
