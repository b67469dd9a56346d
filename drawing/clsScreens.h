#pragma once

#include "drawing/clsSystemMetrics.h"

#include <cstdint>

namespace orvanta {

// Answers about monitors. On systems without the monitor calls (Windows 95, NT 3, NT 4 and the like) every answer is
// that of the one screen, so callers need not care. All values are pixels of the desktop. A handle that is no monitor
// has an empty rectangle.
class clsScreens {
public:
    clsScreens();
    // platform must outlive the object; lVersionClass is a class of WindowsVersion.
    clsScreens(const ScreenPlatform& platform, std::int32_t lVersionClass);

    std::int32_t Count() const;
    bool AllSameColourDepth() const;
    bool Enabled(MonitorHandle hMonitor) const;
    bool IsPrimaryMon(MonitorHandle hMonitor) const;

    std::int32_t Height(MonitorHandle hMonitor) const;
    std::int32_t Width(MonitorHandle hMonitor) const;
    std::int32_t WidthPriMon() const { return m_metrics.ScreenWidth(); }
    std::int32_t HeightPriMon() const { return m_metrics.ScreenHeight(); }
    std::int32_t top(MonitorHandle hMonitor) const;
    std::int32_t left(MonitorHandle hMonitor) const;

    // The monitor without its task bar.
    std::int32_t WorkHeight(MonitorHandle hMonitor) const;
    std::int32_t WorkWidth(MonitorHandle hMonitor) const;
    std::int32_t WorkTop(MonitorHandle hMonitor) const;
    std::int32_t WorkLeft(MonitorHandle hMonitor) const;

    // The rectangle around all monitors. Left and top are negative when one stands left of or above the primary one.
    std::int32_t VirtualLeft() const;
    std::int32_t VirtualTop() const;
    std::int32_t VirtualWidth() const;
    std::int32_t VirtualHeight() const;

    // The nearest monitor; nullptr without the monitor calls.
    MonitorHandle GetMonitorHandleFromPoint(std::int32_t X, std::int32_t Y) const;
    MonitorHandle GetMonitorHandleFromWindow(WindowHandle hwnd) const;
    MonitorHandle GetMonitorHandleFromRect(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2) const;

private:
    const ScreenPlatform* m_platform;
    clsSystemMetrics m_metrics;
    bool m_bMonitorApi;
};

} // namespace orvanta
