#include "hartframe/browse/Dialog.h"

#include <algorithm>

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/TextLayout.h"
#include "types/Utf8.h"

namespace hartframe::browse {

namespace {

constexpr int kAround = 6;     // lines for frames, the keys and the screen to be seen behind
constexpr int kMinWidth = 44;  // room for the keys

std::size_t LongestLine(std::string_view text) {
  std::size_t longest = 0;
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    longest = std::max(longest, ZAFHartTypes::utf8::Length(text.substr(0, end)));
    text.remove_prefix(std::min(text.size(), end + 1));
  }
  return longest;
}

}  // namespace

int Dialog::Width(Size screen) const {
  const std::size_t wanted =
      std::max({LongestLine(head_.text), BodyWidth(), ZAFHartTypes::utf8::Length(head_.title) + 4});
  const int most = std::max(screen.columns - 6, 10);
  return std::clamp(static_cast<int>(std::min<std::size_t>(wanted, 1000)),
                    std::min(kMinWidth, most), most);
}

DialogPicture Dialog::Draw(Size screen) {
  DialogPicture picture;
  picture.style = head_.style;
  picture.title = head_.title;
  picture.width = Width(screen);
  int room = screen.rows - kAround;
  DrawBody(picture, room * 2 / 3);
  if (picture.list) room -= static_cast<int>(picture.list->height) + 1;
  if (picture.field) room -= 2;
  room -= static_cast<int>(picture.note.size());
  DrawText(picture, std::max(room, 1));
  picture.keys = Joined({Keys(), speech_(texts::kEscCancels),
                         head_.help.empty() ? std::string()
                         : showsHelp_       ? speech_(texts::kF1Back)
                                            : speech_(texts::kF1Help)},
                        "  ");
  return picture;
}

void Dialog::DrawBody(DialogPicture&, int) {}

void Dialog::DrawText(DialogPicture& picture, int room) {
  const auto lines = Wrapped(Text(), static_cast<std::size_t>(picture.width));
  textHeight_ = std::max<std::size_t>(1, std::min(lines.size(), static_cast<std::size_t>(room)));
  textTop_ = std::min(textTop_, lines.size() - std::min(lines.size(), textHeight_));
  picture.moreText = lines.size() > textHeight_;
  const auto first = lines.begin() + static_cast<std::ptrdiff_t>(textTop_);
  const auto count = std::min(textHeight_, lines.size() - textTop_);
  picture.text.assign(first, first + static_cast<std::ptrdiff_t>(count));
}

void Dialog::OnKey(const Key& key) {
  if (key.code == KeyCode::Escape) {
    Cancel();
  } else if (key.code == KeyCode::Help) {
    if (!head_.help.empty()) showsHelp_ = !showsHelp_;
    textTop_ = 0;
  } else if (!OnBodyKey(key)) {
    ScrollText(key);
  }
}

// Draw() keeps the place inside the text.
bool Dialog::ScrollText(const Key& key) {
  switch (key.code) {
    case KeyCode::Up:
    case KeyCode::Left:
      textTop_ -= std::min<std::size_t>(textTop_, 1);
      return true;
    case KeyCode::Down:
    case KeyCode::Right:
      ++textTop_;
      return true;
    case KeyCode::PageUp:
      textTop_ -= std::min(textTop_, textHeight_);
      return true;
    case KeyCode::PageDown:
      textTop_ += textHeight_;
      return true;
    default:
      return false;
  }
}

}  // namespace hartframe::browse
