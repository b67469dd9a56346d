#include "drawing/clsScreens.h"

namespace orvanta {

namespace {

// An unknown system counts as a new one.
bool HasMonitorApi(std::int32_t lVersionClass) {
    switch (lVersionClass) {
    case 1:
    case 2:
    case 3:
    case 6:
    case 7: return false;
    default: return true;
    }
}

} // namespace

clsScreens::clsScreens(const ScreenPlatform& platform, std::int32_t lVersionClass)
    : m_platform(&platform), m_metrics(platform), m_bMonitorApi(HasMonitorApi(lVersionClass)) {}

std::int32_t clsScreens::Count() const {
    return m_bMonitorApi ? m_metrics.MonitorsCount() : 1;
}

bool clsScreens::AllSameColourDepth() const {
    constexpr std::int32_t kSameDisplayFormat = 81;
    return !m_bMonitorApi || m_metrics.GetMetric(kSameDisplayFormat) != 0;
}

bool clsScreens::Enabled(MonitorHandle hMonitor) const {
    return !m_bMonitorApi || Width(hMonitor) != 0 || Height(hMonitor) != 0;
}

bool clsScreens::IsPrimaryMon(MonitorHandle hMonitor) const {
    return !m_bMonitorApi || m_platform->Monitor(hMonitor).bPrimary;
}

std::int32_t clsScreens::Height(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).monitor.Height() : m_metrics.ScreenHeight();
}

std::int32_t clsScreens::Width(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).monitor.Width() : m_metrics.ScreenWidth();
}

std::int32_t clsScreens::top(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).monitor.top : 0;
}

std::int32_t clsScreens::left(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).monitor.left : 0;
}

std::int32_t clsScreens::WorkHeight(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).work.Height() : m_metrics.WorkScreenHeight();
}

std::int32_t clsScreens::WorkWidth(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).work.Width() : m_metrics.WorkScreenWidth();
}

std::int32_t clsScreens::WorkTop(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).work.top : m_metrics.WorkScreenTop();
}

std::int32_t clsScreens::WorkLeft(MonitorHandle hMonitor) const {
    return m_bMonitorApi ? m_platform->Monitor(hMonitor).work.left : m_metrics.WorkScreenLeft();
}

std::int32_t clsScreens::VirtualLeft() const {
    return m_bMonitorApi ? m_metrics.VirtualScreensLeft() : 0;
}

std::int32_t clsScreens::VirtualTop() const {
    return m_bMonitorApi ? m_metrics.VirtualScreensTop() : 0;
}

std::int32_t clsScreens::VirtualWidth() const {
    return m_bMonitorApi ? m_metrics.VirtualScreensWidth() : m_metrics.ScreenWidth();
}

std::int32_t clsScreens::VirtualHeight() const {
    return m_bMonitorApi ? m_metrics.VirtualScreensHeight() : m_metrics.ScreenHeight();
}

MonitorHandle clsScreens::GetMonitorHandleFromPoint(std::int32_t X, std::int32_t Y) const {
    return m_bMonitorApi ? m_platform->MonitorOfPoint(X, Y) : nullptr;
}

MonitorHandle clsScreens::GetMonitorHandleFromWindow(WindowHandle hwnd) const {
    return m_bMonitorApi ? m_platform->MonitorOfWindow(hwnd) : nullptr;
}

MonitorHandle clsScreens::GetMonitorHandleFromRect(std::int32_t X1, std::int32_t Y1, std::int32_t X2,
                                                   std::int32_t Y2) const {
    return m_bMonitorApi ? m_platform->MonitorOfRect({X1, Y1, X2, Y2}) : nullptr;
}

} // namespace orvanta
