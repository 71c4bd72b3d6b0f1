#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "links/BusyPolicy.h"
#include "platform/AsciiText.h"

namespace HartLinks {

// The settings of one link class: a key of the thread's registry. Raises InvalidArgument naming
// key, value and what would be right.
class LinkSettings {
 public:
  explicit LinkSettings(std::string_view key) : key_(key) {}

  // The value, `otherwise` when it is absent or empty.
  std::string Text(std::string_view name, std::string otherwise) const;
  int Number(std::string_view name, int otherwise, int least, int most) const;

  // One of several words, compared without regard to ASCII letter case.
  template <typename Value>
  Value Choice(std::string_view name, Value otherwise,
               std::initializer_list<std::pair<std::string_view, Value>> choices) const {
    const std::string text = Text(name, "");
    if (text.empty()) return otherwise;
    std::string words;
    for (const auto& [word, value] : choices) {
      if (platform::EqualsNoCase(text, word)) return value;
      words += (words.empty() ? "" : ", ") + std::string(word);
    }
    Refuse(name, text, "one of: " + words);
  }

  // "BusyAttempts" (0 to 100) and "BusyDelay" (milliseconds).
  BusyPolicy Busy() const;

 private:
  [[noreturn]] void Refuse(std::string_view name, const std::string& text,
                           const std::string& right) const;

  std::string key_;
};

}  // namespace HartLinks
