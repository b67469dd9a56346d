#pragma once

#include "drawing/ScreenPlatform.h"

#include <cstdint>

namespace orvanta {

// The platform's system metrics by name, in pixels where they are sizes. Nothing is kept: each call asks anew.
class clsSystemMetrics {
public:
    clsSystemMetrics();
    // platform must outlive the object.
    explicit clsSystemMetrics(const ScreenPlatform& platform) : m_platform(&platform) {}

    std::int32_t GetMetric(std::int32_t i) const { return m_platform->Metric(i); }

    std::int32_t WindowBorderWidth() const { return GetMetric(5); }
    std::int32_t WindowBorderHeight() const { return GetMetric(6); }
    std::int32_t MouseButtons() const { return GetMetric(43); }
    std::int32_t CursorWidth() const { return GetMetric(13); }
    std::int32_t CursorHeight() const { return GetMetric(14); }
    std::int32_t FrameWidth() const { return GetMetric(32); }
    std::int32_t FrameHeight() const { return GetMetric(33); }
    std::int32_t FullScreenWidth() const { return GetMetric(16); }
    std::int32_t FullScreenHeight() const { return GetMetric(17); }
    std::int32_t ScreenWidth() const { return GetMetric(0); }
    std::int32_t ScreenHeight() const { return GetMetric(1); }
    std::int32_t HScrollBmpWidth() const { return GetMetric(21); }
    std::int32_t HScrollBmpHeight() const { return GetMetric(3); }
    std::int32_t VScrollBmpWidth() const { return GetMetric(2); }
    std::int32_t VScrollBmpHeight() const { return GetMetric(20); }
    std::int32_t IconWidth() const { return GetMetric(11); }
    std::int32_t IconHeight() const { return GetMetric(12); }
    std::int32_t WindowMinWidth() const { return GetMetric(28); }
    std::int32_t WindowMinHeight() const { return GetMetric(29); }
    std::int32_t TitleBarButtonWidth() const { return GetMetric(30); }
    std::int32_t TitleBarButtonHeight() const { return GetMetric(31); }
    std::int32_t SmallIconWidth() const { return GetMetric(49); }
    std::int32_t SmallIconHeight() const { return GetMetric(50); }
    std::int32_t TitleBarSmallButtonWidth() const { return GetMetric(52); }
    std::int32_t TitleBarSmallButtonHeight() const { return GetMetric(53); }
    std::int32_t TitleBarHeight() const { return GetMetric(4); }
    std::int32_t MenuBarHeight() const { return GetMetric(15); }
    std::int32_t SmallTitleBarHeight() const { return GetMetric(51); }
    std::int32_t VirtualScreensLeft() const { return GetMetric(76); }
    std::int32_t VirtualScreensTop() const { return GetMetric(77); }
    std::int32_t VirtualScreensWidth() const { return GetMetric(78); }
    std::int32_t VirtualScreensHeight() const { return GetMetric(79); }
    std::int32_t MonitorsCount() const { return GetMetric(80); }

    bool MousePresent() const { return GetMetric(19) != 0; }
    bool MouseWheelPresent() const { return GetMetric(75) != 0; }
    // Only the lowest bit says so; the others are reserved.
    bool NetworkPresent() const { return (GetMetric(63) & 1) != 0; }
    bool MouseSwapButtons() const { return GetMetric(23) != 0; }

    // The primary screen without its task bar.
    std::int32_t WorkScreenWidth() const { return m_platform->WorkArea().Width(); }
    std::int32_t WorkScreenHeight() const { return m_platform->WorkArea().Height(); }
    std::int32_t WorkScreenLeft() const { return m_platform->WorkArea().left; }
    std::int32_t WorkScreenTop() const { return m_platform->WorkArea().top; }
    std::int32_t WorkScreenRight() const { return m_platform->WorkArea().right; }
    std::int32_t WorkScreenBottom() const { return m_platform->WorkArea().bottom; }

private:
    const ScreenPlatform* m_platform;
};

} // namespace orvanta
