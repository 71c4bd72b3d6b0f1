#pragma once

#include <string>
#include <string_view>

#include "ddobjects/KeyedList.h"
#include "platform/Object.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// Typed values in INI files. A value N takes two lines of its section: "N.TYPE=", the number of its
// variant type, and "N.Value=", its text (a date as its serial number). Files hold UTF-8; numbers
// have the user's decimal separator.
class CIniCollection : public platform::Object {
 public:
  CIniCollection();

  // The user's decimal separator is a point: a comma in a stored number is read as one, too.
  bool PointIsDecimal() const { return pointIsDecimal_; }

  // The INI file beside a component file: the extension becomes "ini". A mere folder gives
  // "$$$.ini" in it.
  std::string ApplicationToInifileName(std::string_view applicationFileName) const;

  // Writes the two lines of `name` into section `key`. False when the file cannot be written or the
  // value has no text (Null, an array, a text of several lines).
  bool WriteIniFileTypedEntry(std::string_view filename, std::string_view key,
                              std::string_view name, const ZAFHartTypes::Variant& value) const;

  // False when the file holds no text for the value, which then is empty, or the default of the
  // type when there is one.
  bool ReadIniFileTypedEntry(std::string_view filename, std::string_view key, std::string_view name,
                             ZAFHartTypes::Variant& value) const;

  // Every value of the section, by name, in the order of the file. A missing file or section gives
  // an empty list and true.
  bool ReadIniFile(std::string_view filename, std::string_view key,
                   ZAFHartTypes::KeyedList<ZAFHartTypes::Variant>& values) const;

 private:
  ZAFHartTypes::Variant Convert(ZAFHartTypes::VariantType type, std::string text) const;

  bool pointIsDecimal_;
};

}  // namespace ZAFHartLib
