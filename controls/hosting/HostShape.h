#pragma once

#include "controls/hosting/MaskRuns.h"
#include "drawing/OlePicture.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <optional>
#include <vector>

namespace orvanta {

// The shape of a window: a full rectangle, or the visible part of a mask picture. The window is told only when the
// shape changes: each time it would be painted anew.
class HostShape {
public:
    OleColor MaskColor() const { return m_lMaskColor; }
    void MaskColor(OleColor c) { m_lMaskColor = c; }
    // Takes effect with the next Apply. An empty picture, or one that is no bitmap, is no mask.
    void MaskPicture(const OlePicture& picture);

    void Apply(HWND window, bool bTransparent);
    // Makes a full rectangle of a window that has no visible pixel: such a one is never painted, and a control whose
    // shape comes from its paint could not appear again. True when it was one; then Apply after the next paint.
    bool Open(HWND window);

private:
    using Rects = std::vector<MaskRect>;
    std::optional<Rects> m_mask;
    std::optional<Rects> m_applied;
    OleColor m_lMaskColor = 0;
};

} // namespace orvanta
