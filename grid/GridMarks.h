#pragma once

#include "drawing/OlePicture.h"

namespace orvanta {

// The small pictures that the grid draws itself, black on pure red, which is left out. Made at the first question and
// kept for the process.
//   the check mark of a true flag, 7 by 7, with a white outline
//   the arrows of a sorted column, 9 by 4
const OlePicture& FlagPicture();
const OlePicture& SortUpPicture();
const OlePicture& SortDownPicture();

} // namespace orvanta
