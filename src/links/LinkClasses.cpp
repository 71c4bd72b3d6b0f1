#include "links/LinkClasses.h"

#include <memory>

#include "links/HartIpLink.h"
#include "links/HartModemLink.h"

namespace HartLinks {

void RegisterLinkClasses(platform::ComponentClasses& classes) {
  classes.Register("HartModem.Link", [] { return std::make_shared<HartModemLink>(); });
  classes.Register("HartIp.Link", [] { return std::make_shared<HartIpLink>(); });
}

}  // namespace HartLinks
