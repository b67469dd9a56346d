#pragma once

#include "controls/basic/LabelControl.h"

namespace orvanta {

// Shows Unicode text, on its own face or on nothing at all. Draws straight on the DC of its paint; the background is
// never erased. The twin for texts that change often is ctlUniLabelNoFlick.
//
// Whether it is transparent is set at design time: BackStyle is a saved property without public members.
class ctlUniLabel : public LabelControl {
public:
    explicit ctlUniLabel(ControlHost& host) : LabelControl(host) {}

    // Takes up a change of what the label shows: drawn now with bNow, else at the next paint.
    void Refresh(bool bNow);

    void OnPaint() override { pvDraw(Host().hDC()); }

protected:
    // Only the window of a transparent or round label depends on more than the size.
    void pvRebuildShape() override;

private:
    void pvDraw(HDC dc);
    // False when the window gives no DC.
    bool DrawNow();
};

} // namespace orvanta
