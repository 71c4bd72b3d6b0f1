#include "links/LinkClasses.h"

#include <memory>

#include "links/HartIpLink.h"

namespace HartLinks {

void RegisterLinkClasses(platform::ComponentClasses& classes) {
  classes.Register("HartIp.Link", [] { return std::make_shared<HartIpLink>(); });
}

}  // namespace HartLinks
