#include "hartframe/LanguageSegments.h"

#include "text/LangText.h"
#include "types/TextKey.h"

namespace hartframe {

bool HasSegment(std::string_view multilingual, std::string_view text) {
  std::string_view rest = multilingual;
  ZAFHartLib::LanguageSegment segment;
  while (ZAFHartLib::NextLanguageSegment(rest, segment)) {
    if (ZAFHartTypes::SameKey(segment.text, text)) return true;
  }
  return false;
}

}  // namespace hartframe
