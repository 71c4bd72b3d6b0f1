#pragma once

#include <cstdint>
#include <string>

#include "ddobjects/TypeInfo.h"
#include "ddobjects/Variable.h"
#include "platform/Export.h"
#include "platform/Object.h"
#include "text/TextHelpers.h"
#include "types/PromptValues.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// The text functions of the library for components that create their helpers by class name
// ("ZAFHartLib.Tools"). Start here: the headers named below tell each function's rules.
class ZAF_API Tools : public platform::Object {
 public:
  // text/modDDPrintF.h
  std::string FormatDDString(const std::string& prompt,
                             const ZAFHartTypes::PromptValues& colData) const;
  // resources/ResText.h; "" for an unknown number.
  ZAFHartTypes::Variant AccessStandardString(std::int32_t id) const;
  // text/LangText.h; `strLangID` is converted to text.
  std::string LangText(const std::string& text, const ZAFHartTypes::Variant& strLangID) const;
  // text/TextHelpers.h
  std::string GetDDErrorCode(std::int32_t id) const;
  std::string FilterCtrlChars(std::string& str) const;
  std::string StripMenuName(const std::string& menuEntry) const;
  std::string StripMenuGuiClass(const std::string& menuEntry,
                                const std::string& defaultVal = {}) const;
  // text/NumberMask.h
  std::string CFormatToVBFormat(const std::string& format) const;
  // text/DisplayString.h
  std::string GetVariableDisplayString(const ZAFHartTypes::Variable& variable) const;
  std::string GetValueDisplayString(const ZAFHartTypes::Variant& value,
                                    const ZAFHartTypes::TypeInfo& typeInfo) const;
};

}  // namespace ZAFHartLib
