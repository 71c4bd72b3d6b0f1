#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

namespace ZAFHartLib {

// Multilingual texts: an English text, then for each further language "|", a language code, "|" and
// the text ("Process Aborted|de|Vorgang abgebrochen"). A code may also be three digits with the
// text right behind them ("|049Vorgang abgebrochen").

// One language of such a text.
struct LanguageSegment {
  std::string_view code;  // "en", "de", "fr", "it", "es", "kt", or three digits that stand for none
  std::string_view text;
};

// Takes the next segment off `rest`. False at the end, at a broken segment and at an empty one,
// which ends the reading. The views point into `rest` or are constants.
ZAF_API bool NextLanguageSegment(std::string_view& rest, LanguageSegment& segment);

// The segments whose code contains `lang`, joined; without any, the English ones; without those,
// the first segment. An empty `lang` is contained in every code. A text without "|" is returned as
// it is.
ZAF_API std::string LangText(std::string_view text, std::string_view lang);

}  // namespace ZAFHartLib
