#include "hartframe/browse/curses/KeyReader.h"

#include "hartframe/browse/curses/Curses.h"

namespace hartframe::browse {

namespace {

struct NamedKey {
  wint_t key;
  KeyCode code;
};

constexpr NamedKey kFunctionKeys[] = {
    {KEY_UP, KeyCode::Up},         {KEY_DOWN, KeyCode::Down},
    {KEY_LEFT, KeyCode::Left},     {KEY_RIGHT, KeyCode::Right},
    {KEY_PPAGE, KeyCode::PageUp},  {KEY_NPAGE, KeyCode::PageDown},
    {KEY_HOME, KeyCode::Home},     {KEY_END, KeyCode::End},
    {KEY_ENTER, KeyCode::Enter},   {KEY_BACKSPACE, KeyCode::Backspace},
    {KEY_DC, KeyCode::Delete},     {KEY_F(1), KeyCode::Help},
    {KEY_RESIZE, KeyCode::Resize},
};

constexpr NamedKey kControlKeys[] = {
    {'\r', KeyCode::Enter},  {'\n', KeyCode::Enter},    {27, KeyCode::Escape},
    {8, KeyCode::Backspace}, {127, KeyCode::Backspace}, {'\t', KeyCode::Tab},
};

template <std::size_t N>
std::optional<Key> Find(const NamedKey (&keys)[N], wint_t key) {
  for (const NamedKey& named : keys) {
    if (named.key == key) return Key{named.code, 0};
  }
  return std::nullopt;
}

}  // namespace

KeyReader::KeyReader() : pad_(newpad(1, 1)) {
  keypad(pad_.get(), TRUE);
  nodelay(pad_.get(), TRUE);
}

std::optional<Key> KeyReader::Read() {
  wint_t key = 0;
  while (true) {
    const int kind = wget_wch(pad_.get(), &key);
    if (kind == ERR) return std::nullopt;
    if (kind == KEY_CODE_YES) {
      if (const auto found = Find(kFunctionKeys, key)) return found;
    } else if (const auto control = Find(kControlKeys, key)) {
      return control;
    } else if (key >= ' ') {
      return Key{KeyCode::Character, static_cast<char32_t>(key)};
    }
  }
}

}  // namespace hartframe::browse
