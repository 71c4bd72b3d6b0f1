#pragma once

#include "hartframe/browse/Picture.h"

namespace hartframe::browse {

// What the screen needs of a terminal. Keys come to Screen::OnKey while the message loop waits.
class Terminal {
 public:
  virtual ~Terminal() = default;
  virtual Size GetSize() const = 0;
  virtual void Show(const Picture& picture) = 0;
  virtual void Beep() = 0;
  // The terminal was closed, or the process is to end.
  virtual bool IsGone() const = 0;
};

}  // namespace hartframe::browse
