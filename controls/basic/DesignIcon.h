#pragma once

#include "base/PixelRect.h"
#include "controls/contract/ControlHost.h"
#include "drawing/OlePicture.h"

namespace orvanta {

// The look in a form designer of a control without a face: a small icon image. It is for design mode only.

// Fixes the size of the host to twice that of the icon in pixels, whatever the user drags it to.
void FixSizeToIcon(ControlHost& host, PixelSize icon);
// Draws the icon in the middle of the host, on its BackColor. The colour of its first pixel is transparent.
void PaintDesignIcon(ControlHost& host, const OlePicture& icon);

} // namespace orvanta
