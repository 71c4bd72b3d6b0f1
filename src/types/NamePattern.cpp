#include "types/NamePattern.h"

#include "types/TextKey.h"

namespace ZAFHartTypes {

namespace {

bool Matches(std::string_view text, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t in = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (at < text.size()) {
    if (in < pattern.size() && (pattern[in] == '?' || pattern[in] == text[at])) {
      ++at;
      ++in;
    } else if (in < pattern.size() && pattern[in] == '*') {
      star = in++;
      resume = at;
    } else if (star != std::string_view::npos) {
      in = star + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', in) == std::string_view::npos;
}

}  // namespace

bool IsPattern(std::string_view text) {
  return text.find_first_of("*?") != std::string_view::npos;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  return Matches(FoldCase(name), FoldCase(pattern));
}

}  // namespace ZAFHartTypes
