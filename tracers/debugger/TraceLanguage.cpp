#include "debugger/TraceLanguage.h"

#include <algorithm>
#include <array>

#include "text/LangText.h"

namespace ZAFHartDebugger {

namespace {

// Where the next "|xx|" of one of the six languages stands; npos without one.
std::size_t NextTag(std::string_view line, std::size_t from) {
  constexpr std::array<std::string_view, 6> kTags{"|en|", "|de|", "|fr|", "|it|", "|es|", "|kt|"};
  std::size_t first = std::string_view::npos;
  for (const std::string_view tag : kTags) first = std::min(first, line.find(tag, from));
  return first;
}

std::size_t StartOf(std::string_view line, std::size_t from, std::size_t tag) {
  std::size_t start = from;
  for (const std::string_view separator : {"=", ": "}) {
    const auto at = line.substr(from, tag - from).rfind(separator);
    if (at != std::string_view::npos) start = std::max(start, from + at + separator.size());
  }
  // A number that the text is the unit of stays before it.
  const auto digits = line.find_first_not_of("+-.0123456789eE", start);
  return digits != start && digits < tag && line[digits] == ' ' ? digits + 1 : start;
}

std::size_t EndOf(std::string_view line, std::size_t tag) {
  std::size_t end = line.size();
  for (const std::string_view state : {" available", " not available", " Type="})
    end = std::min(end, line.find(state, tag));
  return end;
}

}  // namespace

std::string InLanguage(std::string_view line, std::string_view language) {
  std::string text;
  std::size_t done = 0;
  for (auto tag = NextTag(line, 0); tag != std::string_view::npos; tag = NextTag(line, done)) {
    const std::size_t start = StartOf(line, done, tag);
    const std::size_t end = EndOf(line, tag);
    text += line.substr(done, start - done);
    text += ZAFHartLib::LangText(line.substr(start, end - start), language);
    done = end;
  }
  return text += line.substr(done);
}

}  // namespace ZAFHartDebugger
