#include "hartframe/Speech.h"

#include <iterator>
#include <optional>

#include "hartframe/OutcomeTexts.h"
#include "hartframe/values/ValueTexts.h"
#include "text/LangText.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

// In the order of Text.
const char* Multilingual(Text text) {
  constexpr std::size_t kFirst = std::size(texts::kOfOutcomes);
  static_assert(kFirst + std::size(texts::kOfValues) == static_cast<std::size_t>(Text::Count));
  const auto index = static_cast<std::size_t>(text);
  return index < kFirst ? texts::kOfOutcomes[index] : texts::kOfValues[index - kFirst];
}

// A place in a text that an argument fills: {0}, or {0:word/words} for a word that follows its
// number.
struct Place {
  std::size_t argument;
  std::string_view words;  // "" for the argument itself
  std::size_t length;
};

std::optional<Place> PlaceAt(std::string_view text) {
  if (text.size() < 3 || text[0] != '{' || text[1] < '0' || text[1] > '9') return std::nullopt;
  const std::size_t end = text.find('}');
  const auto argument = static_cast<std::size_t>(text[1] - '0');
  if (end == 2) return Place{argument, {}, 3};
  if (end == std::string_view::npos || text[2] != ':') return std::nullopt;
  return Place{argument, text.substr(3, end - 3), end + 1};
}

// French counts none as one.
std::string_view WordFor(std::string_view number, std::string_view words,
                         std::string_view language) {
  const std::size_t slash = words.find('/');
  const bool isOne = number == "1" || (number == "0" && language == "fr");
  return isOne ? words.substr(0, slash) : words.substr(slash + 1);
}

}  // namespace

std::string Speech::operator()(Text text, std::initializer_list<std::string_view> arguments) const {
  return (*this)(Multilingual(text), arguments);
}

std::string Speech::operator()(std::string_view multilingual,
                               std::initializer_list<std::string_view> arguments) const {
  const std::string pattern = ZAFHartLib::LangText(multilingual, language_);
  std::string result;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const auto place = PlaceAt(std::string_view(pattern).substr(at));
    if (!place) {
      result += pattern[at];
      continue;
    }
    const std::string_view argument = std::data(arguments)[place->argument];
    result += place->words.empty() ? argument : WordFor(argument, place->words, language_);
    at += place->length - 1;
  }
  return result;
}

std::string Speech::Pick(std::string_view multilingual) const {
  return OneLine(ZAFHartLib::LangText(multilingual, language_));
}

}  // namespace hartframe
