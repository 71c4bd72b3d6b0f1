#include "links/LinkClasses.h"

namespace HartLinks {

void RegisterLinkClasses(platform::ComponentClasses& /*classes*/) {}

}  // namespace HartLinks
