#pragma once

#include "hartframe/browse/Picture.h"

namespace hartframe::browse {

// Draws the picture on the terminal.
void DrawPicture(const Picture& picture);

}  // namespace hartframe::browse
