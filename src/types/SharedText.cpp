#include "types/SharedText.h"

namespace ZAFHartTypes {

const std::string& SharedText::Text() const {
  static const std::string empty;
  return text_ ? *text_ : empty;
}

}  // namespace ZAFHartTypes
