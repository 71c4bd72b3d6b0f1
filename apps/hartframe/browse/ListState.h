#pragma once

#include <cstddef>

#include "hartframe/browse/Key.h"

namespace hartframe::browse {

// Which entry of a list is selected, and which is the first that can be seen.
class ListState {
 public:
  std::size_t Selected() const { return selected_; }
  std::size_t Top() const { return top_; }
  void Select(std::size_t entry) { selected_ = entry; }
  // Keeps both inside a list of `count` entries, of which `height` can be seen.
  void Fit(std::size_t count, std::size_t height);
  // True when the key moves the selection, or could if there were more entries.
  bool OnKey(const Key& key);

 private:
  std::size_t selected_ = 0;
  std::size_t top_ = 0;
  std::size_t count_ = 0;
  std::size_t height_ = 1;
};

}  // namespace hartframe::browse
