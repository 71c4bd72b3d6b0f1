#include "text/LangText.h"

#include "types/Utf8.h"

namespace ZAFHartLib {
namespace {

constexpr char kSeparator = '|';
constexpr std::string_view kEnglish = "en";
constexpr std::size_t kNumericCodeLength = 4;  // the separator and three digits

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view CodeOfNumber(std::string_view numericCode) {
  struct Mapping {
    std::string_view number;
    std::string_view code;
  };
  constexpr Mapping kMappings[] = {
      {"|033", "fr"}, {"|049", "de"}, {"|039", "it"}, {"|034", "es"}, {"|001", kEnglish}};
  for (const Mapping& mapping : kMappings) {
    if (mapping.number == numericCode) return mapping.code;
  }
  return numericCode.substr(1);
}

// Bytes of the first four characters; 0 when there are fewer.
std::size_t NumericCodeBytes(std::string_view rest) {
  const std::string_view start = ZAFHartTypes::utf8::Prefix(rest, kNumericCodeLength);
  return ZAFHartTypes::utf8::Length(start) < kNumericCodeLength ? 0 : start.size();
}

std::string JoinSegments(std::string_view text, std::string_view lang) {
  std::string joined;
  LanguageSegment segment;
  while (NextLanguageSegment(text, segment)) {
    if (!segment.code.empty() && segment.code.find(lang) != std::string_view::npos) {
      joined += segment.text;
    }
  }
  return joined;
}

}  // namespace

bool NextLanguageSegment(std::string_view& rest, LanguageSegment& segment) {
  segment = {};
  if (rest.empty()) return false;
  if (rest.front() != kSeparator) {
    segment = {kEnglish, rest};
  } else {
    const std::size_t codeBytes = NumericCodeBytes(rest);
    if (codeBytes == 0) return false;
    if (IsDigit(rest[1])) {
      segment = {CodeOfNumber(rest.substr(0, codeBytes)), rest.substr(codeBytes)};
    } else {
      segment.text = rest.substr(1);
      if (const std::size_t end = segment.text.find(kSeparator); end != std::string_view::npos) {
        segment = {segment.text.substr(0, end), segment.text.substr(end + 1)};
      }
    }
  }
  const std::size_t end = segment.text.find(kSeparator);
  rest = end == std::string_view::npos ? std::string_view{} : segment.text.substr(end);
  segment.text = segment.text.substr(0, end);
  return !segment.text.empty();
}

std::string LangText(std::string_view text, std::string_view lang) {
  if (text.find(kSeparator) == std::string_view::npos) return std::string(text);
  std::string chosen = JoinSegments(text, lang);
  if (chosen.empty() && lang != kEnglish) chosen = JoinSegments(text, kEnglish);
  if (!chosen.empty()) return chosen;
  LanguageSegment first;
  NextLanguageSegment(text, first);
  return std::string(first.text);
}

}  // namespace ZAFHartLib
