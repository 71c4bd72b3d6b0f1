#include "dtmkit/KernelInformationBase.h"

namespace ZAFHartTypes::dtmkit {

std::string KernelInformationBase::StandardName(ZAFHartTypes::StandardName index) {
  for (const auto& [known, name] : names_) {
    if (known == index) return name;
  }
  return {};
}

}  // namespace ZAFHartTypes::dtmkit
