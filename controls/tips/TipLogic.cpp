#include "controls/tips/TipLogic.h"

#include "base/Text.h"
#include "plumbing/TipBridge.h"

namespace orvanta {

void TipLogic::SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                      std::int32_t XMax, std::int32_t YMax) {
    if (m_bUnloading) return;
    if (sTag) m_sTag = *sTag;
    if (TrimBlanks(sTip).empty()) {
        HideTip();
        m_sTip = sTip;
        return;
    }
    const TipPoint cursor = m_window.Cursor();
    const bool bMoved = cursor != m_request.cursor;
    const bool bOther = sTip != m_sTip;
    // A stream of mouse moves at one place does not start the wait again.
    if (!bOther && !bMoved && !PersistentTip()) return;
    if ((bOther || bMoved) && m_window.Visible()) HideTip();
    m_timers.Stop(TipTimer::TimerActivate);
    m_timers.Stop(TipTimer::TimerHideTip);
    Store(sTip, lMaxWidth, XMax, YMax);
    if (m_window.Visible()) m_window.Place(m_request);
    m_request.cursor = cursor;
    m_timers.Start(TipTimer::TimerActivate);
}

void TipLogic::UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                         std::int32_t XMax, std::int32_t YMax) {
    if (m_bUnloading) return;
    if (sTag) m_sTag = *sTag;
    if (TrimBlanks(sTip).empty()) {
        HideTip();
        m_sTip = sTip;
        return;
    }
    Store(sTip, lMaxWidth, XMax, YMax);
    if (m_window.Visible()) m_window.Place(m_request);
}

void TipLogic::HideTip() {
    m_timers.StopAll();
    m_window.Hide();
}

void TipLogic::Unload() {
    m_bUnloading = true;
    m_timers.StopAll();
}

void TipLogic::Store(std::u16string_view sTip, std::int32_t lMaxWidth, std::int32_t XMax, std::int32_t YMax) {
    m_sTip = sTip;
    m_window.Caption(Concat({TrimBlanks(sTip), u" "}));
    m_request.lMaxWidth = lMaxWidth;
    m_request.XMax = XMax;
    m_request.YMax = YMax;
}

void TipLogic::OnTick(TipTimer timer) {
    switch (timer) {
    case TipTimer::TimerActivate: OnActivate(); break;
    case TipTimer::TimerActiveMM:
        if (!CursorRests()) {
            HideTip();
        } else if (!m_window.Visible()) {
            m_timers.Stop(TipTimer::TimerActiveMM);
        }
        break;
    case TipTimer::TimerHideTip: OnHide(); break;
    }
}

// Only the two end points are compared: a cursor that went away and came back has rested.
void TipLogic::OnActivate() {
    if (!CursorRests()) {
        HideTip();
        return;
    }
    m_timers.Stop(TipTimer::TimerActivate);
    m_window.Place(m_request);
    m_timers.Start(TipTimer::TimerHideTip);
    m_timers.Start(TipTimer::TimerActiveMM);
}

void TipLogic::OnHide() {
    if (!PersistentTip()) {
        HideTip();
        return;
    }
    // One of the two coordinates is enough here, deliberately.
    const TipPoint cursor = m_window.Cursor();
    if (cursor.X == m_request.cursor.X || cursor.Y == m_request.cursor.Y) {
        m_timers.Start(TipTimer::TimerHideTip);
    } else {
        HideTip();
    }
}

} // namespace orvanta
