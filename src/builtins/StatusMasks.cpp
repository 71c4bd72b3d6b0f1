#include "builtins/StatusMasks.h"

namespace ZAFHartLib {

using ZAFHartTypes::StatusHandling;

void MaskPair::Apply(std::uint8_t mask, StatusHandling handling) {
  const auto without = [mask](std::uint8_t bits) {
    return static_cast<std::uint8_t>(bits & ~mask);
  };
  const auto with = [mask](std::uint8_t bits) { return static_cast<std::uint8_t>(bits | mask); };
  switch (handling) {
    case StatusHandling::Ignore:
      abort = without(abort);
      retry = without(retry);
      break;
    case StatusHandling::Abort:
      abort = with(abort);
      retry = without(retry);
      break;
    case StatusHandling::Retry:
      abort = without(abort);
      retry = with(retry);
      break;
  }
}

bool StatusMasks::Meets(const ZAFHartTypes::ByteBuffer& status,
                        std::uint8_t MaskPair::*mask) const {
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    if ((status.Item(i) & pairs_[i].*mask) != 0) return true;
  }
  return false;
}

}  // namespace ZAFHartLib
