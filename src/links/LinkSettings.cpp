#include "links/LinkSettings.h"

#include <charconv>

#include "platform/Platform.h"

namespace HartLinks {

LinkSettings::LinkSettings(std::string_view key)
    : LinkSettings(
          [key = std::string(key)](std::string_view name) {
            return platform::Current().Registry().Value(key, name);
          },
          "the key " + std::string(key)) {}

std::string LinkSettings::Text(std::string_view name, std::string otherwise) const {
  std::string text = source_(name).value_or("");
  return text.empty() ? std::move(otherwise) : text;
}

int LinkSettings::Number(std::string_view name, int otherwise, int least, int most) const {
  const std::string text = Text(name, "");
  if (text.empty()) return otherwise;
  int number = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number);
  if (error != std::errc{} || end != last || number < least || number > most) {
    Refuse(name, text, "a number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return number;
}

BusyPolicy LinkSettings::Busy() const {
  BusyPolicy policy;
  policy.attempts = Number("BusyAttempts", policy.attempts, 0, 100);
  policy.delay = platform::Milliseconds{
      Number("BusyDelay", static_cast<int>(policy.delay.count()), 0, 600'000)};
  return policy;
}

void LinkSettings::Refuse(std::string_view name, const std::string& text,
                          const std::string& right) const {
  throw platform::Failure(platform::ErrorNumber::InvalidArgument, "HartLinks.LinkSettings",
                          "Setting \"" + std::string(name) + "\" of " + place_ + " is \"" + text +
                              "\"; it has to be " + right + ".");
}

}  // namespace HartLinks
