#pragma once

#include "drawing/OlePicture.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvanta::gallery {

// Small pictures to show on controls, drawn by the program itself.

OlePicture Landscape(int width, int height);
// A round mark on a ground of magenta, which is meant to be keyed out.
OlePicture Mark(int size);
OlePicture SystemIcon();

// The same by name, for the inspector; empty for a name that is none.
OlePicture SampleByName(std::u16string_view sName);
std::vector<std::u16string> SampleNames();

} // namespace orvanta::gallery
