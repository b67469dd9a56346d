#pragma once

#include "controls/contract/Control.h"
#include "plumbing/SharedColors.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

// Stands once on a form to switch tooltips on and to say how they look. Not shown at run time; a form designer shows an
// icon of fixed size. There is one tooltip in the process, so the manager that was loaded last decides its look, and
// the end of one that had tips on turns them off for all forms.
class ctlUniTooltipManager : public TableControl<ctlUniTooltipManager, Control> {
public:
    using TableControl::TableControl;
    static const PropertyTable<ctlUniTooltipManager>& Table();

    // Tips stay until the cursor moves. For the whole process, at once.
    bool PersistentTip() const { return m_bPersistentTip; }
    void PersistentTip(bool b);
    // Setting it turns tips on or off for the whole process; only in run mode can they be turned on.
    bool ActivateTips() const { return m_bActivateTips; }
    void ActivateTips(bool b);

    // These do nothing and answer "" or false while tips are off. lMaxWidth in pixels, below 1 for no wrapping; XMax
    // and YMax are limits in pixels of the screen, 0 for none. A tag that is not given leaves the present one.
    void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth,
                std::optional<std::u16string_view> sTag = std::nullopt, std::int32_t XMax = 0,
                std::int32_t YMax = 0) const;
    void UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth,
                   std::optional<std::u16string_view> sTag = std::nullopt, std::int32_t XMax = 0,
                   std::int32_t YMax = 0) const;
    std::u16string GetTip() const;
    std::u16string GetTipTag() const;
    bool TipIsVisible() const;
    void HideTip() const;

    OleColor TipBgColor() const { return m_tipBgColor; }
    void TipBgColor(OleColor lNewColor);
    OleColor TipFgColor() const { return m_tipFgColor; }
    void TipFgColor(OleColor lNewColor);
    // Kept by the host.
    OleFont TipFont() const { return Host().Font(); }
    void TipFont(const OleFont& oFont);
    // 0 to 8, or -1 for the style of the process.
    std::int32_t Style() const { return m_lStyle; }
    void Style(std::int32_t New_Value);
    // Percent. The tooltip takes it up when it places itself the next time.
    std::int16_t Transparency() const { return m_iTransparency; }
    void Transparency(std::int16_t i);

    HostTraits Traits() const override;
    void OnInitProperties() override { Table().SetDefaults(*this); }
    // Loads, and switches tips on as the properties say.
    void OnReadProperties(const PropertyBag& bag) override;
    void OnResize() override;
    void OnPaint() override;
    void OnTerminate() override;

private:
    void Start();

    bool m_bPersistentTip = false;
    bool m_bActivateTips = true;
    OleColor m_tipBgColor = 0;
    OleColor m_tipFgColor = 0;
    std::int32_t m_lStyle = kAutomatic;
    std::int16_t m_iTransparency = 0;
    bool m_bSizing = false;
};

} // namespace orvanta
