#include "ddobjects/Method.h"

namespace ZAFHartTypes {

bool Method::HasSameState(const Method& other) const {
  return isValid_ == other.isValid_ && label_ == other.label_;
}

void Method::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const Method&>(other);
  TakeStampsFrom(from);
  label_ = from.label_;
  help_ = from.help_;
  isValid_ = from.isValid_;
}

std::string Method::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel > 0 && !isValid_) text += " not valid";
  return text;
}

}  // namespace ZAFHartTypes
