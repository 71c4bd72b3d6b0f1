#include <algorithm>
#include <string>

#include "Fuzz.h"
#include "text/LangText.h"
#include "text/TextHelpers.h"

namespace {

constexpr std::string_view kLanguages[] = {"", "en", "de", "fr", "it", "es", "kt", "049"};

void CheckLanguages(std::string_view text) {
  for (const std::string_view language : kLanguages) {
    const std::string chosen = ZAFHartLib::LangText(text, language);
    fuzz::Check(chosen.size() <= text.size(), "a language is a part of the text");
    if (text.find('|') == std::string_view::npos) {
      fuzz::Check(chosen == text, "a text in one language is returned as it is");
    }
  }
}

void CheckSegments(std::string_view text) {
  std::string_view rest = text;
  ZAFHartLib::LanguageSegment segment;
  std::size_t taken = 0;
  while (ZAFHartLib::NextLanguageSegment(rest, segment)) {
    fuzz::Check(++taken <= text.size(), "the reading of segments ends");
    fuzz::Check(!segment.text.empty(), "an empty segment ends the reading");
    fuzz::Check(text.find(segment.text) != std::string_view::npos,
                "segments are parts of the text");
  }
}

void CheckMenuEntry(std::string_view text) {
  const std::string name = ZAFHartLib::StripMenuName(text);
  fuzz::Check(name.find('[') == std::string::npos, "a menu's name ends where its class begins");
  fuzz::Accepts([&] { ZAFHartLib::StripMenuGuiClass(text, "Default"); });
}

void CheckFilter(std::string text) {
  const std::string filtered = ZAFHartLib::FilterCtrlChars(text);
  fuzz::Check(
      std::ranges::none_of(filtered, [](char c) { return static_cast<unsigned char>(c) < ' '; }),
      "no control character comes through");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::AsText({data, size});
  CheckLanguages(text);
  CheckSegments(text);
  CheckMenuEntry(text);
  CheckFilter(std::string(text));
  return 0;
}
