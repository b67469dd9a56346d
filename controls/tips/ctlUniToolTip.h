#pragma once

#include "controls/basic/ctlUniLabelNoFlick.h"
#include "controls/hosting/Form.h"
#include "controls/tips/TipLogic.h"
#include "drawing/clsScreens.h"
#include "plumbing/CTimer.h"
#include "plumbing/TipBridge.h"

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

// The tooltip window: a top-level form with one label, shown near the cursor above all windows and without taking the
// activation. One stands for the whole process and is reached through TipBridge.h; it belongs to no form and no
// control. It cannot be closed; unloading it turns tips off for the process.
class ctlUniToolTip final : public TipPopup, private TipWindow, private TipClock {
public:
    ctlUniToolTip();
    ctlUniToolTip(const ctlUniToolTip&) = delete;
    ctlUniToolTip& operator=(const ctlUniToolTip&) = delete;
    ~ctlUniToolTip() override;

    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                std::int32_t XMax, std::int32_t YMax) override;
    void UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                   std::int32_t XMax, std::int32_t YMax) override;
    // Stops waiting and hides the window; the stored text stays.
    void HideTip() { m_logic.HideTip(); }
    std::u16string GetTip() const override { return m_logic.GetTip(); }
    std::u16string Tag() const override { return m_logic.Tag(); }
    std::int32_t GetXMax() const { return m_logic.GetXMax(); }
    std::int32_t GetYMax() const { return m_logic.GetYMax(); }
    bool IsVisible() const override { return Visible(); }

    void BackColor(OleColor lNewColor) override { m_label.BackColor(lNewColor); }
    void ForeColor(OleColor lNewColor) override { m_label.ForeColor(lNewColor); }
    OleFont GetFont() const { return m_label.Font(); }
    // The object is shared with the label from then on.
    void SetFont(IFont* oFont) override;
    void Style(std::int32_t New_Value) override { m_label.Style(New_Value); }

    HWND hWnd() const { return m_form.hWnd(); }
    const ctlUniLabelNoFlick& lblTip() const { return m_label; }

private:
    // TipWindow
    TipPoint Cursor() const override;
    bool Visible() const override { return m_form.Visible(); }
    void Hide() override { m_form.Hide(); }
    void Caption(std::u16string_view sCaption) override { m_label.Caption(std::u16string(sCaption)); }
    void Place(const TipRequest& request) override;
    // TipClock
    std::int64_t Now() const override { return static_cast<std::int64_t>(GetTickCount64()); }
    void WakeAt(std::int64_t lTime) override;

    void SizeForText(std::int32_t lMaxWidth);
    void TakeTransparency();

    Form m_form;
    ctlUniLabelNoFlick& m_label; // the form's
    clsScreens m_screens;
    std::shared_ptr<CTimer> m_timer;
    std::int16_t m_iTransparency = 0; // as last given to the window
    TipLogic m_logic;
};

// For SetTipPopupMaker.
std::unique_ptr<TipPopup> MakeToolTip();

} // namespace orvanta
