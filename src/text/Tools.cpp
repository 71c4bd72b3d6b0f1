#include "text/Tools.h"

#include "resources/ResText.h"
#include "text/DisplayString.h"
#include "text/LangText.h"
#include "text/NumberMask.h"
#include "text/modDDPrintF.h"

namespace ZAFHartLib {

std::string Tools::FormatDDString(const std::string& prompt,
                                  const ZAFHartTypes::PromptValues& colData) const {
  return ZAFHartLib::FormatDDString(prompt, colData);
}

ZAFHartTypes::Variant Tools::AccessStandardString(std::int32_t id) const {
  return ResText(id);
}

std::string Tools::LangText(const std::string& text, const ZAFHartTypes::Variant& strLangID) const {
  return ZAFHartLib::LangText(text, strLangID.ToText());
}

std::string Tools::GetDDErrorCode(std::int32_t id) const {
  return ZAFHartLib::GetDDErrorCode(id);
}

std::string Tools::FilterCtrlChars(std::string& str) const {
  return ZAFHartLib::FilterCtrlChars(str);
}

std::string Tools::StripMenuName(const std::string& menuEntry) const {
  return ZAFHartLib::StripMenuName(menuEntry);
}

std::string Tools::StripMenuGuiClass(const std::string& menuEntry,
                                     const std::string& defaultVal) const {
  return ZAFHartLib::StripMenuGuiClass(menuEntry, defaultVal);
}

std::string Tools::CFormatToVBFormat(const std::string& format) const {
  return ZAFHartLib::CFormatToVBFormat(format);
}

std::string Tools::GetVariableDisplayString(const ZAFHartTypes::Variable& variable) const {
  return ZAFHartLib::GetVariableDisplayString(variable);
}

std::string Tools::GetValueDisplayString(const ZAFHartTypes::Variant& value,
                                         const ZAFHartTypes::TypeInfo& typeInfo) const {
  return ZAFHartLib::GetValueDisplayString(value, typeInfo);
}

}  // namespace ZAFHartLib
