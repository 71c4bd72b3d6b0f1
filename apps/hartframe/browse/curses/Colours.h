#pragma once

#include "hartframe/browse/Picture.h"
#include "hartframe/browse/curses/Curses.h"

namespace hartframe::browse {

struct Look {
  attr_t attributes = 0;
  short pair = 0;
};

// Call it once the terminal is in use.
void DefineColours();
// Without colours the attributes make the difference.
Look LookOf(Tone tone);
Look LookOf(DialogStyle style);

}  // namespace hartframe::browse
