#include "plumbing/TipBridge.h"

#include <utility>

namespace orvanta {

namespace {

struct TipState {
    std::function<std::unique_ptr<TipPopup>()> maker;
    std::unique_ptr<TipPopup> popup;
    bool bTipsOn = false;
    bool bPersistentTip = false;
    std::int16_t iTransparency = 0;
    std::int32_t lStarts = 0;
};

TipState& State() {
    static TipState state;
    return state;
}

} // namespace

void SetTipPopupMaker(std::function<std::unique_ptr<TipPopup>()> maker) {
    if (!maker) UnloadTipPopup();
    State().maker = std::move(maker);
}

bool TipsOn() {
    return State().bTipsOn;
}
void TipsOn(bool bTipsOn) {
    State().bTipsOn = bTipsOn;
}
bool PersistentTip() {
    return State().bPersistentTip;
}
void PersistentTip(bool b) {
    State().bPersistentTip = b;
}
std::int16_t TipTransparency() {
    return State().iTransparency;
}
void TipTransparency(std::int16_t i) {
    State().iTransparency = i;
}
std::int32_t TipStarts() {
    return State().lStarts;
}
void CountTipStart() {
    ++State().lStarts;
}

void ShowControlTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                    std::int32_t XMax, std::int32_t YMax) {
    if (!TipsOn()) return;
    if (sTip.empty() && !sTag && ControlTip().empty()) return;
    if (TipPopup* popup = TipPopupForSettings()) popup->SetTip(sTip, lMaxWidth, sTag, XMax, YMax);
}

void UpdateControlTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                      std::int32_t XMax, std::int32_t YMax) {
    if (!TipsOn()) return;
    if (TipPopup* popup = TipPopupForSettings()) popup->UpdateTip(sTip, lMaxWidth, sTag, XMax, YMax);
}

std::u16string ControlTip() {
    return TipsOn() && State().popup ? State().popup->GetTip() : std::u16string();
}

std::u16string ControlTipTag() {
    return TipsOn() && State().popup ? State().popup->Tag() : std::u16string();
}

bool ControlTipIsVisible() {
    return TipsOn() && State().popup && State().popup->IsVisible();
}

TipPopup* TipPopupForSettings() {
    TipState& state = State();
    if (!state.popup && state.maker) state.popup = state.maker();
    return state.popup.get();
}

void UnloadTipPopup() {
    // Out of the state first: what the popup does at its end must not reach it again.
    const std::unique_ptr<TipPopup> last = std::move(State().popup);
    TipsOn(false);
}

} // namespace orvanta
