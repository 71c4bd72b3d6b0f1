#include "hartframe/browse/ListState.h"

#include <algorithm>

namespace hartframe::browse {

void ListState::Fit(std::size_t count, std::size_t height) {
  count_ = count;
  height_ = std::max<std::size_t>(height, 1);
  selected_ = std::min(selected_, count == 0 ? 0 : count - 1);
  const std::size_t lastTop = count > height_ ? count - height_ : 0;
  const std::size_t lowest = selected_ + 1 > height_ ? selected_ + 1 - height_ : 0;
  top_ = std::clamp(std::min(top_, lastTop), lowest, selected_);
}

bool ListState::OnKey(const Key& key) {
  const std::size_t last = count_ == 0 ? 0 : count_ - 1;
  switch (key.code) {
    case KeyCode::Up:
      selected_ -= std::min<std::size_t>(selected_, 1);
      break;
    case KeyCode::Down:
      ++selected_;
      break;
    case KeyCode::PageUp:
      selected_ -= std::min(selected_, height_);
      break;
    case KeyCode::PageDown:
      selected_ += height_;
      break;
    case KeyCode::Home:
      selected_ = 0;
      break;
    case KeyCode::End:
      selected_ = last;
      break;
    default:
      return false;
  }
  Fit(count_, height_);
  return true;
}

}  // namespace hartframe::browse
