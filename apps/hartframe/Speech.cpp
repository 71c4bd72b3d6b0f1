#include "hartframe/Speech.h"

#include <iterator>

#include "hartframe/OutcomeTexts.h"
#include "hartframe/ValueTexts.h"
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

bool IsArgument(std::string_view text, std::size_t at) {
  return text[at] == '{' && at + 2 < text.size() && text[at + 2] == '}' && text[at + 1] >= '0' &&
         text[at + 1] <= '9';
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
    if (!IsArgument(pattern, at)) {
      result += pattern[at];
      continue;
    }
    result += std::data(arguments)[static_cast<std::size_t>(pattern[at + 1] - '0')];
    at += 2;
  }
  return result;
}

std::string Speech::Pick(std::string_view multilingual) const {
  return OneLine(ZAFHartLib::LangText(multilingual, language_));
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = ZAFHartTypes::utf8::Next(text, at);
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    ZAFHartTypes::utf8::Append(line, control ? U' ' : c);
  }
  return line;
}

}  // namespace hartframe
