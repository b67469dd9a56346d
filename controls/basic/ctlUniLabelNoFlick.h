#pragma once

#include "controls/basic/LabelControl.h"

namespace orvanta {

// The twin of ctlUniLabel for texts that change often. It draws onto the retained image of its host at each change and
// shows the finished image in one step: the screen never has the background without the text.
class ctlUniLabelNoFlick : public LabelControl {
public:
    explicit ctlUniLabelNoFlick(ControlHost& host);

    using LabelControl::BackStyle;
    // The retained image, for a caller who draws on it. Lent.
    HDC Hdc() const { return Host().hDC(); }
    // Draws and shows the label; bNow makes no difference.
    void Refresh(bool bNow);

protected:
    void pvInvalidate() override;
    void pvRebuildShape() override { pvDraw(); }

private:
    void pvDraw();
};

} // namespace orvanta
