#pragma once

#include "tests/reference/PlainFace.h"
#include "tests/support/PixelCanvas.h"

#include <windows.h>

namespace orvanta::testing {

// The outline as the platform's own RoundRect draws it.
inline void PlatformOutline(const PlainBox& box, const std::function<void(int, int)>& set) {
    PixelCanvas canvas(box.right + 2, box.bottom + 2, 0xFFFFFF);
    const Selection pen(canvas.Dc(), GetStockObject(BLACK_PEN));
    const Selection brush(canvas.Dc(), GetStockObject(NULL_BRUSH));
    RoundRect(canvas.Dc(), box.left, box.top, box.right, box.bottom, 4, 4);
    for (int y = 0; y < canvas.Height(); ++y)
        for (int x = 0; x < canvas.Width(); ++x)
            if (canvas.At(x, y) == 0) set(x, y);
}

} // namespace orvanta::testing
