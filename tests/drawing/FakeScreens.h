#pragma once

#include "drawing/ScreenPlatform.h"

#include <map>

namespace orvanta::testing {

// Screens as a test wants them. Metrics that it does not name are 0.
struct FakeScreens final : ScreenPlatform {
    std::int32_t Metric(std::int32_t i) const override {
        const auto it = metrics.find(i);
        return it == metrics.end() ? 0 : it->second;
    }
    ScreenRect WorkArea() const override { return work; }
    MonitorData Monitor(MonitorHandle hMonitor) const override {
        const auto it = monitors.find(hMonitor);
        return it == monitors.end() ? MonitorData{} : it->second;
    }
    MonitorHandle MonitorOfPoint(std::int32_t X, std::int32_t Y) const override {
        asked = {X, Y, 0, 0};
        return found;
    }
    MonitorHandle MonitorOfWindow(WindowHandle hwnd) const override {
        askedWindow = hwnd;
        return found;
    }
    MonitorHandle MonitorOfRect(const ScreenRect& rect) const override {
        asked = rect;
        return found;
    }

    std::map<std::int32_t, std::int32_t> metrics;
    ScreenRect work;
    std::map<MonitorHandle, MonitorData> monitors;
    MonitorHandle found = nullptr;
    mutable ScreenRect asked;
    mutable WindowHandle askedWindow = nullptr;
};

} // namespace orvanta::testing
