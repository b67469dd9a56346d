#pragma once

#include "plumbing/SharedColors.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct IFont;

namespace orvanta {

// How every control reaches the one tooltip popup of the process without knowing it: the popup stands on a higher floor
// and fills this interface.
//
// lMaxWidth is the wrap width in pixels, XMax and YMax limit the place on the screen (0: the whole screen). A tag that
// is not given leaves the present one.
class TipPopup {
public:
    virtual ~TipPopup() = default;
    virtual void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                        std::int32_t XMax, std::int32_t YMax) = 0;
    virtual void UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                           std::int32_t XMax, std::int32_t YMax) = 0;
    virtual std::u16string GetTip() const = 0;
    virtual std::u16string Tag() const = 0;
    virtual bool IsVisible() const = 0;
    virtual void BackColor(OleColor lNewColor) = 0;
    virtual void ForeColor(OleColor lNewColor) = 0;
    virtual void SetFont(IFont* oFont) = 0;
    virtual void Style(std::int32_t New_Value) = 0;
};

// Says how the popup is made. It is made at its first use and lives until UnloadTipPopup. An empty maker unloads it.
void SetTipPopupMaker(std::function<std::unique_ptr<TipPopup>()> maker);

// While tips are off nothing is shown.
bool TipsOn();
void TipsOn(bool bTipsOn);
// Tips stay until the cursor moves.
bool PersistentTip();
void PersistentTip(bool b);
// Percent; the popup takes it up when it places itself the next time.
std::int16_t TipTransparency();
void TipTransparency(std::int16_t i);
// How often a manager has turned tips on.
std::int32_t TipStarts();
void CountTipStart();

// What a control calls on each mouse move. Nothing happens while tips are off, or when neither the new tip nor the
// popup's present one has a text and no tag is given. An empty tip tells the popup that the mouse has left.
void ShowControlTip(std::u16string_view sTip, std::int32_t lMaxWidth,
                    std::optional<std::u16string_view> sTag = std::nullopt, std::int32_t XMax = 0,
                    std::int32_t YMax = 0);

// For the manager. The first four do nothing, and answer "" or false, while tips are off; asking makes no popup.
void UpdateControlTip(std::u16string_view sTip, std::int32_t lMaxWidth,
                      std::optional<std::u16string_view> sTag = std::nullopt, std::int32_t XMax = 0,
                      std::int32_t YMax = 0);
std::u16string ControlTip();
std::u16string ControlTipTag();
bool ControlTipIsVisible();
// The popup, made when there is none yet: for its settings, which do not wait for tips to be on. nullptr without a
// maker.
TipPopup* TipPopupForSettings();
// Ends the popup and turns tips off for the whole process.
void UnloadTipPopup();

} // namespace orvanta
