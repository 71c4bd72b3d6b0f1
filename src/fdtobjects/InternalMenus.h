#pragma once

#include <span>
#include <string_view>

#include "ddobjects/Menu.h"
#include "interfaces/IDDComponents.h"
#include "interfaces/IDDKernel.h"

namespace ZAFHartLib {

// A menu that every DTM has, built at run time from the device's own objects. Each computation
// builds it from scratch.
struct InternalMenu {
  std::string_view name;
  void (*build)(ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components,
                ZAFHartTypes::Menu& menu);
};

// In the order in which they are added to the database.
std::span<const InternalMenu> InternalMenus();

}  // namespace ZAFHartLib
