#include "drawing/ScreenPlatform.h"

#include "drawing/clsScreens.h"
#include "plumbing/PlatformRect.h"
#include "plumbing/WindowsVersion.h"

#include <windows.h>

namespace orvanta {

namespace {

class SystemScreens final : public ScreenPlatform {
public:
    std::int32_t Metric(std::int32_t i) const override { return GetSystemMetrics(i); }
    ScreenRect WorkArea() const override {
        RECT work{};
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
        return PixelRectOf(work);
    }
    MonitorData Monitor(MonitorHandle hMonitor) const override {
        MONITORINFO info{};
        info.cbSize = sizeof info;
        if (!GetMonitorInfoA(static_cast<HMONITOR>(hMonitor), &info)) return {};
        return {PixelRectOf(info.rcMonitor), PixelRectOf(info.rcWork), (info.dwFlags & MONITORINFOF_PRIMARY) != 0};
    }
    MonitorHandle MonitorOfPoint(std::int32_t X, std::int32_t Y) const override {
        return MonitorFromPoint({X, Y}, MONITOR_DEFAULTTONEAREST);
    }
    MonitorHandle MonitorOfWindow(WindowHandle hwnd) const override {
        return MonitorFromWindow(static_cast<HWND>(hwnd), MONITOR_DEFAULTTONEAREST);
    }
    MonitorHandle MonitorOfRect(const ScreenRect& rect) const override {
        const RECT plain = RectOf(rect);
        return MonitorFromRect(&plain, MONITOR_DEFAULTTONEAREST);
    }
};

} // namespace

const ScreenPlatform& ScreenPlatform::System() {
    static const SystemScreens screens;
    return screens;
}

clsSystemMetrics::clsSystemMetrics() : clsSystemMetrics(ScreenPlatform::System()) {}

clsScreens::clsScreens() : clsScreens(ScreenPlatform::System(), WindowsVersionClass()) {}

} // namespace orvanta
