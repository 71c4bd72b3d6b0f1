#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "links/BusyPolicy.h"
#include "platform/AsciiText.h"
#include "platform/Export.h"

namespace HartLinks {

// The settings of one link, by name. Raises InvalidArgument naming where they stand, the value and
// what would be right.
class ZAF_API LinkSettings {
 public:
  // The value of that name; nothing when it is not set.
  using Source = std::function<std::optional<std::string>(std::string_view name)>;

  // Those of a link class: a key of the thread's registry.
  explicit LinkSettings(std::string_view key);
  // `place`: where they stand, for messages.
  LinkSettings(Source source, std::string place)
      : source_(std::move(source)), place_(std::move(place)) {}

  // Where the settings stand: the key, or what was given.
  const std::string& Place() const { return place_; }
  // The value, `otherwise` when it is absent or empty.
  std::string Text(std::string_view name, std::string otherwise) const;
  // The same as a decimal number; one that is below `least` or above `most` is refused.
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

  // "BusyAttempts" (0 to 100) and "BusyDelay" (milliseconds, 0 to 600000); as BusyPolicy has them
  // when they are absent.
  BusyPolicy Busy() const;

 private:
  [[noreturn]] void Refuse(std::string_view name, const std::string& text,
                           const std::string& right) const;

  Source source_;
  std::string place_;
};

}  // namespace HartLinks
