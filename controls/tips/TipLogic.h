#pragma once

#include "controls/tips/TipPlacement.h"
#include "controls/tips/TipTimers.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

// What the logic of the tooltip needs of its window and of the mouse.
class TipWindow {
public:
    virtual TipPoint Cursor() const = 0;
    virtual bool Visible() const = 0;
    virtual void Hide() = 0;
    // The text that the label shows.
    virtual void Caption(std::u16string_view sCaption) = 0;
    // Sizes the window for its text, puts it near the cursor position of the request, and shows it unless it is shown.
    virtual void Place(const TipRequest& request) = 0;

protected:
    ~TipWindow() = default;
};

// When the one tooltip of the process shows and goes. Hidden, it is asked for a tip and waits until the cursor has
// rested for 400 ms; shown, it goes when the cursor moves or after three seconds, unless tips are persistent. Arguments
// as in TipPopup.
class TipLogic {
public:
    // Both are used and not owned.
    TipLogic(TipWindow& window, TipClock& clock) : m_window(window), m_timers(clock) {}

    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                std::int32_t XMax, std::int32_t YMax);
    void UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                   std::int32_t XMax, std::int32_t YMax);
    void HideTip();

    // As it was given; it stays when the tip is hidden.
    const std::u16string& GetTip() const { return m_sTip; }
    std::int32_t GetXMax() const { return m_request.XMax; }
    std::int32_t GetYMax() const { return m_request.YMax; }
    const std::u16string& Tag() const { return m_sTag; }

    // The clock's call.
    void Elapsed() {
        m_timers.Elapsed([this](TipTimer timer) { OnTick(timer); });
    }

    // From then on no tip is taken and nothing ticks.
    void Unload();
    bool IsUnloading() const { return m_bUnloading; }

private:
    void Store(std::u16string_view sTip, std::int32_t lMaxWidth, std::int32_t XMax, std::int32_t YMax);
    void OnTick(TipTimer timer);
    void OnActivate();
    void OnHide();
    bool CursorRests() const { return m_window.Cursor() == m_request.cursor; }

    TipWindow& m_window;
    TipTimers m_timers;
    bool m_bUnloading = false;
    std::u16string m_sTip;
    std::u16string m_sTag;
    TipRequest m_request;
};

} // namespace orvanta
