#include "ddobjects/SupportedDevices.h"

#include <iomanip>
#include <sstream>

namespace ZAFHartTypes {

std::string SupportedDevice::Text() const {
  std::ostringstream text;
  text << "0x" << std::uppercase << std::hex << std::setfill('0') << std::setw(4) << expandedType;
  if (manufacturer && *manufacturer != expandedType >> 8) {
    text << " (manufacturer 0x" << std::setw(4) << *manufacturer << ")";
  }
  if (lowestRevision == 0 && highestRevision == kAnyRevision) return text.str();
  text << std::dec << " rev. " << int{lowestRevision};
  if (highestRevision == kAnyRevision) {
    text << "+";
  } else if (highestRevision != lowestRevision) {
    text << "-" << int{highestRevision};
  }
  return text.str();
}

}  // namespace ZAFHartTypes
