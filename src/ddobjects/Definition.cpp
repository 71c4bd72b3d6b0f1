#include "ddobjects/Definition.h"

#include <array>

namespace ZAFHartTypes {

std::string_view KindWord(ObjectKind kind) {
  static constexpr std::array<std::string_view, 10> kWords = {
      "VARIABLE", "COMMAND", "MENU",         "EDIT_DISPLAY", "METHOD",
      "REFRESH",  "UNIT",    "WRITE_AS_ONE", "ARRAY",        "COLLECTION"};
  const auto index = static_cast<std::size_t>(kind);
  return index < kWords.size() ? kWords[index] : std::string_view("UNDEFINED");
}

std::string Definition::Describe(std::int16_t infoLevel) const {
  if (IsEmpty()) return "Nothing";
  if (infoLevel <= 0) return Name();
  return std::string(KindWord(kind_)).append(" ").append(Name());
}

}  // namespace ZAFHartTypes
